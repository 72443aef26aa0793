#include "spritefixture.h"

#include "app/animations/animationcommands.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "support/testtable.h"

#include <zorv/text/zorvtranslator.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTimer>

/// What the editor of sprites does to the sprites of a file, in the real window.
class TestSpriteActions : public SpriteTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }
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
    void keepsTheSwitchOfPalettes();
    void canAllBeTakenBack();
};

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
    QTimer accepting;  // the dialog of images, once it has read them
    connect(&accepting, &QTimer::timeout, this, [] {
        if (const QWidget* dialog = QApplication::activeModalWidget()) {
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        }
    });
    accepting.start(5);
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
