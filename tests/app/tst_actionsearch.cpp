#include "windowfixture.h"

#include "app/actions/actionlist.h"
#include "app/actions/actionregistry.h"
#include "app/actions/actionsearch.h"
#include "app/actions/keysdialog.h"
#include "app/actions/keysheet.h"
#include "app/actions/wordmatch.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeView>

using App::ActionList;
using App::ActionSearch;
using App::KeysDialog;

/// Actions that are found by typing, and their keys on paper.
class TestActionSearch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void matches_data();
    void matches();
    void prefersTheBetter();
    void listsWhatCanBeReached();
    void runsWhatIsTyped();
    void skipsWhatIsDisabled();
    void showsTheKeys();
    void savesTheKeys_data();
    void savesTheKeys();

private:
    template <typename Dialog>
    Dialog* open(const char* action)
    {
        m->action(action)->trigger();
        auto* dialog = m->window->findChild<Dialog*>();
        return dialog && QTest::qWaitForWindowActive(dialog) ? dialog : nullptr;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
};

void TestActionSearch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("zorv.ini")));
}

void TestActionSearch::matches_data()
{
    columns<QString, bool>("typed", "fits");
    row("nothing", "", true);
    row("word", "save", true);
    row("beginnings", "sa al", true);
    row("any order, any case", "ALL sav", true);
    row("with the menu", "file save", true);
    row("inside a word", "ave", true);
    row("letters", "sall", true);
    row("letters in another order", "lsa", false);
    row("one word that does not fit", "save undo", false);
    row("signs alone", " - ", true);
    row("other letters", QString::fromUtf8("Über"), false);
}

void TestActionSearch::matches()
{
    const auto [typed, fits] = fetched<QString, bool>();
    QCOMPARE(App::matchWords(typed, QStringLiteral("Save all"), QStringLiteral("File")) >= 0, fits);
    QVERIFY(App::matchWords(QString::fromUtf8("über"), QString::fromUtf8("Über Zorv"), {}) > 0);
}

void TestActionSearch::prefersTheBetter()
{
    // From the best to the worst for "run".
    const QList<QPair<QString, QString>> actions{{"Run in engine", "File"},
                                                 {"Again run", "File"},
                                                 {"Open", "Run"},
                                                 {"Overrun", "File"},
                                                 {"Redo unsaved", "None"}};
    for (int i = 1; i < actions.size(); ++i) {
        const auto score = [&](int row) {
            return App::matchWords(QStringLiteral("run"), actions[row].first, actions[row].second);
        };
        QVERIFY2(score(i - 1) > score(i), qPrintable(actions[i].first));
    }
}

void TestActionSearch::listsWhatCanBeReached()
{
    ActionList list(m->window->registry());
    const QAbstractItemModelTester tester(&list);
    const auto has = [&list](const QString& name) {
        for (int row = 0; row < list.rowCount(); ++row) {
            if (list.name(row) == name) {
                return true;
            }
        }
        return false;
    };
    QVERIFY(has(QStringLiteral("open_folder")) && has(QStringLiteral("show_nodes")));
    list.setFilter(QStringLiteral("undo"));
    QCOMPARE(list.name(0), QStringLiteral("undo"));
    QVERIFY(!has(QStringLiteral("open_folder")));
    list.setFilter({});
    // What comes and goes while the list is there.
    auto* action = m->host.createAction(nullptr, QStringLiteral("snd_thing"), nullptr, 0, "Ctrl+9",
                                        nullptr, nullptr, nullptr, nullptr);
    m->host.setMenuEnabled("snd", "sounds", true);
    list.setOnlyWithKeys(true);
    QVERIFY(has(QStringLiteral("snd_thing")) && !has(QStringLiteral("show_nodes")));
    m->host.setMenuEnabled("snd", "sounds", false);
    list.setFilter(QStringLiteral("thing"));
    QVERIFY(!has(QStringLiteral("snd_thing")));
    m->host.setMenuEnabled("snd", "sounds", true);
    list.setFilter({});
    delete action;
    QVERIFY(!has(QStringLiteral("snd_thing")));
}

void TestActionSearch::runsWhatIsTyped()
{
    QTest::keyClick(m->window.get(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QPointer<ActionSearch> dialog = m->window->findChild<ActionSearch*>();
    QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
    auto* field = dialog->findChild<QLineEdit*>();
    QTRY_COMPARE(QApplication::focusWidget(), field);
    QSignalSpy shown(m->action("show_nodes"), &QAction::triggered);
    QTest::keyClicks(field, QStringLiteral("view nod"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(shown.count(), 1);
    QTRY_VERIFY(!dialog);
}

void TestActionSearch::skipsWhatIsDisabled()
{
    auto* dialog = open<ActionSearch>("search_actions");
    QVERIFY(dialog);
    auto* field = dialog->findChild<QLineEdit*>();
    auto* view = dialog->findChild<QTreeView*>();
    QSignalSpy saved(m->action("save"), &QAction::triggered);
    QVERIFY(!m->action("save")->isEnabled());
    const auto name = [&] {
        return static_cast<ActionList*>(view->model())->name(view->currentIndex().row());
    };
    QTest::keyClicks(field, QStringLiteral("s"));
    const QString first = name();
    QVERIFY(m->window->registry()->action(first)->isEnabled());
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(field, i < 3 ? Qt::Key_Down : Qt::Key_Up);
        QVERIFY(m->window->registry()->action(name())->isEnabled());
    }
    // With nothing that could run, return does nothing.
    field->clear();
    QTest::keyClicks(field, QStringLiteral("no such action at all"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    QTRY_VERIFY(!m->window->findChild<ActionSearch*>());
    QCOMPARE(saved.count(), 0);
}

void TestActionSearch::showsTheKeys()
{
    m->window->registry()->setShortcut(QStringLiteral("about"), QKeySequence("Ctrl+Alt+A"));
    auto* dialog = open<KeysDialog>("keys");
    QVERIFY(dialog);
    const auto* list = dialog->findChild<QTreeView*>()->model();
    const int all = list->rowCount();
    QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("about"));
    QVERIFY(list->rowCount() < all);
    const QString keys = list->index(0, ActionList::KeyColumn).data().toString();
    QCOMPARE(keys, QKeySequence("Ctrl+Alt+A").toString(QKeySequence::NativeText));
    QCOMPARE(list->index(0, ActionList::MenuColumn).data().toString(), QStringLiteral("Help"));
}

void TestActionSearch::savesTheKeys_data()
{
    columns<QString, QString, QByteArray>("button", "extension", "start");
    row("PDF", "save_pdf", ".pdf", QByteArray("%PDF-"));
    row("HTML", "save_html", ".html", QByteArray("<!DOCTYPE html>"));
}

void TestActionSearch::savesTheKeys()
{
    const auto [button, extension, start] = fetched<QString, QString, QByteArray>();
    auto* action = new QAction(QStringLiteral("<b> & more"), m->window.get());
    m->window->registry()->add(action, {QStringLiteral("odd"), {}, {}, {QKeySequence("Ctrl+<")}});
    auto* dialog = open<KeysDialog>("keys");
    QVERIFY(dialog);
    const QString name = m_folder->filePath(QStringLiteral("my keys"));
    m->dialogs.fileAnswers = {{name}, {name + extension + "/none" + extension}, {}};
    auto* pressed = dialog->findChild<QPushButton*>(button);
    QTest::mouseClick(pressed, Qt::LeftButton);
    const QByteArray data = readFile(name + extension);
    QVERIFY(data.startsWith(start));
    if (extension == QLatin1String(".html")) {
        QVERIFY(data.contains("<h2>File</h2>") && data.contains("<td>Save</td><td>Ctrl+S</td>"));
        QVERIFY(data.contains("&lt;b&gt; &amp; more") || data.contains("&lt;b&gt;  more"));
    }
    // A file that cannot be made is told; giving up is not.
    QTest::mouseClick(pressed, Qt::LeftButton);
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 1);
    QTest::mouseClick(pressed, Qt::LeftButton);
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 1);
}

QTEST_MAIN(TestActionSearch)
#include "tst_actionsearch.moc"
