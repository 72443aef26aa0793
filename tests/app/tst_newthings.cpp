// New games, characters, stages and files, and the page that stands there without a game: by the
// dialogs and buttons that a person uses.

#include "app/game/newdialog.h"
#include "app/session/recentfolders.h"
#include "app/start/startpage.h"
#include "family/check/check.h"
#include "family/project/familyparentproject.h"
#include "support/testtable.h"
#include "windowfixture.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>

namespace {

/// Types into the fields of the dialog that an action opens, and looks at it before it is left.
void inDialog(QAction* action, const QMap<QByteArray, QString>& typed,
              const std::function<void(QDialog*)>& leave)
{
    bool isSeen = false;
    QTimer timer;
    timer.callOnTimeout([&] {
        auto* dialog = qobject_cast<App::NewDialog*>(QApplication::activeModalWidget());
        if (!dialog || isSeen) {
            return;
        }
        isSeen = true;
        for (auto field = typed.begin(); field != typed.end(); ++field) {
            auto* edit = dialog->findChild<QLineEdit*>(QLatin1String(field.key()));
            edit->selectAll();
            QTest::keyClicks(edit, field.value());
        }
        leave(dialog);
    });
    timer.start(5);
    action->trigger();
    QVERIFY(isSeen);
}

void pressReturn(QDialog* dialog)
{
    QTest::keyClick(dialog, Qt::Key_Return);
}

QAbstractButton* okOf(const QDialog* dialog)
{
    return dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

}  // namespace

class TestNewThings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void gameIsMadeAndOpened();
    void projectsAreMadeInTheGame();
    void filesAreNamed_data();
    void filesAreNamed();
    void badNamesAreTold_data();
    void badNamesAreTold();
    void startPageLeadsOn();
    void sampleIsACopy();
    void lessonIsShown();

private:
    WindowFixture& w() { return *m_fixture; }
    QString path(const QString& name) const { return m_dir->filePath(name); }
    void makeGame();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestNewThings::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(m_dir->path()));
    m_fixture = std::make_unique<WindowFixture>();
}

void TestNewThings::cleanup()
{
    m_fixture.reset();
}

void TestNewThings::makeGame()
{
    inDialog(w().action("new_game"),
             {{"name", "duels"}, {"folder", m_dir->path()}, {"character", "ryn"}}, pressReturn);
}

void TestNewThings::gameIsMadeAndOpened()
{
    makeGame();
    QCOMPARE(w().window->session()->folder(), path("duels/"));
    QCOMPARE(w().document()->fileName(), path("duels/characters/ryn/ryn.character"));
    QCOMPARE(w().problemsShown(), QString("No problems"));
    QCOMPARE(App::RecentFolders::list(), QStringList{path("duels")});
    QVERIFY(w().window->currentProject()->sprites()->count() > 30);
}

void TestNewThings::projectsAreMadeInTheGame()
{
    makeGame();
    inDialog(w().action("new_character"), {{"name", "oda"}}, pressReturn);
    QCOMPARE(w().document()->fileName(), path("duels/characters/oda/oda.character"));
    inDialog(w().action("new_stage"), {}, pressReturn);
    QCOMPARE(w().document()->fileName(),
             path("duels/stages/training-room-2/training-room-2.stage"));
    QVERIFY(w().window->gameTree()->indexOf(w().document()->fileName()).isValid());
    QCOMPARE(w().window->session()->projects().size(), 3);
    QCOMPARE(w().problemsShown(), QString("No problems"));
}

void TestNewThings::filesAreNamed_data()
{
    columns<QString, QString, QString>("suffix", "line", "before");
    const auto add = [](const char* name, const char* suffix, const char* line,
                        const char* before = "") {
        row<QString, QString, QString>(name, suffix, line, before);
    };
    add("code", ".code", "code       = \"more.code\"");
    add("animations", ".anim", "animations = \"more.anim\"");
    add("commands", ".commands", "commands   = \"more.commands\"");
    add("sounds", ".sounds", "sounds     = \"more.sounds\"");
    add("there is one", ".sprites", "");
    add("palette", ".act", "");
    add("no group", ".code", "code = \"more.code\"", "[info]\nname = \"a\"");
    add("empty group", ".code", "code = \"more.code\"", "[files]\n[info]");
}

void TestNewThings::filesAreNamed()
{
    const auto [suffix, line, before] = fetched<QString, QString, QString>();
    makeGame();
    Family::FamilyDocument* main = w().document();
    if (!before.isEmpty()) {
        main->setPlainText(before);
    }
    const QString old = main->text();
    inDialog(w().action("new_file"), {{"name", "more"}}, [&suffix](QDialog* dialog) {
        auto* kinds = dialog->findChild<QComboBox*>("suffix");
        kinds->setCurrentIndex(kinds->findData(suffix));
        pressReturn(dialog);
    });
    QVERIFY(QFileInfo::exists(path("duels/characters/ryn/more" + suffix)));
    if (line.isEmpty()) {
        QCOMPARE(main->text(), old);
        return;
    }
    QVERIFY2(main->text().split('\n').contains(line), qPrintable(main->text()));
    main->undo();
    QCOMPARE(main->text(), old);
}

void TestNewThings::badNamesAreTold_data()
{
    columns<QString>("name");
    row<QString>("slash", "a/b");
    row<QString>("hidden", ".a");
    row<QString>("taken", "ryn");
    row<QString>("long", QString(201, 'a'));
}

void TestNewThings::badNamesAreTold()
{
    const auto [name] = fetched<QString>();
    makeGame();
    const QString shown = w().document()->fileName();
    inDialog(w().action("new_character"), {{"name", name}}, [](QDialog* dialog) {
        QVERIFY(!okOf(dialog)->isEnabled());
        QVERIFY(!dialog->findChild<QLabel*>("fault")->text().isEmpty());
        QVERIFY(dialog->findChild<QLabel*>("fault")->isVisible());
        auto* field = dialog->findChild<QLineEdit*>("name");
        field->selectAll();
        QTest::keyClicks(field, "fine");
        QVERIFY(okOf(dialog)->isEnabled());
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QCOMPARE(w().document()->fileName(), shown);
}

void TestNewThings::startPageLeadsOn()
{
    auto* page = w().window->findChild<App::StartPage*>();
    QVERIFY(page->isVisible());
    QVERIFY(w().window->menuByName("new"));
    makeGame();
    QVERIFY(!page->isVisible());
    w().action("close_folder")->trigger();
    QTRY_VERIFY(page->isVisible());
    // By keys alone: from the first button on to the game that was closed.
    w().window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(w().window.get()));
    auto* first = page->findChild<QAbstractButton*>("start_new_game");
    first->setFocus();
    for (int i = 0; i < 4; ++i) {
        QVERIFY(!QApplication::focusWidget()->accessibleName().isEmpty());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    }
    QCOMPARE(QApplication::focusWidget()->accessibleName(), QString("duels"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_COMPARE(w().window->session()->folder(), path("duels/"));
}

void TestNewThings::sampleIsACopy()
{
    QVERIFY(QDir().mkdir(path("Documents")));
    auto* button = w().window->findChild<QAbstractButton*>("start_open_sample");
    QTest::mouseClick(button, Qt::LeftButton);
    const QString copy = path("Documents/zorv-arena");
    QCOMPARE(w().window->session()->folder(), copy + '/');
    const QByteArray changed = "# changed\n";
    QVERIFY(writeFile(copy + "/shared/common.code", changed));
    w().action("open_sample")->trigger();
    QCOMPARE(readFile(copy + "/shared/common.code"), changed);
    QString error;
    QVERIFY(!Family::checkGame(copy + "/stages/quay", &error).size());
}

void TestNewThings::lessonIsShown()
{
    QTest::mouseClick(w().window->findChild<QAbstractButton*>("start_first_lesson"),
                      Qt::LeftButton);
    auto* text = w().window->findChild<QTextBrowser*>();
    QVERIFY(text && text->isVisible());
    QVERIFY(text->toPlainText().contains("character"));
    QCOMPARE(w().dialogs.count("error"), 0);
}

QTEST_MAIN(TestNewThings)
#include "tst_newthings.moc"
