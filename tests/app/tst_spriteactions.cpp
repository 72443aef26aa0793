#include "windowfixture.h"

#include "app/animations/animationcommands.h"
#include "app/assets/spritecommands.h"
#include "app/assets/spritepanel.h"
#include "app/paint/paintcommands.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/window/editorregistry.h"
#include "family/assets/spritefile.h"
#include "support/faultrows.h"
#include "support/testtable.h"

#include <zorv/core/dialogs/itemsdlg.h>
#include <zorv/editors/palette/colorpalette.h>
#include <zorv/editors/palette/paldlg.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/dialogs/imginfodlg.h>
#include <zorv/image/dialogs/imgresizedlg.h>
#include <zorv/image/dialogs/rotimgdlg.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/image/spriteworkspace.h>
#include <zorv/media/pcx.h>
#include <zorv/media/tools/rotateimage.h>
#include <zorv/text/zorvtranslator.h>

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>

namespace {

using Zorv::Dialogs;

const QVector<QRgb> Colours{0x00000000, 0xffe02020, 0xff20c020, 0xff2020e0};
const char SpritePath[] = "characters/ryn/ryn.sprites";

QImage picture(int seed)
{
    QImage image(16, 12, QImage::Format_Indexed8);
    image.setColorTable(Colours);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, uint((x / 3 + y / 2 + seed) % 4));
        }
    }
    return image;
}

}  // namespace

/// What the editor of sprites does to the sprites of a file, in the real window.
class TestSpriteActions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup()
    {
        m_watch.stop();
        m_isSeen = false;
        m.reset();
    }

    void publishesItsTools_data();
    void publishesItsTools();
    void asksBeforeItDeletes_data();
    void asksBeforeItDeletes();
    void takesTheCanvasInFirst();
    void outlivesItsQuestions();
    void outlivesARefusal_data();
    void outlivesARefusal();
    void followsFrameAndPalette();
    void lendsTheOrganizer();
    void addsFiles_data();
    void addsFiles();
    void addsNothingWhenGivenUp();
    void takesDroppedFiles();
    void changesTheImage_data();
    void changesTheImage();
    void asksLastWhenTheImageChanges_data();
    void asksLastWhenTheImageChanges();
    void outlivesTheDialogOfPalettes();
    void savesImages();
    void failedSavesLoseNothing_data();
    void failedSavesLoseNothing();
    void keepsTheSwitchOfPalettes();
    void resizes_data();
    void resizes();
    void turns();
    void changesProperties();
    void canAllBeTakenBack();

private:
    Zorv::SpriteEditor* editor() const { return m->window->paint()->editor(); }
    Zorv::ImageCanvas* canvas() const { return editor()->renderer()->canvas(); }
    Family::SpriteCollection* sprites() const { return m->window->spritePanel()->sprites(); }
    void show(int row) const { m->window->paint()->showSprite(sprites(), row); }
    void paint() const { canvas()->flip(true, false); }
    void trigger(const char* name) const
    {
        QCoreApplication::processEvents();
        QVERIFY2(m->action(name)->isEnabled(), name);
        m->action(name)->trigger();
        QCoreApplication::processEvents();
    }
    QStringList names() const
    {
        QStringList all;
        for (int i = 0; i < int(sprites()->count()); ++i) {
            all.append(sprites()->sprite(i)->id().text());
        }
        return all;
    }
    QByteArray written() const
    {
        const QString path = m_folder->filePath(QStringLiteral("written.sprites"));
        sprites()->toFile(*Zorv::FileSystemArchive::instance(), path, true);
        return readFile(path);
    }

    QString file(const QString& name, const QImage& image) const
    {
        const QString path = m_folder->filePath(name);
        return image.save(path) ? path : QString();
    }

    /// What is done in the next dialog that opens.
    template <class Dialog>
    void inDialog(const std::function<void(Dialog*)>& act)
    {
        m_isSeen = false;
        m_watch.disconnect();
        connect(&m_watch, &QTimer::timeout, this, [this, act] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                m_watch.stop();
                m_isSeen = true;
                act(dialog);
            }
        });
        m_watch.start(5);
    }

    QTimer m_watch;
    bool m_isSeen = false;
    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
};

void TestSpriteActions::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m_game->write("characters/ryn/ryn.character",
                  "[info]\r\nname = \"Ryn\"\r\n[files]\r\nsprites = \"ryn.sprites\"\r\n"
                  "animations = \"basic.anim\"\r\n");
    Family::SpriteFile file;
    for (int i = 0; i < 4; ++i) {
        QVERIFY(file.insertSprite(i - 1, {quint16(i / 3), quint16(i % 3)}, {8, 11}, picture(i)));
    }
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), m_game->path(SpritePath), false));
    m_folder = std::make_unique<QTemporaryDir>();
    m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("zorv.ini")));
    m->window->resize(1200, 900);
    m->open(*m_game, m_game->ryn(), m_game->animations());
}

void TestSpriteActions::publishesItsTools_data()
{
    columns<unsigned, bool>("text", "onStage");
    const auto row = [](const char* name, unsigned text, bool onStage = false) {
        QTest::newRow(name) << text << onStage;
    };
    row("spr_add", 105, true);
    row("spr_delete", 123);
    row("spr_openimg", 124);
    row("spr_saveimgas", 126);
    row("spr_resize", 134);
    row("spr_image_rotate", 136);
    row("spr_image_properties", 133);
    row("spr_import_proj", 129);
    row("spr_duplicate", 128);
    row("spr_split_channels", 139);
    row("spr_frame_spr", 130, true);
    row("spr_switch_pal", 144);
}

void TestSpriteActions::publishesItsTools()
{
    const auto [text, onStage] = fetched<unsigned, bool>();
    const QAction* action = m->action(QTest::currentDataTag());
    QVERIFY(action);
    QString label = action->text().remove(QLatin1Char('&'));
    label.remove(QStringLiteral("..."));
    QString expected = Zorv::ZorvTranslator::instance()->trText(text);
    QCOMPARE(label, expected.remove(QStringLiteral("...")));
    QVERIFY(!action->icon().isNull());
    QCOMPARE(action->isEnabled(), onStage);
    show(0);
    QCoreApplication::processEvents();
    QVERIFY(action->isEnabled());
}

void TestSpriteActions::asksBeforeItDeletes_data()
{
    columns<bool, bool, int, int, bool>("confirms", "paints", "answer", "questions", "goes");
    QTest::newRow("yes") << true << false << int(Dialogs::Yes) << 1 << true;
    QTest::newRow("no") << true << false << int(Dialogs::No) << 1 << false;
    QTest::newRow("unasked") << false << false << int(Dialogs::No) << 0 << true;
    QTest::newRow("painted, no") << false << true << int(Dialogs::No) << 1 << false;
    QTest::newRow("painted, yes") << true << true << int(Dialogs::Yes) << 1 << true;
}

void TestSpriteActions::asksBeforeItDeletes()
{
    const auto [confirms, paints, answer, questions, goes] = fetched<bool, bool, int, int, bool>();
    m->host.setOption(QStringLiteral("confirm_delete"), confirms);
    show(3);  // which no frame names
    if (paints) {
        paint();
    }
    const QImage before = canvas()->mergeLayers(nullptr);
    m->dialogs.buttonAnswers = {Dialogs::Button(answer)};
    trigger("spr_delete");
    QCOMPARE(m->dialogs.count(), questions);
    QCOMPARE(sprites()->count(), goes ? 3U : 4U);
    QCOMPARE(editor()->spriteIndex(), goes ? 2 : 3);
    QVERIFY(goes || canvas()->mergeLayers(nullptr) == before);
    QCOMPARE(editor()->isCanvasModified(), paints && !goes);

    // One that a frame shows is asked about once more.
    if (goes && !paints) {
        show(0);
        m->dialogs.buttonAnswers = {Dialogs::Yes, Dialogs::No};
        if (!confirms) {
            m->dialogs.buttonAnswers.removeFirst();
        }
        trigger("spr_delete");
        QCOMPARE(sprites()->count(), 3U);
    }
}

/// What is on the canvas is in the copy, and all of it is one step.
void TestSpriteActions::takesTheCanvasInFirst()
{
    const QByteArray first = written();
    for (const char* name : {"spr_duplicate", "spr_split_channels"}) {
        show(1);
        paint();
        const QImage painted = canvas()->mergeLayers(nullptr);
        trigger(name);
        QVERIFY(!editor()->isCanvasModified());
        QCOMPARE(sprites()->sprite(1)->image(), painted);
        const bool isCopy = sprites()->count() == 5;
        QCOMPARE(editor()->spriteIndex(), isCopy ? 2 : 1);
        if (isCopy) {
            QCOMPARE(sprites()->sprite(2)->image(), painted);
        }
        sprites()->undo();
        QCOMPARE(written(), first);
        QVERIFY(!sprites()->canUndo());
        show(0);
        m->dialogs.buttonAnswers.clear();
    }
}

/// The file is read anew, or its project closed, behind the question.
void TestSpriteActions::outlivesItsQuestions()
{
    show(3);
    m->dialogs.whileOpen = [this](const PlannedDialogs::Shown&) {
        QVERIFY(static_cast<Family::SpriteFile*>(sprites())->reload());
    };
    m->dialogs.buttonAnswers = {Dialogs::Yes};
    trigger("spr_delete");
    QCOMPARE(sprites()->count(), 3U);
    m->dialogs.whileOpen = [this](const PlannedDialogs::Shown&) {
        m->dialogs.whileOpen = nullptr;
        QVERIFY(m->window->session()->game());
        m->action("close_folder")->trigger();
    };
    m->dialogs.choiceAnswers = {1};
    m->dialogs.buttonAnswers = {Dialogs::Yes, Dialogs::Yes};
    m->action("spr_delete")->trigger();
    QVERIFY(!editor()->sprites());
}

void TestSpriteActions::outlivesARefusal_data()
{
    columns<QString>("action");
    for (const char* action : {"spr_duplicate", "spr_split_channels", "sprite_axis"}) {
        QTest::newRow(action) << action;
    }
}

/// What is on the canvas is too large for a sprite, and the project is closed behind that.
void TestSpriteActions::outlivesARefusal()
{
    show(0);
    QVERIFY(canvas()->setSize({Family::LargestSprite + 1, 12}, {}, true));
    m->dialogs.whileOpen = [this](const PlannedDialogs::Shown&) {
        m->dialogs.whileOpen = nullptr;
        m->dialogs.choiceAnswers = {1};
        m->action("close_folder")->trigger();
    };
    inDialog<QDialog>([](QDialog* dialog) { dialog->accept(); });
    trigger(qPrintable(std::get<0>(fetched<QString>())));
    QTRY_COMPARE(m->dialogs.count("warning"), 1);
    QVERIFY(!editor()->sprites());
}

void TestSpriteActions::followsFrameAndPalette()
{
    QVector<QRgb> others = Colours;
    others[1] = 0xffffffff;
    QImage other = picture(2);
    other.setColorTable(others);
    sprites()->sprite(2)->setImage(other);
    QCOMPARE(sprites()->palettes()->count(), 2);
    const auto* stage = m->window->stage();
    trigger("spr_frame_spr");
    QVERIFY(m->host.option(QStringLiteral("switch_frame_spr")).toBool());
    for (const int frame : {1, 2, 1}) {
        stage->editor()->selectAnimation(frame);
        QCOMPARE(editor()->spriteIndex(), frame);
        QCOMPARE(sprites()->palettes()->currentIndex, frame == 2 ? 1 : 0);
    }
    paint();
    stage->editor()->selectAnimation(2);
    QCOMPARE(editor()->spriteIndex(), 1);
    canvas()->flip(true, false);
    show(1);
    trigger("spr_switch_pal");
    show(2);
    QCOMPARE(sprites()->palettes()->currentIndex, 0);
    trigger("spr_switch_pal");
    QCOMPARE(sprites()->palettes()->currentIndex, 1);
}

/// The list of the organizer is that of what is in front, and moves it.
void TestSpriteActions::lendsTheOrganizer()
{
    auto* organizer = m->window->animations()->organizer();
    Zorv::OrganizableObject* animations = organizer->object();
    QVERIFY(animations);
    show(1);
    QCOMPARE(organizer->object(), static_cast<Zorv::OrganizableObject*>(sprites()));
    QCOMPARE(organizer->currentRow(), 1);
    trigger("org_up");
    QCOMPARE(names(), QStringList({"0,1", "0,0", "0,2", "1,0"}));
    QCOMPARE(editor()->spriteIndex(), 0);
    sprites()->undo();
    pressIn(m->window->animations()->list(), Qt::Key_Delete);
    QCOMPARE(m->document()->animations()->count(), 3);
    QCOMPARE(sprites()->count(), 4U);
    trigger("editor_anim");
    QCOMPARE(organizer->object(), animations);
}

void TestSpriteActions::addsFiles_data()
{
    columns<QStringList, int, QStringList>("files", "answer", "added");
    const int yes = Dialogs::Yes;
    const int no = Dialogs::No;
    QTest::newRow("in order") << QStringList{"b.png", "a.png"} << no << QStringList{"0,3", "0,4"};
    QTest::newRow("named") << QStringList{"7-3.png", "0-1.png"} << no << QStringList{"0,3", "7,3"};
    QTest::newRow("cropped") << QStringList{"9-9.png"} << yes << QStringList{"9,9"};
    QTest::newRow("broken between")
        << QStringList{"a.png", "broken.png", "c.png"} << no << QStringList{"0,3", "0,5"};
    QTest::newRow("other forms") << QStringList{"two.png", "true.png", "257.bmp", "grey.pcx"} << no
                                 << QStringList{"0,3", "0,4", "0,5", "0,6"};
    QTest::newRow("nothing readable")
        << QStringList{"broken.png", "gone.png"} << no << QStringList();
    QTest::newRow("given up") << QStringList{"a.png"} << int(Dialogs::Cancel) << QStringList();
}

void TestSpriteActions::addsFiles()
{
    const auto [files, answer, added] = fetched<QStringList, int, QStringList>();
    const QByteArray first = written();
    const QStringList before = names();
    QImage framed(20, 20, QImage::Format_Indexed8);
    framed.setColorTable(Colours);
    framed.fill(0);
    framed.setPixel(5, 7, 1);
    framed.setText(QStringLiteral("axis"), QStringLiteral("10,19"));
    for (const char* name : {"a.png", "b.png", "c.png", "7-3.png", "0-1.png", "9-9.png"}) {
        QVERIFY(!file(QString::fromLatin1(name), framed).isEmpty());
    }
    file("two.png", QImage(3, 3, QImage::Format_Mono));
    QImage colours(257, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 257; ++x) {
        colours.setPixel(x, 0, qRgba(x / 2, 255 - x / 2, x & 1, 100 + x / 2));
    }
    file("true.png", colours);
    file("257.bmp", colours.convertToFormat(QImage::Format_RGB32));
    QFile grey(m_folder->filePath("grey.pcx"));
    QVERIFY(grey.open(QIODevice::WriteOnly) && Zorv::savePCX(framed, &grey));
    grey.close();
    QVERIFY(QFile::resize(grey.fileName(), QFileInfo(grey).size() - 769));
    writeFile(m_folder->filePath("broken.png"), "no picture");

    QStringList paths;
    for (const QString& name : files) {
        paths.append(m_folder->filePath(name));
    }
    show(0);
    m->dialogs.fileAnswers = {paths};
    m->dialogs.buttonAnswers = {Dialogs::Button(answer)};
    trigger("spr_add");
    QCOMPARE(names(), before + added);
    const QString folder =
        m->window->tabs()->currentDocument()->project()->option("spr_path").toString();
    QCOMPARE(folder, QFileInfo(m_folder->path()).absoluteFilePath());
    const bool isAnyBroken = files.contains("broken.png");
    QCOMPARE(m->dialogs.count("warning"), isAnyBroken ? 1 : 0);
    QCOMPARE(editor()->spriteIndex(), added.isEmpty() ? 0 : int(sprites()->count()) - 1);
    if (isAnyBroken) {
        QVERIFY(m->dialogs.texts("warning").first().contains("broken.png"));
    }
    if (!added.isEmpty() && files.first() != "two.png") {
        const Family::FamilySprite* last = sprites()->sprite(int(sprites()->count()) - 1);
        const bool isCropped = answer == Dialogs::Yes;
        QCOMPARE(last->size(), isCropped ? QSize(1, 1) : QSize(20, 20));
        QCOMPARE(last->axis(), isCropped ? QPoint(5, 12) : QPoint(10, 19));
        QCOMPARE(last->palette(), sprites()->sprite(0)->palette());
    }
    if (!added.isEmpty()) {
        sprites()->undo();
    }
    QCOMPARE(written(), first);
    QVERIFY(!sprites()->canUndo());
}

void TestSpriteActions::addsNothingWhenGivenUp()
{
    const QByteArray first = written();
    QStringList many;
    for (int i = 0; i < 40; ++i) {
        many.append(file(QStringLiteral("%1.png").arg(i), picture(i)));
    }
    show(0);
    QTimer giveUp;
    connect(&giveUp, &QTimer::timeout, this, [&] {
        if (auto* progress = m->window->findChild<QProgressDialog*>()) {
            progress->cancel();
            m_isSeen = true;
        }
    });
    giveUp.start(0);
    m->dialogs.buttonAnswers = {Dialogs::No};
    editor()->addFiles(many);
    QVERIFY(m_isSeen || sprites()->count() == 44);
    if (m_isSeen) {
        QCOMPARE(sprites()->count(), 4U);
        QCOMPARE(written(), first);
    }
}

/// As a file manager drags them, onto the canvas and onto the list.
void TestSpriteActions::takesDroppedFiles()
{
    const QUrl image = QUrl::fromLocalFile(file("8-8 100%.png", picture(1)));
    QMimeData data;
    data.setUrls({image, QUrl(QStringLiteral("http://example.org/a.png")),
                  QUrl::fromLocalFile(m_game->ryn())});
    QMimeData text;
    text.setUrls({QUrl::fromLocalFile(m_game->ryn())});
    show(0);
    unsigned count = 4;
    for (QWidget* target :
         {static_cast<QWidget*>(m->window->spritePanel()), editor()->workspace()->widget()}) {
        for (QMimeData* dragged : {&text, &data}) {
            QDragEnterEvent enter({9, 9}, Qt::CopyAction, dragged, Qt::LeftButton, {});
            enter.setAccepted(false);
            QCoreApplication::sendEvent(target, &enter);
            QCOMPARE(enter.isAccepted(), dragged == &data);
        }
        QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
        m->dialogs.buttonAnswers = {Dialogs::No};
        ++count;
        QTRY_COMPARE(sprites()->count(), count);
    }
    QCOMPARE(names().mid(4), QStringList({"0,3", "0,4"}));
}

void TestSpriteActions::changesTheImage_data()
{
    columns<int, int, bool, int>("other", "mode", "accepts", "palettes");
    QTest::newRow("same colours") << 0 << -1 << true << 1;
    QTest::newRow("other alpha of the first") << 1 << -1 << true << 1;
    QTest::newRow("its own palette") << 2 << 0 << true << 2;
    QTest::newRow("adapted") << 2 << 1 << true << 1;
    QTest::newRow("exchanged") << 2 << 2 << true << 1;
    QTest::newRow("given up") << 2 << 2 << false << 1;
    QTest::newRow("true colour") << 3 << -1 << true << 1;
}

void TestSpriteActions::changesTheImage()
{
    const auto [other, mode, accepts, palettes] = fetched<int, int, bool, int>();
    const QByteArray first = written();
    QVector<QRgb> colours = Colours;
    colours[0] = other == 1 ? 0xff000000 : colours[0];
    colours[1] = other == 2 ? 0xffffff00 : colours[1];
    QImage image = picture(3).copy(0, 0, 9, 9);
    image.setColorTable(colours);
    if (other == 3) {
        image = image.convertToFormat(QImage::Format_ARGB32);
    }
    show(1);
    m->dialogs.fileAnswers = {{file("new.png", image)}};
    m->dialogs.buttonAnswers = {Dialogs::No};
    if (mode >= 0) {
        inDialog<PalDlg>([mode = mode, accepts = accepts](PalDlg* dialog) {
            dialog->findChild<QComboBox*>("pal")->setCurrentIndex(mode);
            accepts ? dialog->accept() : dialog->reject();
        });
    }
    trigger("spr_openimg");
    QCOMPARE(m_isSeen, mode >= 0);
    QCOMPARE(sprites()->palettes()->count(), palettes);
    if (!accepts) {
        QCOMPARE(written(), first);
        return;
    }
    const QImage stored = sprites()->sprite(1)->image();
    QCOMPARE(stored.size(), QSize(9, 9));
    QCOMPARE(canvas()->size(), QSize(9, 9));
    QCOMPARE(stored.pixelColor(1, 1).rgba(),
             mode == 1 ? picture(3).pixel(1, 1) : image.pixel(1, 1));
    QCOMPARE(sprites()->sprite(0)->shownColors().at(1), mode == 2 ? colours[1] : Colours[1]);
    if (other == 3) {  // its colours are worked out once when it is chosen
        show(0);
        QSignalSpy changes(editor(), &Zorv::SpriteEditor::colorsShown);
        show(1);
        QCOMPARE(changes.count(), 1);
    }
    sprites()->undo();
    QCOMPARE(written(), first);
}

void TestSpriteActions::asksLastWhenTheImageChanges_data()
{
    columns<QString, int, bool>("givenUp", "answer", "changes");
    QTest::newRow("no file") << "file" << 1 << false;
    QTest::newRow("broken file") << "broken" << 1 << false;
    QTest::newRow("no palette") << "palette" << 1 << false;
    QTest::newRow("cancelled") << "" << -1 << false;
    QTest::newRow("saved") << "" << 0 << true;
    QTest::newRow("discarded") << "" << 1 << true;
}

/// Work on the canvas is not discarded for a picture that does not come.
void TestSpriteActions::asksLastWhenTheImageChanges()
{
    const auto [givenUp, answer, changes] = fetched<QString, int, bool>();
    const QByteArray first = written();
    QImage image = picture(3).copy(0, 0, 9, 9);
    image.setColor(1, 0xffffff00);
    show(1);
    paint();
    const QImage painted = canvas()->mergeLayers(nullptr);
    m->dialogs.fileAnswers = {{file("new.png", image)}};
    if (givenUp == "file") {
        m->dialogs.fileAnswers = {QStringList()};
    } else if (givenUp == "broken") {
        writeFile(m_folder->filePath("new.png"), "no picture");
    }
    m->dialogs.choiceAnswers = {answer};
    m->dialogs.buttonAnswers = {Dialogs::No};
    const bool isAsked = givenUp.isEmpty();
    inDialog<PalDlg>([isAsked](PalDlg* dialog) { isAsked ? dialog->accept() : dialog->reject(); });
    trigger("spr_openimg");
    m_watch.stop();
    QCOMPARE(m->dialogs.count("choose"), isAsked ? 1 : 0);
    QCOMPARE(sprites()->sprite(1)->size() == image.size(), changes);
    QCOMPARE(editor()->isCanvasModified(), !changes);
    if (!changes) {
        QCOMPARE(canvas()->mergeLayers(nullptr), painted);
    } else if (answer == 0) {
        sprites()->undo();
        QCOMPARE(sprites()->sprite(1)->image(), painted);
    }
    while (sprites()->canUndo()) {
        sprites()->undo();
    }
    QCOMPARE(written(), first);
}

/// A sprite without palette has none selected; the file is read anew behind the dialog.
void TestSpriteActions::outlivesTheDialogOfPalettes()
{
    sprites()->sprite(1)->setPalette(nullptr);
    QImage image = picture(3).copy(0, 0, 5, 5);
    image.setColor(1, 0xffffff00);
    show(1);
    QCOMPARE(qRed(editor()->colors()->color(9)), 9);
    for (const bool reloads : {true, false}) {
        m->dialogs.fileAnswers = {{file("new.png", image)}};
        m->dialogs.buttonAnswers = {Dialogs::No};
        inDialog<PalDlg>([this, reloads](PalDlg* dialog) {
            if (reloads) {
                QVERIFY(dialog->findChild<QAbstractItemView*>()
                            ->selectionModel()
                            ->selectedRows()
                            .isEmpty());
                static_cast<Family::SpriteFile*>(sprites())->reload();
            } else {
                m->dialogs.choiceAnswers = {1};
                m->action("close_folder")->trigger();
            }
            if (dialog->isVisible()) {
                dialog->accept();
            }
        });
        trigger("spr_openimg");
        QVERIFY(m_isSeen);
        QVERIFY(!sprites() || sprites()->sprite(1)->size() == QSize(16, 12));
    }
    QVERIFY(!editor()->sprites());
}

/// One file is asked for by its name; several are called like it, and what is there stays.
void TestSpriteActions::savesImages()
{
    const QString path = m_folder->filePath("out%1.png");
    for (const bool all : {false, true}) {
        show(1);
        m->dialogs.fileAnswers = {{path}};
        m->dialogs.buttonAnswers = {Dialogs::No};
        inDialog<ItemsDlg>([all](ItemsDlg* dialog) {
            if (all) {
                dialog->findChild<QAbstractItemView*>()->selectAll();
            }
            dialog->accept();
        });
        if (all) {
            writeFile(m_folder->filePath("out%1_0-2.png"), "mine");
        } else {
            paint();
        }
        const QImage shown = canvas()->mergeLayers(nullptr);
        trigger("spr_saveimgas");
        QVERIFY(m_isSeen);
        if (!all) {
            const QImage saved(path);
            QCOMPARE(saved.convertToFormat(QImage::Format_ARGB32),
                     shown.convertToFormat(QImage::Format_ARGB32));
            QCOMPARE(saved.text("axis"), QStringLiteral("8,11"));
            continue;
        }
        QCOMPARE(readFile(m_folder->filePath("out%1_0-2.png")), QByteArray("mine"));
        QVERIFY(!QFileInfo::exists(m_folder->filePath("out%1_0-1.png")));
        m->dialogs.fileAnswers = {{path}};
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        inDialog<ItemsDlg>([](ItemsDlg* dialog) {
            dialog->findChild<QAbstractItemView*>()->selectAll();
            dialog->accept();
        });
        trigger("spr_saveimgas");
        QCOMPARE(QDir(m_folder->path()).entryList({"out%1_*.png"}).size(), 4);
    }
}

void TestSpriteActions::failedSavesLoseNothing_data()
{
    columns<int, int>("call", "error");
    faultRows();
}

/// Of all sprites one cannot be written. What was painted is in the sprite all the same.
void TestSpriteActions::failedSavesLoseNothing()
{
    const auto [call, error] = fetched<int, int>();
    const QString old = m_folder->filePath("out_0-2.png");
    QVERIFY(writeFile(old, "mine"));
    show(1);
    paint();
    const QImage painted = canvas()->mergeLayers(nullptr);
    m->dialogs.fileAnswers = {{m_folder->filePath("out.png")}};
    m->dialogs.buttonAnswers = {Dialogs::Yes};
    inDialog<ItemsDlg>([call = call, error = error](ItemsDlg* dialog) {
        dialog->findChild<QAbstractItemView*>()->selectAll();
        faultArm("out_0-2", FaultCall(call), 1, error, call == FaultWrite);
        dialog->accept();
    });
    trigger("spr_saveimgas");
    faultArm("", FaultOpen, 0, 0, 0);
    QString told;
    for (const auto& each : qAsConst(m->dialogs.shown)) {
        told += each.text;
    }
    QVERIFY2(told.contains(old) && told.contains(qt_error_string(error)), qPrintable(told));
    QCOMPARE(readFile(old), QByteArray("mine"));
    QCOMPARE(QDir(m_folder->path()).entryList({"out*"}, QDir::Files).size(), 4);
    QVERIFY(!QImage(m_folder->filePath("out_1-0.png")).isNull());
    QCOMPARE(sprites()->sprite(1)->image(), painted);
}

/// In the next window, too.
void TestSpriteActions::keepsTheSwitchOfPalettes()
{
    for (const bool isOn : {false, true}) {
        show(0);
        trigger("spr_switch_pal");
        m->window->close();
        m.reset();
        m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("zorv.ini")));
        m->open(*m_game, m_game->ryn(), m_game->animations());
        QCOMPARE(m->action("spr_switch_pal")->isChecked(), isOn);
        QCOMPARE(m->host.option(QStringLiteral("switch_to_imgpal")).toBool(), isOn);
    }
}

void TestSpriteActions::resizes_data()
{
    columns<int, QString, double, QSize, QPoint>("mode", "field", "value", "size", "axis");
    const int scale = ImgResizeDlg::ScalePicture;
    const int room = ImgResizeDlg::ChangeCanvas;
    QTest::newRow("width") << scale << "width" << 32.0 << QSize(32, 24) << QPoint(16, 22);
    QTest::newRow("factor") << scale << "factor" << 0.5 << QSize(8, 6) << QPoint(4, 6);
    QTest::newRow("too small") << scale << "factor" << 0.01 << QSize(1, 1) << QPoint(1, 1);
    QTest::newRow("room") << room << "width" << 20.0 << QSize(20, 12) << QPoint(12, 11);
    QTest::newRow("less room") << room << "height" << 2.0 << QSize(16, 2) << QPoint(8, 1);
}

/// As the dialog shows it; less room is taken from above, and more is added at the left.
void TestSpriteActions::resizes()
{
    const auto [mode, field, value, size, axis] = fetched<int, QString, double, QSize, QPoint>();
    show(0);
    const QImage before = canvas()->mergeLayers(nullptr);
    QSize chosen;
    inDialog<ImgResizeDlg>([&, mode = mode, field = field, value = value](ImgResizeDlg* dialog) {
        dialog->findChild<QComboBox*>("mode")->setCurrentIndex(mode);
        const QList<QToolButton*> anchors = dialog->findChildren<QToolButton*>();
        QCOMPARE(anchors.size(), 9);
        anchors.last()->click();
        if (auto* real = dialog->findChild<QDoubleSpinBox*>(field)) {
            real->setValue(value);
        } else {
            dialog->findChild<QSpinBox*>(field)->setValue(int(value));
        }
        QVERIFY(!dialog->grab().isNull());
        chosen = dialog->chosenSize();
        dialog->accept();
    });
    trigger("spr_resize");
    QVERIFY(m_isSeen);
    QCOMPARE(chosen, size);
    QCOMPARE(canvas()->size(), size);
    QCOMPARE(canvas()->axis(), axis);
    if (mode == ImgResizeDlg::ChangeCanvas) {
        const QPoint corner(size.width() - 16, size.height() - 12);
        QCOMPARE(canvas()->mergeLayers(nullptr).copy(QRect(corner, before.size()) &
                                                     QRect(QPoint(), size)),
                 before.copy(QRect(-corner, size) & before.rect()));
    }
    trigger("undo");
    QCOMPARE(canvas()->mergeLayers(nullptr), before);
    QVERIFY(!editor()->isCanvasModified());
}

void TestSpriteActions::turns()
{
    show(0);
    const QImage before = canvas()->mergeLayers(nullptr);
    for (const double angle : {90.0, 33.5}) {
        inDialog<RotImgDlg>([angle](RotImgDlg* dialog) {
            dialog->findChild<QDoubleSpinBox*>("angle")->setValue(angle);
            dialog->accept();
        });
        trigger("spr_image_rotate");
        QVERIFY(m_isSeen);
        const QImage expected =
            Zorv::rotateImage(before, float(angle), 0, Zorv::ImageResizeFilter::Nearest);
        QCOMPARE(canvas()->mergeLayers(nullptr).size(), expected.size());
        trigger("undo");
    }
    inDialog<RotImgDlg>([](RotImgDlg* dialog) { dialog->reject(); });
    trigger("spr_image_rotate");
    QVERIFY(m_isSeen && !editor()->isCanvasModified());
}

/// Facts are told; what is changed on the canvas is one step of it, the number one of the file.
void TestSpriteActions::changesProperties()
{
    const QByteArray first = written();
    show(2);
    inDialog<ImgInfoDlg>([this](ImgInfoDlg* dialog) {
        const auto text = [dialog](const char* name) {
            return dialog->findChild<QLabel*>(name)->text();
        };
        QCOMPARE(text("colors"), QStringLiteral("4"));
        QCOMPARE(text("palette"), sprites()->sprite(2)->property("Palette").toString());
        QVERIFY(dialog->findChild<QPlainTextEdit*>("uses")->toPlainText().contains("basic.anim"));
        dialog->findChild<QSpinBox*>("group")->setValue(77);
        dialog->findChild<QSpinBox*>("x")->setValue(-3);
        dialog->findChild<QSpinBox*>("width")->setValue(20);
        dialog->findChild<QComboBox*>("form")->setCurrentIndex(1);
        dialog->accept();
    });
    trigger("spr_image_properties");
    QVERIFY(m_isSeen);
    QCOMPARE(sprites()->sprite(2)->id().text(), QStringLiteral("77,2"));
    QCOMPARE(canvas()->size(), QSize(20, 12));
    QCOMPARE(canvas()->axis(), QPoint(-3, 11));
    QCOMPARE(canvas()->format(), Zorv::ImageCanvas::RGBAFormat);
    QCOMPARE(editor()->undoTitle(), QStringLiteral("Change properties"));
    trigger("undo");
    QVERIFY(!editor()->isCanvasModified());
    trigger("undo");
    QCOMPARE(written(), first);
    QCOMPARE(editor()->spriteIndex(), 2);
}

/// Whatever is done, in any order, undo leads back to the first bytes.
void TestSpriteActions::canAllBeTakenBack()
{
    const QByteArray first = written();
    QRandomGenerator random(18);
    m->host.setOption(QStringLiteral("confirm_delete"), false);
    QImage other = picture(5);
    other.setColor(2, 0xffffffff);
    const QString path = file("other.png", other);
    const char* const actions[] = {"spr_duplicate",  "spr_split_channels", "spr_delete",
                                   "spr_add",        "spr_next",           "spr_saveimg",
                                   "spr_image_fliph"};
    show(0);
    for (int i = 0; i < 60; ++i) {
        QCoreApplication::processEvents();
        QAction* action = m->action(actions[random.bounded(7)]);
        m->dialogs.buttonAnswers = {Dialogs::Yes, Dialogs::Yes};
        m->dialogs.fileAnswers = {{path}};
        if (action->isEnabled()) {
            action->trigger();
        }
        if (editor()->spriteIndex() < 0 && sprites()->count() > 0) {
            show(0);
        }
    }
    QVERIFY(written() != first);
    for (int i = 0; i < 200 && sprites()->canUndo(); ++i) {
        sprites()->undo();
    }
    QCOMPARE(written(), first);
}

QTEST_MAIN(TestSpriteActions)
#include "tst_spriteactions.moc"
