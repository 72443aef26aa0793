// The steps of docs/first-character.md, in their order, by the keys and buttons that it names.

#include "app/game/newdialog.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stagerenderer.h"
#include "app/start/startpage.h"
#include "family/assets/spritecollection.h"
#include "family/check/check.h"
#include "family/nodes/animationnode.h"
#include "operations/create/shippedfiles.h"
#include "rules/gamereader.h"
#include "rules/tick.h"
#include "script/script.h"
#include "support/gltest.h"
#include "windowfixture.h"

#include <zorv/graphics/graphicwork/graphicsworkspace.h>
#include <zorv/graphics/renderwidget.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

class TestFirstLesson : public QObject
{
    Q_OBJECT

private slots:
    void leadsToAFighter();

private:
    void makeGame();
    void openPunch();
    void lengthenPunch();
    void changeTexts();
    void addDrawings();
    void removeCostumes();
    Zorv::Sprites* sprites() const { return m->window->currentProject()->sprites(); }
    QString nameOf(const QString& file) const { return m_folder.filePath("duels/" + file); }
    int lifeBehind(const QString& script) const;

    QTemporaryDir m_folder;
    std::unique_ptr<WindowFixture> m;
};

void TestFirstLesson::makeGame()
{
    QTimer::singleShot(0, [this] {
        auto* dialog = qobject_cast<App::NewDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        const QMap<QByteArray, QString> typed{
            {"name", "duels"}, {"folder", m_folder.path()}, {"character", "ryn"}};
        for (auto field = typed.begin(); field != typed.end(); ++field) {
            auto* edit = dialog->findChild<QLineEdit*>(QLatin1String(field.key()));
            edit->selectAll();
            QTest::keyClicks(edit, field.value());
        }
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QTest::mouseClick(m->window->findChild<QAbstractButton*>("start_new_game"), Qt::LeftButton);
    QCOMPARE(m->document()->fileName(), nameOf("characters/ryn/ryn.character"));
    QCOMPARE(m->problemsShown(), QString("No problems"));
}

void TestFirstLesson::openPunch()
{
    App::GameTree* tree = m->window->gameTree();
    const QModelIndex row = tree->indexOf(nameOf("characters/ryn/attacks.anim"));
    tree->scrollTo(row);
    const QPoint place = tree->visualRect(row).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
    QTRY_COMPARE(m->document()->fileName(), nameOf("characters/ryn/attacks.anim"));
    m->goTo(m->document()->animations()->animation(0)->firstLine());
    QTRY_COMPARE(m->window->stage()->editor()->frameIndex(), 0);
    m->action("anim_next_frame")->trigger();
    QTRY_COMPARE(m->window->stage()->editor()->frameIndex(), 1);
}

/// A click on the red box, and keys.
void TestFirstLesson::lengthenPunch()
{
    QVERIFY(m->document()->text().contains("attack 12,-86, 52,-68"));
    App::StageRenderer* stage = m->window->stage()->renderer();
    QWidget* view = m->window->stage()->workspace()->renderWidget();
    const QPoint place = stage->origin() + (QPointF(48, -77) * double(stage->zoom())).toPoint();
    QTest::mouseClick(view, Qt::LeftButton, {}, place);
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(view, Qt::Key_Right);
    }
    QTRY_VERIFY(m->document()->text().contains("attack 18,-86, 58,-68"));
    m->action("undo")->trigger();
    QVERIFY(!m->document()->text().contains("attack 18,-86, 58,-68"));
    m->action("redo")->trigger();
}

void TestFirstLesson::changeTexts()
{
    const QString line = "frame 200,0  delay 4";
    const int at = m->document()->find(line).block().blockNumber();
    m->goTo(at, line.size() - 1, 1);
    m->type("2");
    QVERIFY(m->window->openFile(nameOf("characters/ryn/moves.code")));
    const QTextCursor damage = m->document()->find("damage = 30, 3");
    m->goTo(damage.block().blockNumber(), 0, damage.block().length() - 1);
    m->type("damage = 60, 6");
    m->action("save_all")->trigger();
    QVERIFY(m->window->session()->modifiedFiles().isEmpty());
}

/// All thirty, in place of figures.
void TestFirstLesson::addDrawings()
{
    QStringList files;
    const QDir drawings(QFileInfo(Operations::sampleGame()).absolutePath() + "/drawings");
    for (const QString& name : drawings.entryList({"*.png"})) {
        files.append(drawings.filePath(name));
    }
    QCOMPARE(files.size(), 30);
    m->dialogs.fileAnswers = {files};
    bool isSeen = false;
    QTimer timer;
    timer.callOnTimeout([&isSeen] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (isSeen || !dialog || dialog->objectName() != "images_dialog") {
            return;
        }
        isSeen = true;
        const QList<QComboBox*> choices = dialog->findChildren<QComboBox*>();
        for (QComboBox* choice : choices) {
            choice->setCurrentText("Replace the sprite there");
            choice->setCurrentText("Middle of the bottom edge");
        }
        auto* add = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QTRY_VERIFY(add->isEnabled());
        QTest::mouseClick(add, Qt::LeftButton);
    });
    timer.start(5);
    m->action("spr_add")->trigger();
    QVERIFY(isSeen);
    const Zorv::Sprite* stance = sprites()->sprite(sprites()->find(0, "10,0"));
    QCOMPARE(stance->image().convertToFormat(QImage::Format_RGB32),
             QImage(drawings.filePath("maren-10-0.png")).convertToFormat(QImage::Format_RGB32));
    QCOMPARE(stance->axis(), QPoint(stance->size().width() / 2, stance->size().height() - 1));
}

void TestFirstLesson::removeCostumes()
{
    QVERIFY(m->window->openFile(nameOf("characters/ryn/ryn.character")));
    const QString text = m->document()->text();
    QTextCursor cursor = m->edit()->textCursor();
    cursor.setPosition(text.indexOf("[palette"));
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    m->edit()->setTextCursor(cursor);
    QTest::keyClick(m->edit(), Qt::Key_Delete);
    m->action("save_all")->trigger();
    QVERIFY(m->window->session()->modifiedFiles().isEmpty());
}

/// What the twin has left.
int TestFirstLesson::lifeBehind(const QString& text) const
{
    Rules::Game game;
    QString error;
    Rules::GameReader reader(nameOf({}));
    for (Rules::FighterData& fighter : game.fighters) {
        reader.readFighter(nameOf("characters/ryn/ryn.character"), &fighter, &error);
    }
    reader.readStage(nameOf("stages/training-room/training-room.stage"), &game.stage, &error);
    Rules::completeGame(&game);
    game.hasIntro = false;
    Player::Script script;
    script.read(text, &error);
    Rules::State state = Rules::firstState(game);
    script.run(game, &state, [](const Rules::State&) { return true; });
    return error.isEmpty() ? state.fighters[1].life : -1;
}

void TestFirstLesson::leadsToAFighter()
{
    m = std::make_unique<WindowFixture>();
    m->window->resize(1280, 800);
    makeGame();
    const QString punch = "places -25 25\n1 L -\n20 - -";
    QCOMPARE(lifeBehind(punch), 970);
    openPunch();
    QVERIFY2(m->window->stage()->workspace()->renderWidget(), "no GL");
    lengthenPunch();
    changeTexts();
    QCOMPARE(m->problemsShown(), QString("No problems"));
    QCOMPARE(lifeBehind(punch), 940);
    QString error;
    QCOMPARE(Family::checkGame(nameOf({}), &error).size(), 0);
    const int count = int(sprites()->count());
    addDrawings();
    QCOMPARE(int(sprites()->count()), count);
    removeCostumes();
    QCOMPARE(m->problemsShown(), QString("No problems"));
    QCOMPARE(lifeBehind(punch), 940);
}

ZORV_GL_TEST_MAIN(TestFirstLesson)
#include "tst_firstlesson.moc"
