#include "app/actions/actionregistry.h"
#include "app/actions/shortcutguard.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <zorv/text/translator.h>

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>
#include <memory>

using App::ActionInfo;
using App::ActionRegistry;

namespace {

/// Texts in a language that can be changed.
class Texts final : public Zorv::Translator
{
public:
    QString language = QStringLiteral("en");

    QString trText(unsigned id) const override
    {
        return QStringLiteral("&Label %1 %2...").arg(id).arg(language);
    }
    QString trToolTip(unsigned id) const override
    {
        return QStringLiteral("Tip %1 %2").arg(id).arg(language);
    }
};

ActionInfo info(const char* name, const char* key, const QStringList& areas = {})
{
    ActionInfo made;
    made.name = QLatin1String(name);
    made.areas = areas;
    if (*key) {
        made.defaultKeys = {QKeySequence(QLatin1String(key))};
    }
    return made;
}

}  // namespace

/// Names, keys and enabled states of actions, and where their keys work.
class TestActionRegistry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keepsChosenKeys();
    void keepsKeysOfFormerNames();
    void findsClashes_data();
    void findsClashes();
    void enablesByAreaAndOwner_data();
    void enablesByAreaAndOwner();
    void followsTheLanguage();
    void forgetsTheDead();
    void keepsKeysOutOfFields_data();
    void keepsKeysOutOfFields();

private:
    QAction* add(const ActionInfo& information)
    {
        auto* action = new QAction(information.name, m_window.get());
        m_window->menuBar()->actions().first()->menu()->addAction(action);
        m_registry->add(action, information);
        return action;
    }

    std::unique_ptr<TestInterface> m_host;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<ActionRegistry> m_registry;
};

void TestActionRegistry::init()
{
    m_host = std::make_unique<TestInterface>();
    m_window = std::make_unique<QMainWindow>();
    m_window->menuBar()->addMenu(QStringLiteral("&Menu"));
    m_registry = std::make_unique<ActionRegistry>();
}

void TestActionRegistry::cleanup()
{
    m_registry.reset();
    m_window.reset();
    m_host.reset();
}

void TestActionRegistry::keepsChosenKeys()
{
    QAction* action = add(info("go", "Ctrl+G"));
    QSignalSpy changed(m_registry.get(), &ActionRegistry::changed);
    m_registry->setShortcut(QStringLiteral("go"), QKeySequence(QStringLiteral("Ctrl+Shift+J")));
    QCOMPARE(m_host->options[QStringLiteral("shortcut_go")].toString(),
             QStringLiteral("Ctrl+Shift+J"));
    QCOMPARE(changed.count(), 1);

    // The next start finds the choice, also that of no key at all.
    m_registry = std::make_unique<ActionRegistry>();
    m_registry->add(action, info("go", "Ctrl+G"));
    QCOMPARE(action->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+J")));
    m_registry->setShortcut(QStringLiteral("go"), {});
    m_registry = std::make_unique<ActionRegistry>();
    m_registry->add(action, info("go", "Ctrl+G"));
    QVERIFY(action->shortcut().isEmpty());
    QVERIFY(m_registry->isChosen(QStringLiteral("go")));

    m_registry->resetShortcut(QStringLiteral("go"));
    QCOMPARE(action->shortcut(), QKeySequence(QStringLiteral("Ctrl+G")));
    QVERIFY(!m_host->options.contains(QStringLiteral("shortcut_go")));
}

/// What a person has chosen before the action got its name.
void TestActionRegistry::keepsKeysOfFormerNames()
{
    const auto keyOf = [this] { return add(info("anim_play", "F9"))->shortcut().toString(); };
    m_host->setOption("shortcut_stage_play", "Ctrl+P");
    QCOMPARE(keyOf(), QString("Ctrl+P"));
    m_registry->setShortcut("anim_play", QKeySequence("Ctrl+Q"));
    QCOMPARE(keyOf(), QString("Ctrl+Q"));
    m_registry->resetShortcut("anim_play");
    QCOMPARE(keyOf(), QString("F9"));
}

void TestActionRegistry::findsClashes_data()
{
    columns<QString, QStringList, QString, QStringList, bool>("firstKey", "firstAreas", "secondKey",
                                                              "secondAreas", "clash");
    const QStringList code{"code"};
    const QStringList sprites{"sprites"};
    const QStringList all{"all"};
    row("one area", "Ctrl+K", code, "Ctrl+K", code, true);
    row("never together", "Ctrl+K", code, "Ctrl+K", sprites, false);
    row("everywhere", "Ctrl+K", all, "Ctrl+K", sprites, true);
    row("no areas named", "Ctrl+K", QStringList(), "Ctrl+K", sprites, true);
    row("one of several", "Ctrl+K", (code + sprites), "Ctrl+K", sprites, true);
    row("begins the other", "Ctrl+K", all, "Ctrl+K, Ctrl+C", all, true);
    row("other key", "Ctrl+K", all, "Ctrl+Shift+K", all, false);
    row("no keys", "", all, "", all, false);
}

void TestActionRegistry::findsClashes()
{
    const auto [firstKey, firstAreas, secondKey, secondAreas, clash] =
        fetched<QString, QStringList, QString, QStringList, bool>();
    add(info("first", qPrintable(firstKey), firstAreas));
    add(info("second", qPrintable(secondKey), secondAreas));
    add(info("third", "F12"));
    QCOMPARE(m_registry->clashes().size(), clash ? 1 : 0);
    if (clash) {
        QCOMPARE(m_registry->clashes().first().first, QStringLiteral("first"));
        QCOMPARE(m_registry->clashes().first().second, QStringLiteral("second"));
    }
    QCOMPARE(m_registry->clashesOf(QStringLiteral("first"), QKeySequence(firstKey)),
             clash ? QStringList("second") : QStringList());
}

void TestActionRegistry::enablesByAreaAndOwner_data()
{
    columns<QStringList, QString, bool, bool>("areas", "active", "allowed", "enabled");
    row("both", QStringList{"code"}, "code", true, true);
    row("one of two", QStringList{"sprites", "code"}, "code", true, true);
    row("area alone", QStringList{"code"}, "code", false, false);
    row("owner alone", QStringList{"code"}, "sprites", true, false);
    row("all", QStringList{"all"}, "", true, true);
    row("none named", QStringList(), "", true, true);
}

void TestActionRegistry::enablesByAreaAndOwner()
{
    const auto [areas, active, allowed, enabled] = fetched<QStringList, QString, bool, bool>();
    ActionInfo given = info("act", "", areas);
    given.waitsForOwner = true;
    const QAction* action = add(given);
    m_registry->setActiveAreas({active});
    QVERIFY(!action->isEnabled());
    m_registry->setAllowed(QStringLiteral("act"), allowed);
    QCOMPARE(action->isEnabled(), enabled);
    // What comes and goes comes back.
    m_registry->setActiveAreas({QStringLiteral("sounds")});
    m_registry->setActiveAreas({active});
    QCOMPARE(action->isEnabled(), enabled);
}

void TestActionRegistry::followsTheLanguage()
{
    Texts texts;
    ActionInfo given = info("act", "");
    given.text = {&texts, 7};
    const QAction* action = add(given);
    QCOMPARE(action->text(), QStringLiteral("&Label 7 en..."));
    texts.language = QStringLiteral("de");
    m_registry->retranslate();
    QCOMPARE(action->text(), QStringLiteral("&Label 7 de..."));
    QCOMPARE(action->toolTip(), QStringLiteral("Tip 7 de"));
    QCOMPARE(action->statusTip(), QStringLiteral("Tip 7 de"));
    QCOMPARE(m_registry->text(QStringLiteral("act")), QStringLiteral("Label 7 de"));
    QCOMPARE(m_registry->menuPath(QStringLiteral("act")), QStringLiteral("Menu"));
    QCOMPARE(App::ActionText::plain(QStringLiteral("Cut && &paste...")),
             QStringLiteral("Cut & paste"));
}

void TestActionRegistry::forgetsTheDead()
{
    QAction* old = add(info("act", "Ctrl+G"));
    QAction* replacing = add(info("act", "Ctrl+G"));
    QVERIFY(m_registry->clashes().isEmpty());
    QVERIFY(old->shortcuts().isEmpty() && !old->isVisible());
    delete old;
    QCOMPARE(m_registry->action(QStringLiteral("act")), replacing);
    delete replacing;
    QVERIFY(m_registry->names().isEmpty());
    QVERIFY(!m_registry->action(QStringLiteral("act")));
    m_registry->setActiveAreas({QStringLiteral("code")});
    QAction* last = add(info("act", "Ctrl+G"));
    m_registry.reset();
    last->setEnabled(false);
}

void TestActionRegistry::keepsKeysOutOfFields_data()
{
    columns<QString, QString, QString, bool>("widget", "name", "key", "fires");
    for (const char* key : {"Ctrl+T", "D", "Del", "Home", "F7", "Alt+Up"}) {
        const bool isTyping = QByteArray(key).size() < 5 && *key != 'F';
        QTest::addRow("tree, %s", key) << "tree"
                                       << "act" << key << true;
        QTest::addRow("text, %s", key) << "text"
                                       << "act" << key << !isTyping;
        for (const char* field : {"line", "spin", "combo", "dialog"}) {
            QTest::addRow("%s, %s", field, key) << field << "act" << key << false;
        }
    }
    row("the way out", "line", "next_panel", "F6", true);
    row("no way out of a dialog", "dialog", "next_panel", "F6", false);
    row("a field that is read only", "read only", "act", "Ctrl+T", true);
}

void TestActionRegistry::keepsKeysOutOfFields()
{
    const auto [widget, name, key, fires] = fetched<QString, QString, QString, bool>();
    auto* text = new QPlainTextEdit(QStringLiteral("text"));
    m_window->setCentralWidget(text);
    auto* dock = new QDockWidget(m_window.get());
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    auto* combo = new QComboBox;
    combo->setEditable(true);
    auto* readOnly = new QLineEdit;
    readOnly->setReadOnly(true);
    QDialog dialog(m_window.get());
    auto* inDialog = new QLineEdit(&dialog);
    const QHash<QString, QWidget*> widgets{{"text", text},
                                           {"tree", new QTreeView},
                                           {"line", new QLineEdit(QStringLiteral("ab"))},
                                           {"spin", new QSpinBox},
                                           {"combo", combo},
                                           {"read only", readOnly},
                                           {"dialog", inDialog}};
    for (QWidget* each : widgets) {
        if (each != text && each != inDialog) {
            layout->addWidget(each);
        }
    }
    dock->setWidget(panel);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    new App::ShortcutGuard(m_window.get(), m_registry.get());
    const QAction* action = add(info(qPrintable(name), qPrintable(key)));
    QSignalSpy triggered(action, &QAction::triggered);
    m_window->show();
    QWidget* top = m_window.get();
    if (widget == QLatin1String("dialog")) {
        dialog.show();
        top = &dialog;
    }
    top->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(top));
    QWidget* focus = widgets.value(widget);
    focus->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), focus);
    const int pressed = QKeySequence(key)[0];
    QTest::keyClick(focus, Qt::Key(pressed & ~int(Qt::KeyboardModifierMask)),
                    Qt::KeyboardModifiers(pressed & int(Qt::KeyboardModifierMask)));
    QCOMPARE(triggered.count(), fires ? 1 : 0);
}

QTEST_MAIN(TestActionRegistry)
#include "tst_actionregistry.moc"
