#include "windowfixture.h"

#include "app/animations/animationcommands.h"
#include "app/assets/spritecommands.h"
#include "app/assets/spritepanel.h"
#include "app/paint/paintcommands.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/window/editorregistry.h"
#include "family/assets/spritefile.h"
#include "support/testtable.h"

#include <zorv/editors/palette/colorpalette.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/text/zorvtranslator.h>

#include <QAction>
#include <QRandomGenerator>

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
    void cleanup() { m.reset(); }

    void publishesItsTools_data();
    void publishesItsTools();
    void asksBeforeItDeletes_data();
    void asksBeforeItDeletes();
    void takesTheCanvasInFirst();
    void outlivesItsQuestions();
    void followsFrameAndPalette();
    void lendsTheOrganizer();
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
    row("spr_delete", 123);
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

/// Whatever is done, in any order, undo leads back to the first bytes.
void TestSpriteActions::canAllBeTakenBack()
{
    const QByteArray first = written();
    QRandomGenerator random(18);
    m->host.setOption(QStringLiteral("confirm_delete"), false);
    const char* const actions[] = {"spr_duplicate", "spr_split_channels", "spr_delete",
                                   "spr_next",      "spr_saveimg",        "spr_image_fliph"};
    show(0);
    for (int i = 0; i < 60; ++i) {
        QCoreApplication::processEvents();
        QAction* action = m->action(actions[random.bounded(6)]);
        m->dialogs.buttonAnswers = {Dialogs::Yes, Dialogs::Yes};
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
