#include "paintingfixture.h"

#include "app/actions/actionregistry.h"

#include <zorv/image/canvas/imageundostack.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/image/tools/strokeoptions.h>

namespace {

enum Answer { Save, Discard };

/// Keys of a window system that repeats them while they are held.
void repeat(QWidget* widget, int key)
{
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, key, {}, QString(), true);
        QCoreApplication::sendEvent(widget, &event);
    }
}

}  // namespace

/// What is seen of the canvas in the window, and what comes in the middle of painting.
class TestPaintView : public PaintingTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { m.reset(); }

    void firstZoomFillsTheView();
    void showsCostumes();
    void ownCostumeIsAmongThem();
    void keepsSwitches();
    void takesItsGroundFromTheSettings();
    void framesShineThrough();
    void pansByKeyAndMenu();
    void convertsInOneStep();
    void keepsSymmetryInSight();
    void survivesWhatComesBetween_data();
    void survivesWhatComesBetween();
    void staysWhenTheProjectChanges();

private:
    Zorv::ImageRenderer* renderer() const { return editor()->renderer(); }
    QColor shownAt(QPoint pixel) const
    {
        QCoreApplication::processEvents();
        auto* canvas = static_cast<Zorv::RenderWidget*>(widget());
        const QPoint inside(1, 1);  // away from what marks the pointer
        return canvas->grabFramebuffer().pixelColor(at(pixel) + inside);
    }
    void addPalette(int number, QRgb first) const
    {
        Zorv::RGBA colors[256] = {};
        colors[1] = {quint8(qRed(first)), quint8(qGreen(first)), quint8(qBlue(first)), 255};
        QVERIFY(
            sprites()->palettes()->addPalette(colors, QStringLiteral("9,%1").arg(number), false));
    }
    bool isPainting() const { return canvas()->isStroking(); }
};

void TestPaintView::firstZoomFillsTheView()
{
    openFirst();
    QCOMPARE(canvas()->zoomLevel(), 8.0);
    m->window->resize(700, 500);
    QCoreApplication::processEvents();
    sprites()->sprite(0)->setImage(picture(0).scaled(160, 120));
    // What is seen first stays the person's.
    QCOMPARE(canvas()->zoomLevel(), 8.0);
}

/// A costume is looked at: its colours are on the screen, and the sprite keeps its own.
void TestPaintView::showsCostumes()
{
    addPalette(1, 0xff8040c0);
    addPalette(2, 0xff108010);
    openFirst();
    Zorv::PalettePreviews* costumes = m->window->paint()->costumes();
    const QPoint red(3, 0);
    QCOMPARE(costumes->currentIndex(), 0);
    QCOMPARE(shownAt(red), QColor(0xe0, 0x20, 0x20));
    emit costumes->chosen(2);
    QCOMPARE(costumes->currentIndex(), 2);
    QCOMPARE(shownAt(red), QColor(0x10, 0x80, 0x10));
    QVERIFY(!editor()->isCanvasModified());
    // What is not there any more cannot be chosen by its old row.
    sprites()->palettes()->remove(1);
    QCOMPARE(costumes->currentIndex(), 0);
    emit costumes->chosen(1);
    QCOMPARE(shownAt(red), QColor(0x10, 0x80, 0x10));
    const Zorv::Palette* own = sprites()->sprite(0)->palette();
    editor()->colors()->setForeground(1);
    stroke({1, 8}, {8, 8});
    trigger("spr_saveimg");
    QCOMPARE(costumes->currentIndex(), 0);
    QCOMPARE(shownAt(red), QColor(0xe0, 0x20, 0x20));
    QCOMPARE(sprites()->sprite(0)->palette(), own);
    QCOMPARE(sprites()->sprite(0)->image().pixel(3, 8), Colours.at(1));
}

void TestPaintView::ownCostumeIsAmongThem()
{
    for (int i = 0; i < 14; ++i) {
        addPalette(i, qRgb(i, 10 * i, 5));
    }
    openFirst();
    Zorv::PalettePreviews* costumes = m->window->paint()->costumes();
    QCOMPARE(costumes->currentIndex(), 0);
    // Another palette of the same pixels is seen at once.
    sprites()->sprite(0)->setPalette(sprites()->palettes()->palette(14));
    QCOMPARE(costumes->currentIndex(), Zorv::PalettePreviews::MaxCount - 1);
    QCOMPARE(shownAt({3, 0}), QColor(13, 130, 5));
}

void TestPaintView::keepsSwitches()
{
    const QStringList names{"paint_pixel_perfect", "paint_straight",   "paint_shading",
                            "paint_symmetry_x",    "paint_symmetry_y", "paint_grid",
                            "paint_shine",         "paint_axis"};
    openFirst();
    for (int i = 0; i < names.size(); i += 2) {
        m->window->actionByName(qPrintable(names.at(i)))->trigger();
    }
    m->window->close();
    m.reset();
    m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("zorv.ini")));
    for (int i = 0; i < names.size(); ++i) {
        const QAction* action = m->window->actionByName(qPrintable(names.at(i)));
        QVERIFY2(action->isChecked() == (i % 2 == 0), qPrintable(names.at(i)));
    }
    const Zorv::StrokeOptions& options = *renderer()->strokeOptions();
    QVERIFY(options.isPixelPerfect() && options.isShading() && !options.straightLines());
    QVERIFY(options.symmetry() == Zorv::StrokeOptions::TopBottom);
    QVERIFY(!renderer()->option(Zorv::ImageRenderer::CanvasAxis));
    QVERIFY(!renderer()->option(Zorv::ImageRenderer::PixelGrid));
    m->host.setOption(QStringLiteral("undo_megabytes"), 20);
    m->window->reconfig();
    QCOMPARE(canvas()->undoStack()->budget(), qint64(20) << 20);
}

void TestPaintView::takesItsGroundFromTheSettings()
{
    openFirst();
    const QColor top(200, 10, 30);
    const QColor bottom(10, 90, 240);
    m->host.setOption(QStringLiteral("back_start"), top);
    m->host.setOption(QStringLiteral("back_end"), bottom);
    m->window->reconfig();
    QCoreApplication::processEvents();
    const QImage seen = static_cast<Zorv::RenderWidget*>(widget())->grabFramebuffer();
    const auto isLike = [](const QColor& a, const QColor& b) {
        return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) <
               8;
    };
    const int left = editor()->renderer()->zoomedRect().left() / 2;
    QVERIFY(isLike(seen.pixelColor(left, 1), top));
    QVERIFY(isLike(seen.pixelColor(left, seen.height() - 2), bottom));
}

/// The frame behind the one with the sprite is seen where the sprite is transparent.
void TestPaintView::framesShineThrough()
{
    m->edit()->setPlainText(QStringLiteral("animation 1\nframe 0,0\nframe 0,1\n"));
    m->goTo(1);
    openFirst();
    const QPoint clear(1, 0);
    const QColor before = shownAt(clear);
    trigger("paint_shine");
    const QColor shining = shownAt(clear);
    QVERIFY(shining != before);
    QVERIFY(shining.red() > shining.green());  // the other sprite is red there
    trigger("spr_next");
    trigger("spr_prev");
    QCOMPARE(shownAt(clear), shining);
    trigger("paint_shine");
    QCOMPARE(shownAt(clear), before);
}

void TestPaintView::pansByKeyAndMenu()
{
    openFirst();
    const auto moves = [this] {
        const QPoint before = canvas()->position();
        stroke({2, 2}, {6, 2});
        const bool hasMoved = canvas()->position() != before;
        const bool hasPainted = canvas()->undoStack()->canUndo();
        canvas()->undoStack()->clear();
        return hasMoved && !hasPainted;
    };
    QAction* pan = m->window->actionByName("paint_pan");
    trigger("paint_pan");
    QVERIFY(pan->isChecked() && moves() && moves());
    trigger("paint_pan");
    QVERIFY(!pan->isChecked() && !moves());
    trigger("paint_pan");
    pressIn(widget(), Qt::Key_B);  // another tool
    QVERIFY(!pan->isChecked() && !moves());
    m->window->registry()->setShortcut(QStringLiteral("paint_pan"), Qt::Key_H);
    for (const bool losesFocus : {false, true}) {
        widget()->setFocus();
        QTest::keyPress(widget(), Qt::Key_H);
        repeat(widget(), Qt::Key_H);
        QVERIFY(pan->isChecked() && moves());
        if (losesFocus) {
            m->window->spritePanel()->list()->setFocus();
        }
        QTest::keyRelease(widget(), Qt::Key_H);
        QVERIFY(!pan->isChecked() && !moves());
    }
}

void TestPaintView::convertsInOneStep()
{
    openFirst();
    const QImage indices = layer();
    trigger("paint_to_true");
    QCOMPARE(canvas()->format(), Zorv::ImageCanvas::RGBAFormat);
    QCOMPARE(layer().pixel(3, 0), Colours.at(1));
    QVERIFY(!m->action("paint_to_true")->isEnabled());
    trigger("paint_to_indexed");
    QVERIFY(differences(layer(), indices).isEmpty());
    QCOMPARE(canvas()->undoStack()->count(), 2);
    trigger("undo");
    trigger("spr_saveimg");
    QVERIFY(!sprites()->sprite(0)->palette());
    QCOMPARE(sprites()->sprite(0)->image().pixel(3, 0), Colours.at(1));
    trigger("undo");
    QVERIFY(differences(layer(), indices).isEmpty());
    trigger("spr_saveimg");
    QVERIFY(sprites()->sprite(0)->palette());
    QVERIFY(differences(sprites()->sprite(0)->image(), indices).isEmpty());
}

void TestPaintView::keepsSymmetryInSight()
{
    openFirst();
    const auto axis = [this] {
        return renderer()->strokeOptions()->symmetryAxis(canvas()->size());
    };
    trigger("paint_symmetry_x");
    renderer()->strokeOptions()->setSymmetryAxis({15, 3});
    canvas()->setSize({10, 12}, {}, true);
    QCOMPARE(axis(), QPointF(10, 3));
    trigger("paint_symmetry_center");
    QCOMPARE(axis(), QPointF(5, 6));
    renderer()->strokeOptions()->setSymmetryAxis({1, 3});
    trigger("undo");
    trigger("spr_next");
    QCOMPARE(axis(), QPointF(8, 6));
}

void TestPaintView::survivesWhatComesBetween_data()
{
    QTest::addColumn<int>("sprite");  // that is shown then; -1 for none
    QTest::addColumn<bool>("isPainted");
    QTest::newRow("undo") << 0 << false;
    QTest::newRow("close") << 0 << true;
    QTest::newRow("editor") << 0 << true;
    QTest::newRow("next") << 1 << false;
    QTest::newRow("project") << -1 << false;
}

/// What comes in the middle of a stroke ends it. The rest of the drag paints nothing, wherever it
/// comes to.
void TestPaintView::survivesWhatComesBetween()
{
    QFETCH(const int, sprite);
    QFETCH(const bool, isPainted);
    openFirst();
    editor()->colors()->setForeground(3);
    QTest::mousePress(widget(), Qt::LeftButton, {}, at({1, 1}));
    dragTo({9, 1});
    QVERIFY(isPainting() && !differences(layer(), picture(0)).isEmpty());
    QTRY_COMPARE(m->action("undo")->text().remove(QLatin1Char('&')), QStringLiteral("Undo: Draw"));
    const QString what = QTest::currentDataTag();
    if (what == QLatin1String("undo")) {
        QTest::keyClick(widget(), Qt::Key_Z, Qt::ControlModifier);
    } else if (what == QLatin1String("close")) {
        m->dialogs.choiceAnswers = {Save};
        QVERIFY(m->window->close());
        QCOMPARE(sprites()->sprite(0)->image(), canvas()->mergeLayers(nullptr));
    } else if (what == QLatin1String("editor")) {
        trigger("editor_anim");
    } else if (what == QLatin1String("next")) {
        m->dialogs.choiceAnswers = {Discard};
        QTest::keyClick(widget(), Qt::Key_PageDown, Qt::AltModifier);
    } else {
        m->dialogs.choiceAnswers = {Discard};
        trigger("close_project");
        QCOMPARE(m->dialogs.count(), 1);
    }
    QCOMPARE(editor()->spriteIndex(), sprite);
    QVERIFY(sprite < 0 || differences(layer(), picture(sprite)).isEmpty() == !isPainted);
    const QImage now = sprite < 0 ? QImage() : layer();
    dragTo({9, 9});
    QTest::mouseRelease(widget(), Qt::LeftButton, {}, at({9, 9}));
    QVERIFY(!isPainting());
    QVERIFY(sprite < 0 ? canvas()->layers()->count() == 0 : differences(layer(), now).isEmpty());
}

/// Another project comes to the front while the canvas has changes: they stay, with their sprite.
void TestPaintView::staysWhenTheProjectChanges()
{
    openFirst();
    Family::SpriteCollection* ryn = sprites();
    stroke({1, 1}, {9, 1});
    const QImage painted = layer();
    QVERIFY(m->window->openFile(m_game->oda()));
    QCoreApplication::processEvents();
    QVERIFY(!editor()->isActive() && sprites() != ryn);
    QCOMPARE(editor()->sprites(), static_cast<Zorv::Sprites*>(ryn));
    QVERIFY(differences(layer(), painted).isEmpty() && editor()->isCanvasModified());
    editor()->saveImage();
    QVERIFY(differences(ryn->sprite(0)->image(), painted).isEmpty());
    QVERIFY(m->window->openFile(m_game->path(SpritePath)));
    QCOMPARE(editor()->sprites(), static_cast<Zorv::Sprites*>(ryn));
    QVERIFY(differences(layer(), painted).isEmpty());
}

QTEST_MAIN(TestPaintView)
#include "tst_paintview.moc"
