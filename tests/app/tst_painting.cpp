#include "paintingfixture.h"

#include "app/actions/actionregistry.h"
#include "app/assets/thumbnailcommands.h"

#include <zorv/animation/thumbnails/thumbnailseditor.h>

#include <QComboBox>

/// The canvas in the real window, with real keys and a real mouse.
class TestPainting : public PaintingTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { m.reset(); }

    void savesWhatIsPainted();
    void keepsTheAxisWithThePixels();
    void leavesWithoutAQuestion();
    void hearsKeysOnTheCanvasAlone();
    void keepsLayersInLine();
    void followsTheFile();
    void keepsItsWork();
    void outlivesAReload();
    void decidesNoPixelByAPreview();
    void paintsInTrueColour();
    void opensFromEverywhere();
    void publishesItsTools();
};

/// A stroke, put into the sprite and the file, changes its pixels and no others; undo leads back to
/// the first bytes.
void TestPainting::savesWhatIsPainted()
{
    const QByteArray first = m_game->read(SpritePath);
    openFirst();
    pressIn(widget(), Qt::Key_B);
    QTest::mouseClick(widget(), Qt::LeftButton, {}, at({0, 0}));
    editor()->colors()->setForeground(3);
    stroke({2, 5}, {9, 5});
    const QVector<QPoint> painted = differences(layer(), picture(0));
    QVERIFY(painted.size() > 4);
    QTRY_VERIFY(m->window->isWindowModified());
    QVERIFY(editor()->isModified());
    trigger("spr_saveimg");
    QCOMPARE(differences(sprites()->sprite(0)->image(), picture(0)), painted);
    trigger("save");
    Family::SpriteFile written;
    QVERIFY(
        written.fromFile(*Zorv::FileSystemArchive::instance(), m_game->path(SpritePath), false));
    QCOMPARE(differences(written.sprite(0)->image(), picture(0)), painted);
    QCOMPARE(written.sprite(0)->image().colorTable(), sprites()->sprite(1)->image().colorTable());
    QCOMPARE(written.sprite(1)->image(), sprites()->sprite(1)->image());
    QVERIFY(differences(written.sprite(1)->image(), picture(1)).isEmpty());
    for (int i = 0; i < 20 && m->action("undo")->isEnabled(); ++i) {
        trigger("undo");
    }
    QVERIFY(differences(layer(), picture(0)).isEmpty());
    trigger("save");
    QCOMPARE(m_game->read(SpritePath), first);
    QVERIFY(!editor()->isModified());
}

void TestPainting::keepsTheAxisWithThePixels()
{
    openFirst();
    trigger("spr_image_fliph");
    trigger("spr_saveimg");
    QCOMPARE(sprites()->sprite(0)->axis(), QPoint(8, 11));  // 16 - 8
    QVERIFY(canvas()->rotateAll(90, Zorv::ImageResizeFilter::Nearest));
    QVERIFY(canvas()->resize({24, 32}, Zorv::ImageResizeFilter::Nearest));
    QCOMPARE(canvas()->size(), QSize(24, 32));
    const QPoint axis = canvas()->axis();
    trigger("spr_saveimg");
    QCOMPARE(sprites()->sprite(0)->axis(), axis);
    QCOMPARE(sprites()->sprite(0)->size(), QSize(24, 32));
    QCOMPARE(sprites()->sprite(1)->axis(), QPoint(8, 11));
    trigger("undo");
    trigger("undo");
    QCOMPARE(canvas()->axis(), QPoint(8, 11));
    QVERIFY(!canvas()->resize({0, 9}, Zorv::ImageResizeFilter::Nearest));
    QTRY_COMPARE(m->dialogs.count(QStringLiteral("warning")), 1);
    QCOMPARE(canvas()->size(), QSize(16, 12));
}

/// A change that is taken back is none.
void TestPainting::leavesWithoutAQuestion()
{
    openFirst();
    stroke({1, 1}, {6, 6});
    QVERIFY(editor()->isCanvasModified());
    trigger("undo");
    trigger("spr_next");
    QCOMPARE(editor()->spriteIndex(), 1);
    QVERIFY(differences(layer(), picture(1)).isEmpty());
    QCOMPARE(m->dialogs.count(), 0);
}

void TestPainting::hearsKeysOnTheCanvasAlone()
{
    openFirst();
    const auto tool = [this] { return editor()->renderer()->currentTool(); };
    const auto type = [this](auto which) { return editor()->renderer()->tool(which); };
    pressIn(widget(), Qt::Key_E);
    QCOMPARE(tool(), type(Zorv::ImageTool::EraserTool));
    pressIn(m->window->spritePanel()->list(), Qt::Key_B);
    QCOMPARE(tool(), type(Zorv::ImageTool::EraserTool));
    pressIn(widget(), Qt::Key_B);
    QCOMPARE(tool(), type(Zorv::ImageTool::PenTool));
    editor()->colors()->setForeground(2);
    editor()->colors()->setBackground(1);
    pressIn(widget(), Qt::Key_X);
    pressIn(widget(), Qt::Key_BracketRight);
    QCOMPARE(int(editor()->colors()->foreground()), 2);
    QCOMPARE(int(editor()->colors()->background()), 2);
    pressIn(widget(), Qt::Key_Plus);
    pressIn(widget(), Qt::Key_Plus);
    pressIn(widget(), Qt::Key_Minus);
    QCOMPARE(tool()->brushWidth(), 2);
    QVERIFY(differences(layer(), picture(0)).isEmpty());
    QTest::mouseMove(widget(), at({4, 3}));
    QTRY_COMPARE(m->window->status()->stageText(), QStringLiteral("4, 3: color 2, #20c020"));
    QTest::keyPress(widget(), Qt::Key_Space);
    const QPoint before = canvas()->position();
    stroke({2, 2}, {5, 2});
    QTest::keyRelease(widget(), Qt::Key_Space);
    QVERIFY(canvas()->position().x() > before.x());
    QVERIFY(differences(layer(), picture(0)).isEmpty());
}

/// What the list of layers does comes to one picture.
void TestPainting::keepsLayersInLine()
{
    openFirst();
    trigger("spr_layer_add");
    auto* list = m->window->findChild<QAbstractItemView*>(QStringLiteral("spr_layers_list"));
    QVERIFY(list && list->isVisible());
    QCOMPARE(canvas()->layers()->count(), 2U);
    QCOMPARE(list->currentIndex().row(), 0);
    QVERIFY(!m->window->findChild<QWidget*>(QStringLiteral("spr_layers_blendmode"))->isEnabled());
    editor()->colors()->setForeground(3);
    pressIn(widget(), Qt::Key_B);
    stroke({3, 3}, {8, 3});
    const QImage above = layer();
    list->setCurrentIndex(list->model()->index(1, 0));
    QVERIFY(differences(layer(), picture(0)).isEmpty());
    const QImage flat = canvas()->mergeLayers(nullptr);
    for (const char* merge : {"spr_layer_mergevis", "spr_layer_mergeall"}) {
        trigger(merge);
        QCOMPARE(canvas()->layers()->count(), 1U);
        QVERIFY(differences(layer(), flat).isEmpty());
        trigger("undo");
        QCOMPARE(canvas()->layers()->count(), 2U);
    }
    trigger("copy");
    trigger("paste");
    QCOMPARE(canvas()->layers()->count(), 3U);
    list->model()->setData(list->model()->index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
    trigger("spr_saveimg");
    QVERIFY(differences(sprites()->sprite(0)->image(), picture(0)).isEmpty());
    QVERIFY(!differences(above, layer()).isEmpty());
    QVERIFY(!editor()->isCanvasModified() && canvas()->layers()->count() == 3);
}

/// What others do to the sprite is seen on a canvas without changes, and leaves one with changes.
void TestPainting::followsTheFile()
{
    openFirst();
    sprites()->sprite(0)->setImage(picture(2));
    QVERIFY(differences(layer(), picture(2)).isEmpty());
    stroke({1, 1}, {6, 6});
    const QImage painted = layer();
    sprites()->undo();
    QVERIFY(differences(layer(), painted).isEmpty());
    trigger("undo");
    stroke({1, 1}, {6, 6});
    sprites()->move(0, 1);
    QCOMPARE(editor()->spriteIndex(), 1);
    sprites()->removeSprite(1);
    QVERIFY(differences(layer(), painted).size() < painted.width() * painted.height());
    QVERIFY(!m->action("spr_saveimg")->isEnabled());
    editor()->saveImage();
    QVERIFY(differences(sprites()->sprite(0)->image(), picture(1)).isEmpty());
    sprites()->undo();
    QCOMPARE(editor()->spriteIndex(), 1);
    trigger("spr_saveimg");
    QVERIFY(differences(sprites()->sprite(1)->image(), painted).isEmpty());
}

/// What is on the canvas alone is not given up for what becomes of the file.
void TestPainting::keepsItsWork()
{
    openFirst();
    stroke({1, 1}, {6, 6});
    trigger("spr_saveimg");
    stroke({1, 9}, {6, 9});
    sprites()->undo();
    trigger("undo");
    QVERIFY(editor()->isCanvasModified());
    trigger("spr_saveimg");
    trigger("spr_layer_add");
    trigger("spr_saveimg");
    sprites()->sprite(0)->setImage(picture(2));
    QCOMPARE(canvas()->layers()->count(), 2U);
    QVERIFY(editor()->isCanvasModified());
}

/// A file that is read anew has its sprites at the same or at other places.
void TestPainting::outlivesAReload()
{
    openFirst();
    trigger("spr_next");
    stroke({1, 1}, {6, 6});
    const QImage painted = layer();
    QVERIFY(static_cast<Family::SpriteFile*>(sprites())->reload());
    QCOMPARE(editor()->spriteIndex(), 1);
    QVERIFY(differences(layer(), painted).isEmpty());
    trigger("spr_saveimg");
    QVERIFY(differences(sprites()->sprite(1)->image(), painted).isEmpty());
    QVERIFY(differences(sprites()->sprite(0)->image(), picture(0)).isEmpty());
}

void TestPainting::decidesNoPixelByAPreview()
{
    openFirst();
    const QSize size = canvas()->size();
    const QVector<QRgb> clear(256, 0);
    editor()->previewColors(&clear);
    trigger("spr_crop");
    QCOMPARE(canvas()->size(), size);
    QCOMPARE(editor()->colors()->color(1), Colours.at(1));
    // What is copied comes back as the same entries.
    const QVector<QRgb> others{0, Colours.at(2), Colours.at(3), Colours.at(1)};
    editor()->previewColors(&others);
    editor()->copy();
    editor()->paste();
    QVERIFY(differences(canvas()->mergeLayers(nullptr), picture(0)).isEmpty());
    trigger("paint_to_true");
    editor()->undo();
    editor()->previewColors(&clear);
    editor()->redo();
    QCOMPARE(editor()->colors()->color(1), Colours.at(1));
}

/// A sprite without palette is painted in its own colours.
void TestPainting::paintsInTrueColour()
{
    QImage image = picture(0).convertToFormat(QImage::Format_ARGB32);
    sprites()->sprite(0)->setImage(image);
    openFirst();
    QCOMPARE(canvas()->format(), Zorv::ImageCanvas::RGBAFormat);
    trigger("spr_layer_add");
    auto* modes = m->window->findChild<QComboBox*>(QStringLiteral("spr_layers_blendmode"));
    QVERIFY(modes->isEnabled());
    QCOMPARE(modes->count(), 13);
    QTest::keyClick(modes, Qt::Key_Down);
    QTest::keyClick(modes, Qt::Key_Down);
    QCOMPARE(canvas()->activeLayer()->blendMode(), QPainter::CompositionMode_Multiply);
    trigger("undo");
    trigger("undo");
    QCOMPARE(modes->currentIndex(), 0);
    pressIn(widget(), Qt::Key_B);
    stroke({2, 2}, {2, 8});
    QVERIFY(layer() != image);
    trigger("spr_saveimg");
    QCOMPARE(sprites()->sprite(0)->image().convertToFormat(QImage::Format_ARGB32),
             canvas()->mergeLayers(nullptr));
    QVERIFY(!sprites()->sprite(0)->palette());
}

void TestPainting::opensFromEverywhere()
{
    QVERIFY(m->window->openFile(m_game->path(SpritePath)));
    QVERIFY(editor()->isActive());
    QCOMPARE(editor()->spriteIndex(), 0);
    auto* thumbnails = m->window->thumbnails()->panel()->list();
    doubleClickRow(thumbnails, sprites()->index(1));
    QCOMPARE(editor()->spriteIndex(), 1);
    trigger("editor_anim");
    QVERIFY(!editor()->isActive());
    QCOMPARE(sprites()->undoTitle(), QString());
}

void TestPainting::publishesItsTools()
{
    const QStringList tools{"spr_tool_canvasmove",
                            "spr_tool_selmove",
                            "spr_tool_rectsel",
                            "spr_tool_freesel",
                            "spr_tool_picker",
                            "spr_tool_pen",
                            "spr_tool_eraser",
                            "spr_tool_remap_pen",
                            "spr_tool_paintbucket",
                            "spr_layer_add",
                            "spr_layer_delete",
                            "spr_layer_duplicate",
                            "spr_layer_mergevis",
                            "spr_layer_mergeall",
                            "spr_select_all",
                            "spr_select_none",
                            "spr_select_invert",
                            "spr_image_rotate",
                            "spr_image_fliph",
                            "spr_image_flipv",
                            "spr_crop",
                            "spr_resize",
                            "spr_view_original",
                            "spr_prev",
                            "spr_next"};
    for (const QString& name : tools) {
        QVERIFY2(!m->window->registry()->action(name)->isEnabled(), qPrintable(name));
    }
    openFirst();
    for (int i = 0; i < tools.size(); ++i) {
        QAction* action = m->window->registry()->action(tools.at(i));
        QVERIFY2(action->isEnabled() && !action->icon().isNull(), qPrintable(tools.at(i)));
        if (i <= Zorv::ImageTool::FloodFillTool) {
            action->trigger();
            QCOMPARE(editor()->renderer()->currentTool(),
                     editor()->renderer()->tool(Zorv::ImageTool::Type(i)));
        }
    }
    for (const char* name : {"spr_foreground", "spr_background", "spr_tool_options", "pal_view",
                             "spr_layers_list", "spr_sel", "spr_sel_lb"}) {
        const auto* found = m->window->findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(found && found->isVisible() && found->isEnabled(), name);
    }
}

QTEST_MAIN(TestPainting)
#include "tst_painting.moc"
