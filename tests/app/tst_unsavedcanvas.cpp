#include "windowfixture.h"

#include "app/actions/actionregistry.h"
#include "app/assets/spritecommands.h"
#include "app/assets/spritepanel.h"
#include "app/paint/paintcommands.h"
#include "app/recovery/workrecovery.h"
#include "family/project/familyparentproject.h"
#include "family/project/gameprogram.h"
#include "operations/agreements.h"
#include "operations/recovery/abandonedwork.h"
#include "operations/recovery/recoverykeeper.h"
#include "support/testtable.h"

#include <zorv/core/fileinput.h>
#include <zorv/editors/palette/colorpalette.h>
#include <zorv/editors/palette/paletteeditor.h>
#include <zorv/editors/palette/palettewidget.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/canvas/imagelayers.h>
#include <zorv/image/canvas/imageundostack.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/image/spriteeditor.h>

#include <QAction>

namespace {

const char SpritePath[] = "characters/ryn/ryn.sprites";

enum Answer { Cancel = -1, Save = 0, Discard = 1 };

QImage picture(int seed)
{
    QImage image(16, 12, QImage::Format_Indexed8);
    image.setColorTable({0x00000000, 0xffe02020, 0xff20c020, 0xff2020e0});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, uint((x / 3 + y / 2 + seed) % 4));
        }
    }
    return image;
}

QImage first(const QString& fileName)
{
    Family::SpriteFile file;
    const bool isRead =
        file.fromFile(*Zorv::FileSystemArchive::instance(), fileName, false) && file.count() > 0;
    return isRead ? file.sprite(0)->image() : QImage();
}

}  // namespace

/// Work on the canvas is work of the program: all that marks, asks, copies or saves knows of it.
class TestUnsavedCanvas : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void isMarked();
    void isAskedAbout_data();
    void isAskedAbout();
    void goesIntoTheFile_data();
    void goesIntoTheFile();
    void isAskedAboutWhenTheFileChanges_data();
    void isAskedAboutWhenTheFileChanges();
    void isNotSavedWithoutItsSprite();
    void isPutAside();
    void isSavedInItsOwnColours();
    void followsAMovedColour_data();
    void followsAMovedColour();
    void leavesTheStageToAnotherProject();
    void followsColoursOfAnotherProject();
    void hidingALayerIsWork_data();
    void hidingALayerIsWork();
    void fileComesBeforeSavedLayers();
    void comesBack_data();
    void comesBack();

private:
    Zorv::SpriteEditor* editor() const { return m->window->paint()->editor(); }
    Zorv::ImageCanvas* canvas() const { return editor()->renderer()->canvas(); }
    Family::SpriteCollection* sprites() const { return m->window->spritePanel()->sprites(); }
    QImage shown() const { return canvas()->mergeLayers(nullptr); }
    QImage flipped() const { return picture(0).mirrored(true, false); }
    void openOther() const;
    void trigger(const QString& name) const
    {
        QCoreApplication::processEvents();
        QAction* action = m->window->registry()->action(name);
        QVERIFY2(action->isEnabled(), qPrintable(name));
        action->trigger();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
};

void TestUnsavedCanvas::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m_game->write("characters/ryn/ryn.character",
                  "[info]\r\nname = \"Ryn\"\r\n[files]\r\nsprites = \"ryn.sprites\"\r\n"
                  "animations = \"basic.anim\"\r\n");
    m_game->write("zorv-player",
                  "#!/bin/sh\ncp \"$(dirname \"$2\")/ryn.sprites\" \"$RECORD/copy.sprites\"\n");
    QFile::setPermissions(m_game->path("zorv-player"), QFile::ReadOwner | QFile::ExeOwner);
    Family::SpriteFile file;
    QVERIFY(file.insertSprite(-1, {0, 0}, {8, 11}, picture(0)));
    QVERIFY(file.insertSprite(0, {0, 1}, {8, 11}, picture(1)));
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), m_game->path(SpritePath), false));
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("RECORD", m_folder->path().toLocal8Bit());
    m = std::make_unique<WindowFixture>();
    QVERIFY(Operations::agreeTo(Family::GameProgram(m_game->root()), m->settings));
    m->open(*m_game, m_game->ryn(), m_game->animations());
    QVERIFY(m->window->openFile(m_game->path(SpritePath)));
    trigger("spr_image_fliph");
    QCOMPARE(shown(), flipped());
}

void TestUnsavedCanvas::isMarked()
{
    const auto* dock = m->window->spritePanel()->parentWidget();
    const auto treeText = [this] {
        const App::GameTree* tree = m->window->gameTree();
        return tree->indexOf(m_game->path(SpritePath)).data().toString();
    };
    for (const bool isChanged : {true, false}) {
        QTRY_COMPARE(m->window->isWindowModified(), isChanged);
        QCOMPARE(dock->isWindowModified(), isChanged);
        QCOMPARE(m->window->status()->stateText().contains("sprites modified"), isChanged);
        QCOMPARE(m->action("save_all")->isEnabled(), isChanged);
        QTRY_COMPARE(treeText(), isChanged ? "ryn.sprites*" : "ryn.sprites");
        QCOMPARE(m->window->session()->modifiedFiles().contains(sprites()), isChanged);
        QVERIFY(!sprites()->isModified());
        m->action("undo")->trigger();
    }
}

void TestUnsavedCanvas::isAskedAbout_data()
{
    columns<QString, int>("what", "answer");
    for (const char* what : {"window", "close_project", "close_folder", "spr_next"}) {
        for (const int answer : {Cancel, Save, Discard}) {
            QTest::addRow("%s %d", what, answer) << what << answer;
        }
    }
}

/// One question; what is saved is saved, what is discarded is nowhere, and without an answer all
/// stays.
void TestUnsavedCanvas::isAskedAbout()
{
    const auto [what, answer] = fetched<QString, int>();
    const QByteArray before = m_game->read(SpritePath);
    m->dialogs.choiceAnswers = {answer};
    if (what == "window") {
        QCOMPARE(m->window->close(), answer != Cancel);
    } else {
        trigger(what);
    }
    QCOMPARE(m->dialogs.count(), 1);
    if (answer == Cancel) {
        QCOMPARE(shown(), flipped());
        QVERIFY(editor()->isCanvasModified() && editor()->spriteIndex() == 0);
    }
    if (what == "spr_next") {
        QCOMPARE(m->dialogs.shown.first().title, QString("Discard changes?"));
        QCOMPARE(sprites()->sprite(0)->image() == flipped(), answer == Save);
        QCOMPARE(sprites()->isModified(), answer == Save);
        QCOMPARE(m_game->read(SpritePath), before);
    } else {
        QCOMPARE(first(m_game->path(SpritePath)) == flipped(), answer == Save);
        QCOMPARE(m_game->read(SpritePath) == before, answer != Save);
        QCOMPARE(editor()->sprites() != nullptr, what == "window" || answer == Cancel);
    }
}

void TestUnsavedCanvas::goesIntoTheFile_data()
{
    columns<QString>("what");
    for (const char* what : {"save", "save_all", "backup", "run"}) {
        QTest::newRow(what) << what;
    }
}

void TestUnsavedCanvas::goesIntoTheFile()
{
    const auto [what] = fetched<QString>();
    QString written = m_game->path(SpritePath);
    if (what == "backup") {
        Family::FamilyParentProject* game = m->window->session()->game();
        written = m_game->path("backup/") + game->makeBackup("one") + '/' + SpritePath;
    } else {
        trigger(what);
    }
    if (what == "run") {
        written = m_folder->filePath("copy.sprites");
    }
    QCOMPARE(first(written), flipped());
    QCOMPARE(m->dialogs.count(), 0);
    QVERIFY(!editor()->isCanvasModified());
    QCOMPARE(sprites()->undoTitle(), QString("Save image changes"));
    QCOMPARE(sprites()->isModified(), !what.startsWith("save"));
}

void TestUnsavedCanvas::isAskedAboutWhenTheFileChanges_data()
{
    columns<int>("answer");
    QTest::newRow("kept") << 0;
    QTest::newRow("read") << 1;
}

void TestUnsavedCanvas::isAskedAboutWhenTheFileChanges()
{
    const auto [answer] = fetched<int>();
    Family::SpriteFile file;
    QVERIFY(file.insertSprite(-1, {0, 0}, {8, 11}, picture(2)));
    m->dialogs.choiceAnswers = {answer};
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), m_game->path(SpritePath), true));
    QTRY_COMPARE(m->dialogs.count(), 1);
    QCOMPARE(m->dialogs.shown.first().title, QString("File modified"));
    QCOMPARE(editor()->isCanvasModified(), answer == 0);
    QTRY_COMPARE(shown(), answer == 0 ? flipped() : picture(2));
}

/// What belongs to a sprite that is gone cannot be saved, and is not lost by trying.
void TestUnsavedCanvas::isNotSavedWithoutItsSprite()
{
    sprites()->removeSprite(0);
    m->dialogs.choiceAnswers = {Save};
    QVERIFY(!m->window->close());
    QCOMPARE(m->dialogs.count("error"), 1);
    QCOMPARE(first(m_game->path(SpritePath)), picture(1));
    QCOMPARE(shown(), flipped());
    QVERIFY(Zorv::FileInput::isUnsaved(sprites()));
    m->dialogs.choiceAnswers = {Discard};
    QVERIFY(m->window->close());
}

/// As long as something of the canvas is in no file: work, and layers that are hidden. The copy is
/// as old as the file.
void TestUnsavedCanvas::isPutAside()
{
    const App::WorkRecovery recovery(m->window->services(), m_folder->filePath("recovery"));
    const auto copies = [&recovery] {
        QCoreApplication::processEvents();
        const bool isDone = recovery.keeper()->flush();
        const QDir folder(recovery.keeper()->folder());
        return isDone ? folder.entryInfoList({"*.zorvcopy"}) : QFileInfoList();
    };
    QCOMPARE(copies().size(), 1);
    trigger("spr_layer_add");
    canvas()->layers()->at(0)->setVisible(false);
    trigger("save");
    QVERIFY(!Zorv::FileInput::isUnsaved(sprites()));
    QCOMPARE(copies().size(), 1);
    QVERIFY(QDir().mkpath(m_folder->filePath("left/dead")));
    QVERIFY(QFile::copy(copies().first().filePath(), m_folder->filePath("left/dead/1.zorvcopy")));
    const Operations::AbandonedWorks left(m_folder->filePath("left"));
    QCOMPARE(left.all().size(), 1);
    QCOMPARE(left.all().first().state, Operations::AbandonedWork::Applicable);
    QString error;
    const QString png = m_folder->filePath("one.png");
    QVERIFY(left.all().first().saveElsewhere(png, &error));
    QCOMPARE(QImage(png).convertToFormat(QImage::Format_ARGB32),
             flipped().convertToFormat(QImage::Format_ARGB32));
    canvas()->layers()->at(0)->setVisible(true);
    QVERIFY(copies().isEmpty());
}

/// Colours that are only looked at decide which layer shows, nowhere else.
void TestUnsavedCanvas::isSavedInItsOwnColours()
{
    const QVector<QRgb> opaque(256, 0xff123456);
    trigger("spr_layer_add");
    editor()->previewColors(&opaque);
    QCOMPARE(editor()->canvasRecord().flattened(), flipped());
    trigger("save");
    QCOMPARE(first(m_game->path(SpritePath)), flipped());
}

void TestUnsavedCanvas::followsAMovedColour_data()
{
    columns<int, bool, bool, int>("layers", "isShown", "isCovered", "colours");
    QTest::newRow("a layer") << 1 << true << false << 256;
    QTest::newRow("layers, one of them hidden") << 3 << true << false << 256;
    QTest::newRow("behind another sprite") << 3 << false << false << 256;
    QTest::newRow("colours that are covered") << 3 << true << true << 256;
    QTest::newRow("covered, behind another sprite") << 3 << false << true << 256;
    QTest::newRow("a palette of few colours") << 3 << true << true << 4;
}

/// What is painted is in the file when the pixels of that are mapped. Layers follow, whether they
/// can be seen or not, and go back with undo.
void TestUnsavedCanvas::followsAMovedColour()
{
    const auto [count, isShown, isCovered, colourCount] = fetched<int, bool, bool, int>();
    sprites()->palettes()->palette(0)->state.count = colourCount;
    const auto colours = [this] {
        QVector<QImage> all{shown().convertToFormat(QImage::Format_ARGB32),
                            QImage(1, 1, QImage::Format_ARGB32)};
        all.last().fill(editor()->colors()->color(editor()->colors()->background()));
        for (unsigned i = 0; i < canvas()->layers()->count(); ++i) {
            QImage layer = canvas()->layers()->at(i)->image();
            layer.setColorTable(sprites()->sprite(0)->shownColors());
            all.append(layer.convertToFormat(QImage::Format_ARGB32));
        }
        return all;
    };
    for (int i = 1; i < count; ++i) {
        QImage layer = picture(i);
        if (isCovered) {
            layer.fill(3);
        }
        canvas()->newRasterLayer(layer);
    }
    canvas()->layers()->at(0)->setVisible(count == 1);
    trigger("spr_saveimg");
    const QVector<QImage> painted = colours();
    m->host.setOption(QStringLiteral("pal_move"), 1);
    auto* grid = m->window->findChild<Zorv::PaletteWidget*>();
    QVERIFY(grid);
    if (!isShown) {
        trigger("spr_next");
    }
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Home);
    for (const int slot : {1, 2}) {
        QTest::keyClick(grid, Qt::Key_Right, Qt::AltModifier);
        QTRY_COMPARE(sprites()->sprite(0)->image().color(slot), flipped().color(0));
    }
    if (!isShown) {
        trigger("spr_prev");
    }
    QCOMPARE(canvas()->layers()->count(), unsigned(count));
    QVERIFY(!editor()->isCanvasModified());
    QCOMPARE(colours(), painted);
    QCOMPARE(sprites()->sprite(0)->image().convertToFormat(QImage::Format_ARGB32), painted.first());
    QCOMPARE(sprites()->sprite(0)->image().color(2), flipped().color(0));
    for (int i = 0; i < 2; ++i) {
        sprites()->undo();
        QCOMPARE(canvas()->layers()->count(), unsigned(count));
        QCOMPARE(colours(), painted);
        QVERIFY(!editor()->isCanvasModified());
    }
    QCOMPARE(sprites()->sprite(0)->image().color(0), flipped().color(0));
    sprites()->redo();
    QCOMPARE(colours(), painted);
    QCOMPARE(canvas()->layers()->count(), unsigned(count));
}

/// Another project, on the stage.
void TestUnsavedCanvas::openOther() const
{
    const QString other = m_game->path("characters/oda/oda.sprites");
    {
        Family::SpriteFile file;
        QImage image = picture(2);
        image.setColor(1, 0xffffff00);
        QVERIFY(file.insertSprite(-1, {3, 0}, {}, image));
        QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), other, true));
    }
    m_game->write("characters/oda/oda.character",
                  "[info]\r\nname = \"Oda\"\r\n[files]\r\nsprites = \"oda.sprites\"\r\n"
                  "animations = \"oda.anim\"\r\n");
    m_game->write("characters/oda/oda.anim", "animation 1 \"One\"\r\nframe 3,0 loop\r\n");
    QVERIFY(m->window->openFile(m_game->oda()));
    QVERIFY(m->window->openFile(m_game->path("characters/oda/oda.anim")));
    trigger("editor_anim");
}

/// Beside the stage of another project, sprites and palettes are those of that one.
void TestUnsavedCanvas::leavesTheStageToAnotherProject()
{
    Family::SpriteCollection* own = sprites();
    openOther();
    auto* others = sprites();
    QVERIFY(others && others != own);
    QCOMPARE(editor()->sprites(), static_cast<Zorv::Sprites*>(own));
    auto* panel = editor()->paletteEditor();
    QCOMPARE(panel->palettes(), static_cast<Zorv::Palettes*>(others->palettes()));

    // What is saved meanwhile has its own colours.
    QCOMPARE(own->palettes()->count(), 1);
    QVERIFY(Zorv::FileInput::take(own));
    QCOMPARE(own->sprite(0)->image(), flipped());
    QCOMPARE(own->palettes()->count(), 1);
    own->undo();
    canvas()->flip(true, false);
    QVERIFY(editor()->isCanvasModified());
    QCOMPARE(panel->palettes(), static_cast<Zorv::Palettes*>(others->palettes()));

    m->dialogs.shown.clear();
    for (const char* name : {"pal_clear", "palette_duplicate"}) {
        trigger(name);
        QCOMPARE(m->dialogs.shown.takeLast().kind, QString("warning"));
        QVERIFY(own->palettes()->count() == 1 && others->palettes()->count() == 1);
        QVERIFY(editor()->isActive());
        QCOMPARE(panel->palettes(), static_cast<Zorv::Palettes*>(own->palettes()));
        trigger("editor_anim");
    }

    // A costume of the canvas is no palette of the stage.
    panel->setCurrentPalette(nullptr);
    emit m->window->findChild<Zorv::PalettePreviews*>()->chosen(0);
    QVERIFY(!panel->currentPalette());

    const QString png = m_folder->filePath("new.png");
    QVERIFY(picture(1).save(png));
    for (const int answer : {Cancel, Discard}) {
        m->dialogs.fileAnswers = {{png}};
        answerImages(true);
        m->dialogs.choiceAnswers = {answer};
        trigger("editor_anim");
        trigger("spr_add");
        QCOMPARE(own->count(), 2U);
        QCOMPARE(others->count(), answer == Cancel ? 2U : 3U);
        QCOMPARE(editor()->sprites(), static_cast<Zorv::Sprites*>(answer == Cancel ? own : others));
    }
    QCOMPARE(editor()->spriteIndex(), 2);
    QCOMPARE(panel->palettes(), static_cast<Zorv::Palettes*>(others->palettes()));
}

/// Its canvas is kept while the colours move, and has hidden layers.
void TestUnsavedCanvas::followsColoursOfAnotherProject()
{
    Family::SpriteCollection* own = sprites();
    trigger("spr_saveimg");
    openOther();
    Family::SpriteCollection* others = sprites();
    QVERIFY(editor()->showSprite(others, 0));
    QImage layer = picture(0);
    layer.fill(1);
    canvas()->newRasterLayer(layer)->setVisible(false);
    editor()->saveImage();
    QVERIFY(m->window->openFile(m_game->path(SpritePath)));
    QVERIFY(editor()->sprites() == own);
    canvas()->flip(true, false);
    QVERIFY(m->window->openFile(m_game->path("characters/oda/oda.anim")));
    trigger("editor_anim");
    m->host.setOption(QStringLiteral("pal_move"), 1);
    auto* grid = m->window->findChild<Zorv::PaletteWidget*>();
    const auto colour = others->palettes()->palette(0)->state.colors[1];
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Home);
    QTest::keyClick(grid, Qt::Key_Right, Qt::AltModifier);
    QVERIFY(editor()->sprites() == own);
    QVERIFY(others->palettes()->palette(0)->state.colors[0] == colour);
    m->dialogs.choiceAnswers = {Discard};
    QVERIFY(editor()->showSprite(others, 0));
    QCOMPARE(canvas()->layers()->count(), 2U);
    QCOMPARE(canvas()->layers()->at(0)->image().pixelIndex(0, 0), 0);
    QVERIFY(!editor()->isCanvasModified());
}

void TestUnsavedCanvas::hidingALayerIsWork_data()
{
    columns<int>("answer");
    QTest::newRow("saved") << int(Save);
    QTest::newRow("discarded") << int(Discard);
}

/// It changes the picture, though it is no step.
void TestUnsavedCanvas::hidingALayerIsWork()
{
    const auto [answer] = fetched<int>();
    canvas()->newRasterLayer(picture(0));
    trigger("spr_saveimg");
    QVERIFY(!editor()->isCanvasModified());
    const QImage both = sprites()->sprite(0)->image();
    canvas()->layers()->at(0)->setVisible(false);
    QVERIFY(editor()->isCanvasModified() && both != flipped());
    m->dialogs.choiceAnswers = {answer};
    trigger("spr_next");
    trigger("spr_prev");
    QCOMPARE(m->dialogs.count(), 1);
    QCOMPARE(sprites()->sprite(0)->image(), answer == Save ? flipped() : both);
    QCOMPARE(shown(), sprites()->sprite(0)->image());
    QCOMPARE(canvas()->layers()->count(), 2U);
}

/// They are there again with their picture.
void TestUnsavedCanvas::fileComesBeforeSavedLayers()
{
    trigger("spr_layer_add");
    trigger("save");
    Family::SpriteFile other;
    QVERIFY(other.insertSprite(-1, {0, 0}, {8, 11}, picture(2)));
    const QByteArray ours = m_game->read(SpritePath);
    for (const bool isOurs : {false, true}) {
        if (isOurs) {
            m_game->write(SpritePath, ours);
        } else {
            QVERIFY(
                other.toFile(*Zorv::FileSystemArchive::instance(), m_game->path(SpritePath), true));
        }
        QVERIFY(static_cast<Family::SpriteFile*>(sprites())->reload());
        QVERIFY(!editor()->isCanvasModified());
        QCOMPARE(shown(), isOurs ? flipped() : picture(2));
        QCOMPARE(canvas()->layers()->count(), isOurs ? 2U : 1U);
    }
}

void TestUnsavedCanvas::comesBack_data()
{
    columns<QString, int>("meanwhile", "answer");
    for (const char* meanwhile : {"nothing", "reload", "change", "budget"}) {
        QTest::addRow("saved, %s", meanwhile) << meanwhile << int(Save);
        QTest::addRow("discarded, %s", meanwhile) << meanwhile << int(Discard);
    }
}

/// A sprite that is shown again has its layers and its history, unless it is another picture by
/// now, or there is no room for both.
void TestUnsavedCanvas::comesBack()
{
    const auto [meanwhile, answer] = fetched<QString, int>();
    trigger("spr_layer_add");
    QImage stored = answer == Save ? flipped() : picture(0);
    m->dialogs.choiceAnswers = {answer};
    if (meanwhile == "budget") {
        canvas()->undoStack()->setBudget(1);
    }
    trigger("spr_next");
    QCOMPARE(shown(), picture(1));
    QCOMPARE(canvas()->layers()->count(), 1U);
    QVERIFY(!editor()->isCanvasModified());
    if (meanwhile == "reload") {
        QVERIFY(answer == Discard || m->action("save")->isEnabled());
        trigger(answer == Save ? "save" : "spr_select_none");
        QVERIFY(static_cast<Family::SpriteFile*>(sprites())->reload());
    } else if (meanwhile == "change") {
        stored = picture(2);
        sprites()->sprite(0)->setImage(stored);
    }
    trigger("spr_prev");
    QCOMPARE(shown(), stored);
    QVERIFY(!editor()->isCanvasModified());
    const bool isKept = meanwhile == "nothing" || meanwhile == "reload";
    QCOMPARE(canvas()->layers()->count(), isKept && answer == Save ? 2U : 1U);
    QCOMPARE(canvas()->undoStack()->count(), isKept ? 2 : 0);
    if (isKept && answer == Save) {
        editor()->undo();
        editor()->undo();
        QCOMPARE(shown(), picture(0));
        QVERIFY(editor()->isCanvasModified());
    } else if (isKept) {
        editor()->redo();
        QCOMPARE(shown(), flipped());
        QVERIFY(editor()->isCanvasModified());
    }
}

QTEST_MAIN(TestUnsavedCanvas)
#include "tst_unsavedcanvas.moc"
