#include "windowfixture.h"

#include "app/actions/actionregistry.h"
#include "app/assets/spritepanel.h"
#include "app/paint/paintcommands.h"
#include "app/sounds/hearing.h"
#include "family/nodes/animationnode.h"

#include <zorv/editors/framework/workspace.h>
#include <zorv/editors/palette/palettewidget.h>
#include <zorv/editors/sound/audiosamplewidget.h>
#include <zorv/editors/sound/soundeditor.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>

namespace {

// A second entry in the questions that an action may ask: to discard what is unsaved, mostly.
constexpr int SecondChoice = 1;

}  // namespace

/// Every action of the window, clicked on in a copy of the sample game.
class TestEveryAction : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void hasNoClashes();
    void opensFromTheMenus();
    void opensFromTheBars();

private:
    void prepare(const QString& name = {});
    QMenu* menuOf(const QAction* action) const;
    bool click(QAction* action);

    App::ActionRegistry* registry() const { return m->window->registry(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
    QTimer m_closer;
};

void TestEveryAction::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(m_folder->path()));  // where documents are
    QVERIFY(copyFolder(QStringLiteral(SAMPLES "/arena"), m_folder->filePath("arena")));
    m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("zorv.ini")));
    m->window->resize(1200, 900);
    // Somebody gives up whatever dialog comes.
    m_closer.callOnTimeout([] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            dialog->close();
        }
    });
    m_closer.start(20);
}

void TestEveryAction::cleanup()
{
    m_closer.stop();
    m_closer.disconnect();
    m.reset();
}

/// Brings the window to where as much as possible can be done: what belongs to the canvas, on one
/// with changes and two layers.
void TestEveryAction::prepare(const QString& name)
{
    if (QWidget* words = QApplication::activePopupWidget()) {
        words->close();
    }
    QTRY_VERIFY(!QApplication::activeModalWidget() && !QApplication::activePopupWidget());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(window)) {
            dialog->close();
        }
    }
    if (m->window->session()->folder() != m_folder->filePath(QStringLiteral("arena/"))) {
        QVERIFY(m->window->openPath(m_folder->filePath(QStringLiteral("arena"))));
    }
    QVERIFY(m->window->openFile(
        m_folder->filePath(QStringLiteral("arena/characters/maren/basics.anim"))));
    if (!m->action("view_stage")->isChecked()) {
        m->action("view_stage")->trigger();
    }
    m->action("anim_stop")->trigger();
    m->edit()->setFocus();
    m->goTo(0);
    m->press(Qt::Key_Return);
    m->press(Qt::Key_Return);
    m->action("undo")->trigger();
    // The second animation: it becomes the current one of the list.
    m->goTo(m->document()->animations()->animation(1)->firstLine(), 0, 1);
    m->dialogs.choiceAnswers = {SecondChoice};
    m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};  // a sprite in use may go
    QTRY_VERIFY(m->action("save_all")->isEnabled() && m->action("anim_delete")->isEnabled() &&
                m->action("anim_next_frame")->isEnabled());
    Family::SpriteCollection* sprites = m->window->spritePanel()->sprites();
    while (name.startsWith(QLatin1String("pal")) && sprites->canUndo()) {
        sprites->undo();  // "pal_clear" leaves nothing to the others
    }
    if (name.startsWith(QLatin1String("palette_"))) {
        auto* grid = m->window->findChild<Zorv::PaletteWidget*>(QStringLiteral("pal_view"));
        grid->selection[1] = grid->selection[3] = true;
        emit grid->selectionChanged();
        QCoreApplication::processEvents();
    }
    if (name.startsWith(QLatin1String("snd_"))) {
        m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
        m->window->hearing()->showSound(1);
        auto* waveform = static_cast<Zorv::AudioSampleWidget*>(
            m->window->hearing()->editor()->workspace()->widget());
        waveform->showNow();
        waveform->setSelection({10, 100});
    }
    if (name.startsWith(QLatin1String("spr_")) || name.startsWith(QLatin1String("paint_"))) {
        m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
        m->window->paint()->showSprite(m->window->spritePanel()->sprites(), 1);
        QTRY_VERIFY(m->action("spr_layer_add")->isEnabled());
        m->action("spr_layer_add")->trigger();
    }
}

QMenu* TestEveryAction::menuOf(const QAction* action) const
{
    const QList<QWidget*> widgets = action->associatedWidgets();
    for (QWidget* widget : widgets) {
        auto* menu = qobject_cast<QMenu*>(widget);
        if (menu && !menu->title().isEmpty()) {
            return menu;
        }
    }
    return nullptr;
}

/// Opens the menu of an action, from the menu bar on, and clicks on it. True if it was triggered.
bool TestEveryAction::click(QAction* action)
{
    QVector<QMenu*> path;
    for (QMenu* menu = menuOf(action); menu; menu = menuOf(menu->menuAction())) {
        path.prepend(menu);
    }
    QMenuBar* bar = m->window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {},
                      bar->actionGeometry(path.first()->menuAction()).center());
    for (int i = 1; i < path.size() && path[i - 1]->isVisible(); ++i) {
        path[i - 1]->setActiveAction(path[i]->menuAction());  // the mouse would have to wait
    }
    if (!path.last()->isVisible()) {
        path.first()->close();
        return false;
    }
    const QSignalSpy triggered(action, &QAction::triggered);
    QTest::mouseClick(path.last(), Qt::LeftButton, {},
                      path.last()->actionGeometry(action).center());
    path.first()->close();
    return triggered.count() == 1;
}

void TestEveryAction::hasNoClashes()
{
    prepare();
    QStringList clashes;
    for (const App::KeyClash& clash : registry()->clashes()) {
        clashes.append(clash.first + ' ' + clash.second + ' ' + clash.key.toString());
    }
    QCOMPARE(clashes, QStringList());
}

void TestEveryAction::opensFromTheMenus()
{
    QStringList missed;
    QStringList names = registry()->names();
    // The end of the program comes last.
    names.removeOne(QStringLiteral("quit"));
    names.append(QStringLiteral("quit"));
    for (const QString& name : qAsConst(names)) {
        prepare(name);
        QAction* action = registry()->action(name);
        if (!action->isVisible()) {
            continue;
        }
        QVERIFY2(menuOf(action), qPrintable(name));
        if (name.endsWith(QLatin1String("_remove"))) {
            m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};  // though it is used
        }
        if (!click(action)) {
            missed.append(name);
        }
    }
    // Nothing runs that could be ended, no sprite is selected, all of them are indexed, and without
    // GL there is no stage.
    QCOMPARE(missed.join(' '), QStringLiteral("thumb_add thumb_new thumb_save code_rename_undo "
                                              "stage_capture paint_to_indexed stop_engine"));
    QVERIFY(!m->window->isVisible());
}

void TestEveryAction::opensFromTheBars()
{
    prepare();
    QList<QPointer<QToolButton>> buttons;
    for (QToolButton* button : m->window->findChildren<QToolButton*>()) {
        if (button->defaultAction() && button->isVisible()) {
            buttons.append(button);
        }
    }
    QVERIFY(buttons.size() > 10);
    for (const QPointer<QToolButton>& button : qAsConst(buttons)) {
        prepare();
        QAction* action = button->defaultAction();
        const bool isEnabled = action->isEnabled();
        const QSignalSpy triggered(action, &QAction::triggered);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY2(triggered.count() == (isEnabled ? 1 : 0), qPrintable(action->objectName()));
        QVERIFY2(!action->icon().isNull(), qPrintable(action->objectName()));
    }
}

QTEST_MAIN(TestEveryAction)
#include "tst_everyaction.moc"
