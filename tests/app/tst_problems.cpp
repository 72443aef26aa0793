#include "app/messages/quickfixes.h"
#include "family/check/check.h"
#include "support/folders.h"
#include "support/randomtext.h"
#include "windowfixture.h"

#include "family/assets/spritecollection.h"
#include "family/nodes/animationnode.h"
#include "operations/check/backgroundcheck.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

using namespace App;
using Family::FamilyDocument;
using Family::FamilyProject;
using Family::Problem;

namespace {

constexpr quint32 Seed = 20261122;
constexpr int Edits = 200;

const RandomText randomText({"[files]", "code = \"moves.code\"", "sprites = \"iwao.sprites\"",
                             "[constants]", "life = full", "[move jab]", "animation = 10",
                             "animation nowhere", "animation 10", "frame 0,0 loop", "frame 7,7",
                             "[.sound]", "hit = 1,0", "attack 0,0, 9,9", "# nothing", ""},
                            "[]=\"0a\n# ");

QString lineOf(const Problem& problem)
{
    return Family::problemLine(problem);
}

}  // namespace

/// What is wrong with a game, in the list, the tree and the status bar.
class TestProblems : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void areThoseOfTheCheck();
    void ofUnsavedTextsAndNewProjects();
    void leadToFilesThatAreNotOpen();
    void areSeenInTheTree();
    void noneMeansThatTheCheckFindsNone();
    void removalTellsWhoUsesIt();
    void fixByKey();
    void fixFromTheMessage();
    void fixOfSprites();

private:
    void open(const QString& game);
    QStringList shown() const;
    QStringList expected() const;
    QList<FamilyDocument*> documents() const;
    MainWindow* window() const { return m->window.get(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
    QString m_root;
};

void TestProblems::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("settings.ini")));
    m_root = QFileInfo(m_folder->path()).canonicalFilePath() + QStringLiteral("/game");
}

void TestProblems::cleanup()
{
    m.reset();
}

void TestProblems::open(const QString& game)
{
    QVERIFY(copyFolder(QStringLiteral(SAMPLES "/") + game, m_root));
    QVERIFY(window()->openPath(m_root));
    QVERIFY(window()->problems()->settle());
}

QStringList TestProblems::shown() const
{
    QStringList lines;
    const ProblemModel* model = window()->problems()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        lines.append(lineOf(*model->problemAt(row)));
    }
    return lines;
}

QStringList TestProblems::expected() const
{
    QString error;
    QStringList lines;
    for (const Problem& problem : Family::checkGame(m_root, &error)) {
        lines.append(lineOf(problem));
    }
    return lines;
}

QList<FamilyDocument*> TestProblems::documents() const
{
    QList<FamilyDocument*> all;
    for (const FamilyProject* project : window()->session()->projects()) {
        all += project->documents();
    }
    return all;
}

void TestProblems::areThoseOfTheCheck()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    open(QStringLiteral("broken"));
    QCOMPARE(shown(), expected());
    QVERIFY(!shown().isEmpty());
    // One project stays closed.
    for (const char* name : {"/characters/maren/maren.character", "/characters/iwao/iwao.character",
                             "/stages/pier/pier.stage"}) {
        QVERIFY(window()->openFile(m_root + QLatin1String(name)));
    }
    for (int i = 0; i < Edits; ++i) {
        const QList<FamilyDocument*> all = documents();
        FamilyDocument* document = all.at(random.bounded(all.size()));
        randomText.edit(random, *document);
        QVERIFY(document->toFile(*document->archive(), document->fileName(), false));
        QVERIFY(window()->problems()->settle());
        const QStringList wanted = expected();
        QVERIFY2(shown() == wanted, qPrintable(QStringLiteral("edit %1 of %2\n%3\n--\n%4")
                                                   .arg(QString::number(i), document->fileName(),
                                                        shown().join('\n'), wanted.join('\n'))));
    }
}

void TestProblems::ofUnsavedTextsAndNewProjects()
{
    open(QStringLiteral("arena"));
    QVERIFY(window()->openFile(m_root + QStringLiteral("/characters/maren/maren.character")));
    QVERIFY(shown().isEmpty());
    m->goTo(0, 0);
    m->type(QStringLiteral("x"));
    QTRY_VERIFY(!shown().isEmpty());
    QVERIFY(expected().isEmpty());
    m->document()->undo();
    QTRY_VERIFY(shown().isEmpty());
    FamilyProject* fresh = window()->session()->newProject(Family::FileKind::Stage);
    QTextCursor(fresh->mainDocument()).insertText(QStringLiteral("nonsense\n"));
    QVERIFY(window()->problems()->settle());
    QCOMPARE(shown().size(), 1);
    const QModelIndex row = window()->messagePanel()->model()->index(0, 0);
    doubleClickRow(window()->messagePanel(), row);
    QCOMPARE(m->document(), fresh->mainDocument());
    window()->session()->closeProject(fresh);
    QTRY_VERIFY(shown().isEmpty());
}

void TestProblems::leadToFilesThatAreNotOpen()
{
    open(QStringLiteral("broken"));
    QVERIFY(window()->session()->projects().isEmpty());
    const ProblemModel* model = window()->problems()->model();
    const int row = model->firstRowOf(QStringLiteral("characters/maren/basics.anim"));
    const Problem problem = *model->problemAt(row + 1);
    doubleClickRow(window()->messagePanel(), model->index(row + 1));
    QCOMPARE(m->document()->fileName(), m_root + '/' + problem.file);
    QCOMPARE(m->place().line, problem.line - 1);
    QCOMPARE(m->place().column, problem.column - 1);
    QVERIFY(m->edit()->hasFocus());
}

void TestProblems::areSeenInTheTree()
{
    open(QStringLiteral("arena"));
    const GameTree* tree = window()->gameTree();
    const auto told = [tree](const QString& path) {
        return tree->indexOf(path).data(Qt::AccessibleDescriptionRole).toString();
    };
    const QString folder = m_root + QStringLiteral("/characters");
    QCOMPARE(told(folder), QString());
    QVERIFY(writeFile(folder + QStringLiteral("/maren/basics.anim"), "nonsense\n"));
    QTRY_VERIFY_WITH_TIMEOUT(told(folder).contains(QStringLiteral("error")), 30000);
    QVERIFY(tree->indexOf(folder).data(Qt::ToolTipRole).toString().contains(told(folder)));
    QCOMPARE(told(m_root + QStringLiteral("/stages")), QString());
    QVERIFY(window()->openFile(folder + QStringLiteral("/maren/maren.character")));
    QTRY_VERIFY(told(folder + QStringLiteral("/maren/basics.anim"))
                    .contains(QStringLiteral("1 error, 0 warnings")));
}

void TestProblems::noneMeansThatTheCheckFindsNone()
{
    open(QStringLiteral("arena"));
    QCOMPARE(m->problemsShown(), QStringLiteral("No problems"));
    const QString file = m_root + QStringLiteral("/stages/quay/quay.sprites");
    QVERIFY(QFile::rename(file, file + QStringLiteral(".away")));
    window()->problems()->gameChanged();
    QCOMPARE(m->problemsShown(), QStringLiteral("1 error, 0 warnings"));
    QCOMPARE(shown(), expected());
}

/// The first animation of the file is that of a move; a text that is not saved counts.
void TestProblems::removalTellsWhoUsesIt()
{
    open(QStringLiteral("arena"));
    QVERIFY(window()->openFile(m_root + QStringLiteral("/characters/maren/maren.character")));
    QVERIFY(window()->openFile(m_root + QStringLiteral("/characters/maren/attacks.anim")));
    const auto* animations = m->document()->animations();
    const QString identifier = animations->animation(0)->identifier();
    const int count = animations->count();
    m->goTo(animations->animation(0)->firstLine());
    const auto remove = [this] { pressIn(window()->animations()->list(), Qt::Key_Delete); };
    remove();
    QCOMPARE(m->dialogs.count(QStringLiteral("question")), 1);
    const QString text = m->dialogs.shown.last().text;
    QVERIFY2(text.contains(QRegularExpression(
                 QStringLiteral("characters/maren/\\w+\\.\\w+, line \\d+: %1\n").arg(identifier))),
             qPrintable(text));
    QCOMPARE(animations->count(), count);
    // What has taken the place of the animation behind the question stays.
    m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    m->dialogs.whileOpen = [this](const auto&) {
        QTextCursor(m->document()).insertText(QStringLiteral("animation 98765\nframe 0,0 loop\n"));
    };
    remove();
    QCOMPARE(animations->count(), count + 1);
    m->dialogs.whileOpen = nullptr;
    m->document()->undo();
    m->goTo(animations->animation(0)->firstLine());
    // Who has switched the check off is told as well.
    for (const bool isOn : {false, true}) {
        m->host.setOption(QStringLiteral("highlightCode"), isOn);
        window()->reconfig();
        remove();
        QCOMPARE(m->dialogs.count(QStringLiteral("question")), isOn ? 4 : 3);
        QCOMPARE(animations->count(), count);
    }
    // The tool of the editor asks whether, and then tells who uses it.
    m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes, Zorv::Dialogs::No};
    QTRY_VERIFY(m->action("anim_delete")->isEnabled());
    m->action("anim_delete")->trigger();
    QVERIFY(m->dialogs.buttonAnswers.isEmpty());
    QCOMPARE(m->dialogs.shown.last().text, text);
    QCOMPARE(animations->count(), count);
    m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    remove();
    QCOMPARE(animations->count(), count - 1);
    QVERIFY(window()->problems()->settle());
    QVERIFY(shown().filter(identifier).size() > 0);
}

/// The menu that is open, and of which the first row is chosen by Return.
static void chooseFirst()
{
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

void TestProblems::fixByKey()
{
    open("arena");
    const QString file = m_root + "/characters/maren/moves.code";
    QVERIFY(window()->openFile(file));
    FamilyDocument* document = m->document();
    const QString before = document->text();
    Zorv::CodeEditor* editor = window()->code()->editor();
    QTextCursor cursor = document->find("cancels");
    cursor.insertText("cancel");
    editor->setTextCursor(cursor);
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Return, Qt::AltModifier);
    chooseFirst();
    QCOMPARE(document->text(), before);
    document->undo();
    QVERIFY(document->text() != before);
    QVERIFY(window()->problems()->settle());
    QCOMPARE(window()->problems()->model()->rowCount(), 1);
}

/// What is created may stand in a file that was not open.
void TestProblems::fixFromTheMessage()
{
    open("arena");
    const QString folder = m_root + "/characters/maren/";
    writeFile(folder + "moves.code", readFile(folder + "moves.code") +
                                         "[move wave]\r\nanimation = 20\r\ncommand = qqq\r\n");
    window()->problems()->check()->look();
    QVERIFY(window()->problems()->settle());
    MessagePanel* panel = window()->messagePanel();
    QTRY_COMPARE(panel->problems()->rowCount(), 1);
    panel->setCurrentIndex(panel->problems()->index(0));
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint());
    QCoreApplication::sendEvent(panel, &asked);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    chooseFirst();
    FamilyDocument* document = m->document();
    QCOMPARE(QFileInfo(document->fileName()).fileName(), QString("maren.commands"));
    QVERIFY(document->text().contains("\nqqq = \"\"\n"));
    QCOMPARE(window()->code()->editor()->textCursor().block().text(), QString("qqq = \"\""));
    document->undo();
    QVERIFY(!document->text().contains("qqq"));
}

void TestProblems::fixOfSprites()
{
    open("arena");
    const QString folder = m_root + "/characters/maren/";
    QVERIFY(window()->openFile(folder + "attacks.anim"));
    FamilyDocument* document = m->document();
    QTextCursor cursor(document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText("\nanimation 9999\nframe 9999,3 loop\n");
    QVERIFY(window()->problems()->settle());
    window()->code()->editor()->setTextCursor(document->find("frame 9999"));
    const QVector<Operations::Fix> fixes = window()->fixes()->fixesOfLine();
    QCOMPARE(fixes.size(), 1);
    Family::SpriteCollection* sprites = static_cast<FamilyProject*>(document->project())->sprites();
    const int count = int(sprites->count());
    window()->fixes()->apply(fixes.first());
    QCOMPARE(int(sprites->count()), count + 1);
    QVERIFY(window()->problems()->settle());
    QCOMPARE(shown(), QStringList());
    sprites->undo();
    QCOMPARE(int(sprites->count()), count);
}

QTEST_MAIN(TestProblems)
#include "tst_problems.moc"
