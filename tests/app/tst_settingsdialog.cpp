#include "app/settings/settingsdialog.h"

#include "app/actions/actionregistry.h"
#include "app/look/codefont.h"
#include "app/look/theme.h"
#include "app/settings/keytable.h"
#include "app/settings/settingfield.h"
#include "app/settings/settingtable.h"
#include "family/project/familyenginemodel.h"
#include "operations/engines.h"
#include "windowfixture.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

using App::SettingField;
using App::SettingRow;
using App::SettingsDialog;

/// The dialog of settings on the built window, with keys and clicks.
class TestSettingsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyRowGoesThere_data();
    void everyRowGoesThere();
    void cancelKeepsAll();
    void applyReachesTheWindow();
    void coloursAreLeftToTheTheme();
    void defaultsAreNotStored();
    void folderIsChosen();
    void enginesAreEdited();
    void keysAreEdited();
    void keysThatClashAreShown();
    void oneDialogAtATime();

private:
    template <class Widget>
    Widget* find(const char* name) const
    {
        auto* widget = m_dialog->findChild<Widget*>(QLatin1String(name));
        return widget;
    }

    QVariant option(const char* key) const
    {
        return m_fixture->host.storedOption(QLatin1String(key));
    }
    void open();
    void showPage(int row) const;
    void press(QDialogButtonBox::StandardButton button) const;
    void click(const char* name) const
    {
        // The left of a check box: it is wider than what can be clicked.
        auto* button = find<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    void writeText(const char* name, const QString& text) const;
    void selectKey(const char* action) const;
    static void chooseColour(QPushButton* button, const QColor& colour);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m_fixture;
    SettingsDialog* m_dialog = nullptr;
};

void TestSettingsDialog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_fixture = std::make_unique<WindowFixture>(m_folder->filePath("settings.ini"));
    open();
}

void TestSettingsDialog::cleanup()
{
    m_fixture.reset();
    Family::FamilyEngineModel::instance()->setEngines({});
    App::Theme::use(App::Theme::Light);
}

void TestSettingsDialog::open()
{
    // A dialog of Qt's own leaves none active.
    m_fixture->window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_fixture->window.get()));
    QTest::keyClick(m_fixture->window.get(), Qt::Key_Comma, Qt::ControlModifier);
    m_dialog = m_fixture->window->findChild<SettingsDialog*>();
    QVERIFY(m_dialog);
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
}

void TestSettingsDialog::showPage(int row) const
{
    find<QListWidget>("pages")->setCurrentRow(row);
}

void TestSettingsDialog::press(QDialogButtonBox::StandardButton button) const
{
    QPushButton* found = m_dialog->findChild<QDialogButtonBox*>()->button(button);
    QVERIFY(found->isEnabled());
    QTest::mouseClick(found, Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestSettingsDialog::writeText(const char* name, const QString& text) const
{
    QWidget* widget = find<QWidget>(name);
    auto* line = qobject_cast<QLineEdit*>(widget);
    line = line ? line : widget->findChild<QLineEdit*>(QStringLiteral("path"));
    line->selectAll();
    QTest::keyClicks(line, text);
}

void TestSettingsDialog::everyRowGoesThere_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < App::settingTable().size(); ++i) {
        QTest::newRow(App::settingTable()[i].key) << i;
    }
}

/// Another value, given to each kind of widget as a person would, is stored and read again.
void TestSettingsDialog::everyRowGoesThere()
{
    QFETCH(int, row);
    const SettingRow& setting = App::settingTable()[row];
    const QVariant before = option(setting.key);
    QVERIFY2(before.isValid(), "a setting without a default");
    for (int page = 0; page < App::settingPageTable().size(); ++page) {
        if (qstrcmp(App::settingPageTable()[page].name, setting.page) == 0) {
            showPage(page);
        }
    }
    auto* widget = find<QWidget>(setting.key);
    QVERIFY(widget->isVisible());
    QVERIFY(!widget->toolTip().isEmpty() && !widget->accessibleName().isEmpty());
    switch (setting.kind) {
    case SettingRow::Switch:
        click(setting.key);
        break;
    case SettingRow::Number:
    case SettingRow::Share:
        QTest::keyClick(widget, Qt::Key_Up);
        break;
    case SettingRow::Choice:
    case SettingRow::FontFamily:
        QTest::keyClick(widget, Qt::Key_Down);
        break;
    case SettingRow::Folder:
    case SettingRow::Picture:
        writeText(setting.key, QStringLiteral("/some/path"));
        break;
    case SettingRow::Colour:
        chooseColour(static_cast<QPushButton*>(widget), Qt::darkCyan);
        break;
    }
    press(QDialogButtonBox::Ok);
    const QVariant after = option(setting.key);
    QVERIFY(after != before);
    QCOMPARE(after.type(), before.type());
    open();
    std::unique_ptr<SettingField> field = SettingField::make(setting, nullptr);
    const std::unique_ptr<QWidget> shown(field->widget());
    field->retranslate();
    field->setValue(after);
    QCOMPARE(field->value(), after);
}

void TestSettingsDialog::cancelKeepsAll()
{
    showPage(2);
    click("backup_onload");
    QVERIFY(find<QCheckBox>("backup_onload")->isChecked());
    showPage(4);
    click("engine_add");
    showPage(5);
    selectKey("save");
    click("key_none");
    const QByteArray before = TemporaryGame().read(m_folder->filePath("settings.ini"));
    press(QDialogButtonBox::Cancel);
    m_fixture->settings.sync();
    QCOMPARE(TemporaryGame().read(m_folder->filePath("settings.ini")), before);
    QCOMPARE(option("backup_onload"), QVariant(false));
    QCOMPARE(Family::FamilyEngineModel::instance()->engineCount(), 0);
    QVERIFY(!m_fixture->action("save")->shortcut().isEmpty());
}

/// Applied settings are seen in the window behind the dialog, which stays open.
void TestSettingsDialog::applyReachesTheWindow()
{
    const TemporaryGame game;
    m_fixture->open(game, game.oda());
    QVERIFY(m_fixture->window->messagePanel()->model()->rowCount() > 0);
    const int size = m_fixture->edit()->font().pointSize();
    find<QComboBox>("theme")->setFocus();
    QTest::keyClick(find<QComboBox>("theme"), Qt::Key_End);
    showPage(1);
    find<QSpinBox>("font_size")->selectAll();
    QTest::keyClicks(find<QSpinBox>("font_size"), QStringLiteral("23"));
    QTest::keyClick(find<QSpinBox>("font_size"), Qt::Key_Tab);
    press(QDialogButtonBox::Apply);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(App::Theme::current(), App::Theme::Dark);
    QVERIFY(size != 23);
    QCOMPARE(m_fixture->edit()->font().pointSize(), 23);
    QCOMPARE(m_fixture->document()->defaultFont().pointSize(), 23);
    QVERIFY(m_fixture->edit()->palette().color(QPalette::Base).lightness() < 100);
    QVERIFY(
        !m_dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->isEnabled());
    for (const bool isOn : {false, true}) {
        click("highlightCode");
        press(QDialogButtonBox::Apply);
        QCOMPARE(option("highlightCode"), QVariant(isOn));
        QVERIFY(m_fixture->document()->next());
        QVERIFY(m_fixture->window->problems()->settle());
        QCOMPARE(m_fixture->window->messagePanel()->model()->rowCount() > 0, isOn);
    }
}

/// By the menu of a button and the dialog behind its last entry.
void TestSettingsDialog::chooseColour(QPushButton* button, const QColor& colour)
{
    QTimer::singleShot(0, button, [colour] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        dialog->setCurrentColor(colour);
        dialog->accept();
    });
    button->menu()->actions().last()->trigger();
}

/// A colour that nobody chose is that of the theme in use, also when that changes; and once
/// chosen it can be left to the theme again.
void TestSettingsDialog::coloursAreLeftToTheTheme()
{
    showPage(1);
    auto* button = find<QPushButton>("line");
    const auto shown = [this] {
        return m_fixture->host.option(QStringLiteral("line")).value<QColor>();
    };
    QCOMPARE(shown(), App::Theme::colour(App::Theme::CurrentLine));
    App::Theme::use(App::Theme::Dark);
    QCOMPARE(shown(), App::Theme::colour(App::Theme::Dark, App::Theme::CurrentLine));
    chooseColour(button, Qt::darkCyan);
    press(QDialogButtonBox::Apply);
    QCOMPARE(shown(), QColor(Qt::darkCyan));
    QCOMPARE(button->text(), QColor(Qt::darkCyan).name());
    button->menu()->actions().first()->trigger();
    press(QDialogButtonBox::Apply);
    QCOMPARE(shown(), App::Theme::colour(App::Theme::CurrentLine));
    QVERIFY(!m_fixture->settings.contains("line"));
}

void TestSettingsDialog::defaultsAreNotStored()
{
    showPage(2);
    click("backup_onload");
    press(QDialogButtonBox::Apply);
    QVERIFY(m_fixture->settings.contains("backup_onload"));
    press(QDialogButtonBox::RestoreDefaults);
    QVERIFY(!find<QCheckBox>("backup_onload")->isChecked());
    QVERIFY(m_fixture->settings.contains("backup_onload"));
    press(QDialogButtonBox::Ok);
    QVERIFY(!m_fixture->settings.contains("backup_onload"));
}

void TestSettingsDialog::folderIsChosen()
{
    showPage(2);
    const QString folder = QDir(m_folder->path()).canonicalPath();
    m_fixture->dialogs.fileAnswers.append(QStringList{folder});
    auto* field = find<QWidget>("project_path");
    QTest::mouseClick(field->findChild<QToolButton*>(), Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    QCOMPARE(option("project_path").toString(), folder);
}

void TestSettingsDialog::enginesAreEdited()
{
    showPage(4);
    auto* list = find<QListWidget>("engines");
    QVERIFY(!find<QWidget>("engine_name")->isEnabled());
    click("engine_add");
    writeText("engine_name", QStringLiteral("First"));
    QVERIFY(!find<QLabel>("engine_problem")->text().isEmpty());
    writeText("engine_executable", QCoreApplication::applicationFilePath());
    QCOMPARE(find<QLabel>("engine_problem")->text(), QString());
    writeText("engine_parameters", QStringLiteral("nothing"));
    QVERIFY(find<QLabel>("engine_problem")->text().contains(QStringLiteral("%0")));
    writeText("engine_parameters", QStringLiteral("-a %0 -b %1"));
    click("engine_add");
    writeText("engine_name", QStringLiteral("Second"));
    click("engine_up");
    QCOMPARE(list->currentRow(), 0);
    QVERIFY(!find<QWidget>("engine_up")->isEnabled());
    press(QDialogButtonBox::Ok);
    const QVector<Zorv::EngineInfo> stored = Operations::loadEngines(m_fixture->settings);
    QCOMPARE(stored.size(), 2);
    QCOMPARE(stored[0].name, QStringLiteral("Second"));
    QCOMPARE(stored[1].name, QStringLiteral("First"));
    QCOMPARE(stored[1].executable, QCoreApplication::applicationFilePath());
    QCOMPARE(stored[1].parameters, QStringLiteral("-a %0 -b %1"));
    QCOMPARE(Family::FamilyEngineModel::instance()->engineCount(), 2);

    open();
    showPage(4);
    click("engine_remove");
    press(QDialogButtonBox::Ok);
    QCOMPARE(Family::FamilyEngineModel::instance()->engineCount(), 1);
    QCOMPARE(Family::FamilyEngineModel::instance()->engine(0).name, QStringLiteral("First"));
}

void TestSettingsDialog::selectKey(const char* action) const
{
    auto* view = find<QTreeView>("keys");
    const QString text = m_fixture->window->registry()->text(QLatin1String(action));
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole,
                                                       text, 1, Qt::MatchEndsWith);
    QVERIFY(!found.isEmpty());
    view->setCurrentIndex(found.first());
}

void TestSettingsDialog::keysAreEdited()
{
    showPage(5);
    QAction* save = m_fixture->action("save");
    const QKeySequence before = save->shortcut();
    auto* key = find<QKeySequenceEdit>("key");
    selectKey("save");
    QCOMPARE(key->keySequence(), before);
    QTest::keyClick(key, Qt::Key_F9, Qt::ControlModifier);
    press(QDialogButtonBox::Apply);
    QCOMPARE(save->shortcut(), QKeySequence(Qt::CTRL + Qt::Key_F9));
    click("key_none");
    press(QDialogButtonBox::Apply);
    QVERIFY(save->shortcut().isEmpty());
    QVERIFY(m_fixture->window->registry()->isChosen("save"));
    click("key_reset");
    press(QDialogButtonBox::Ok);
    QCOMPARE(save->shortcut(), before);
    QVERIFY(!m_fixture->window->registry()->isChosen("save"));
}

void TestSettingsDialog::keysThatClashAreShown()
{
    App::KeyTable table(m_fixture->window->registry());
    const QAbstractItemModelTester tester(&table);
    const auto rowOf = [&table](const char* name) {
        for (int row = 0; row < table.rowCount(); ++row) {
            if (table.name(row) == QLatin1String(name)) {
                return row;
            }
        }
        return -1;
    };
    const int save = rowOf("save");
    const int quit = rowOf("quit");
    QVERIFY(table.clashes(save).isEmpty());
    const QKeySequence own = table.key(quit);
    table.setKey(quit, table.key(save));
    QCOMPARE(table.clashes(save), QStringList{"quit"});
    QCOMPARE(table.clashes(quit), QStringList{"save"});
    QVERIFY(!table.index(save, App::KeyTable::ClashColumn).data().toString().isEmpty());
    // One that only begins like the other is in its way too.
    table.setKey(quit, QKeySequence(QStringLiteral("Ctrl+S, Ctrl+Q")));
    QCOMPARE(table.clashes(save), QStringList{"quit"});
    table.resetKey(quit);
    QCOMPARE(table.key(quit), own);
    QVERIFY(table.clashes(save).isEmpty());
}

void TestSettingsDialog::oneDialogAtATime()
{
    m_fixture->action("settings")->trigger();
    QCOMPARE(m_fixture->window->findChildren<SettingsDialog*>().size(), 1);
}

QTEST_MAIN(TestSettingsDialog)
#include "tst_settingsdialog.moc"
