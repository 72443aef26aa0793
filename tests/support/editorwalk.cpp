#include "support/editorwalk.h"

#include "animation/animationeditor.h"
#include "animation/timeline/timelinewidget.h"
#include "cache/sprite.h"
#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"
#include "editors/code/codeeditor.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>

using namespace Zorv;

namespace {

constexpr int MostLines = 60;
constexpr int KeptActs = 12;  // of what is told with a fault
constexpr int LongestWait = 60;

const ContactBoxCode::BoxType BoxTypes[] = {ContactBoxCode::Attack, ContactBoxCode::Collision};

const char* const Sliders[] = {"anim_sel", "anim_frame_sel", "anim_frame_sel", "anim_onion_sel",
                               "anim_onion_framesel"};

const char* const Fields[] = {"anim_frame_xaxis", "anim_frame_yaxis",  "anim_frame_time",
                              "anim_frame_flip",  "anim_frame_xscale", "anim_frame_yscale",
                              "anim_frame_angle"};

const Qt::Key SliderKeys[] = {Qt::Key_Left, Qt::Key_Right,  Qt::Key_Right,   Qt::Key_Home,
                              Qt::Key_End,  Qt::Key_PageUp, Qt::Key_PageDown};

const Qt::Key StageKeys[] = {Qt::Key_Left,   Qt::Key_Right, Qt::Key_Up,       Qt::Key_Down,
                             Qt::Key_Delete, Qt::Key_Plus,  Qt::Key_Minus,    Qt::Key_0,
                             Qt::Key_PageUp, Qt::Key_Space, Qt::Key_PageDown, Qt::Key_Escape};

const Qt::Key TextKeys[] = {Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Up,      Qt::Key_Down,
                            Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home,    Qt::Key_End,
                            Qt::Key_Return, Qt::Key_PageUp,    Qt::Key_PageDown};

const Qt::Key StripKeys[] = {Qt::Key_Left,   Qt::Key_Right, Qt::Key_Up,   Qt::Key_Down,
                             Qt::Key_Escape, Qt::Key_Home,  Qt::Key_End,  Qt::Key_Delete,
                             Qt::Key_Plus,   Qt::Key_Minus, Qt::Key_Space};

void move(QWidget* widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, button,
                      modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

}  // namespace

/// Dialogs are answered first. Timers of no time come in their order, when there is nothing else.
void EditorWalk::letComeWhatIsPutOff()
{
    while (QApplication::activeModalWidget() || QApplication::activePopupWidget()) {
        QTest::qWait(1);
    }
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

QVector<QVariant> EditorWalk::Host::pose(const FrameCode* frame, const Sprite* sprite)
{
    return {frame->offset(), 14, 0, sprite->size(), QPointF(1, 1)};
}

EditorWalk::EditorWalk(quint32 seed, Host* host, const RandomText& text)
    : MonkeyOf(seed, {{40, &EditorWalk::trigger},
                      {20, &EditorWalk::slide},
                      {20, &EditorWalk::fillField},
                      {40, &EditorWalk::dragOnStage},
                      {15, &EditorWalk::keyOnStage},
                      {20, &EditorWalk::useStrip},
                      {20, &EditorWalk::keyInText},
                      {15, &EditorWalk::edit},
                      {15, &EditorWalk::undoOrRedo},
                      {6, &EditorWalk::play},
                      {6, &EditorWalk::useDialog},
                      {1, &EditorWalk::openAnew}}),
      m_host(host), m_text(text)
{
    m_first = document()->text();
    watchDialogs();
}

EditorWalk::~EditorWalk() = default;

void EditorWalk::walk(int count)
{
    survive(count, 1);
    if (!QTest::currentTestFailed()) {
        const QString found = undoAll();
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void EditorWalk::triggerAll()
{
    const QStringList names = m_host->actions();
    for (const QString& name : names) {
        triggerAction(name);
        letComeWhatIsPutOff();
        const QString found = document()->blockCount() < MostLines ? fault() : QString();
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
    const QString found = undoAll();
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

CodeDocument* EditorWalk::document()
{
    return editor()->document();
}

GraphicsRenderer* EditorWalk::stage()
{
    return editor()->renderer();
}

RenderWidget* EditorWalk::stageWidget()
{
    return editor()->graphicsWorkspace()->renderWidget();
}

TimeLineWidget* EditorWalk::strip()
{
    return editor()->graphicsWorkspace()->timeLine();
}

void EditorWalk::did(const QString& what)
{
    m_hasMovedCursor = false;
    m_log.append(what);
    while (m_log.size() > KeptActs) {
        m_log.removeFirst();
    }
}

Qt::KeyboardModifiers EditorWalk::anyModifiers()
{
    static const Qt::KeyboardModifiers modifiers[] = {
        Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier, Qt::NoModifier,
        Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
    return anyOf(modifiers);
}

// Acts

/// Answers for whatever an act may ask.
void EditorWalk::planAnswers()
{
    static const Dialogs::Button buttons[] = {Dialogs::Yes, Dialogs::Yes, Dialogs::No, Dialogs::Ok,
                                              Dialogs::Cancel};
    m_dialogs.shown.clear();
    m_dialogs.buttonAnswers = {anyOf(buttons), anyOf(buttons)};
    m_dialogs.choiceAnswers = {number(3)};
    m_dialogs.textAnswers.clear();
    m_dialogs.fileAnswers.clear();
    if (!chance(3)) {
        m_dialogs.textAnswers.append(QStringLiteral("new%1").arg(number(3)));
        m_dialogs.fileAnswers = {{m_folder.filePath(QStringLiteral("a.gif"))}};
    }
}

void EditorWalk::triggerAction(const QString& name)
{
    QAction* action = m_host->action(name);
    if (action && action->isEnabled()) {
        did(name);
        planAnswers();
        action->trigger();
    }
}

void EditorWalk::trigger()
{
    const QStringList names = m_host->actions();
    triggerAction(names.at(number(names.size())));
}

void EditorWalk::slide()
{
    const char* name = anyOf(Sliders);
    if (QWidget* slider = m_host->control(QLatin1String(name))) {
        did(QLatin1String(name));
        QTest::keyClick(slider, anyOf(SliderKeys));
    }
}

void EditorWalk::fillField()
{
    const char* name = anyOf(Fields);
    QWidget* field = m_host->control(QLatin1String(name));
    if (!field || !field->isEnabled()) {
        return;
    }
    field->setFocus();
    if (qobject_cast<QComboBox*>(field) || chance(3)) {
        did(QLatin1String(name) + QLatin1String(" by a step"));
        QTest::keyClick(field, chance(2) ? Qt::Key_Up : Qt::Key_Down);
        return;
    }
    const QString typed = QString::number(number(chance(4) ? 2000000 : 100) - (chance(2) ? 50 : 0));
    did(QLatin1String(name) + QLatin1String(" := ") + typed);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, typed);
    if (chance(4)) {
        interrupt();  // with what is typed not yet entered
    }
    QTest::keyClick(field, Qt::Key_Return);
}

QPoint EditorWalk::stagePlace(QPoint model)
{
    return stage()->origin() + QPoint(qRound(float(model.x()) * stage()->zoom()),
                                      qRound(float(model.y()) * stage()->zoom()));
}

/// Mostly on something: near the origin, or on a corner or in the middle of a box.
QPoint EditorWalk::anyPlaceOnStage()
{
    const QRect area = stageWidget()->rect();
    const FrameCode* frame = editor()->currentFrame();
    const ContactBoxesCode* boxes = frame ? frame->contactBoxes(anyOf(BoxTypes)) : nullptr;
    if (boxes && boxes->count() > 0 && !chance(3)) {
        const QRect rect = boxes->at(number(boxes->count()))->rect();
        const QPoint points[] = {rect.topLeft(), rect.bottomRight(), rect.center(), rect.center()};
        const QPoint place = stagePlace(anyOf(points));
        if (area.contains(place)) {
            return place;
        }
    }
    return chance(2) ? stagePlace({number(120) - 60, number(120) - 90})
                     : QPoint(number(area.width() + 40) - 20, number(area.height() + 40) - 20);
}

/// Something else that happens while a button is down.
void EditorWalk::interrupt()
{
    void (EditorWalk::*const acts[])() = {&EditorWalk::trigger,    &EditorWalk::edit,
                                          &EditorWalk::undoOrRedo, &EditorWalk::keyInText,
                                          &EditorWalk::slide,      &EditorWalk::keyOnStage,
                                          &EditorWalk::changeOther};
    did(QStringLiteral("in the middle of it"));
    chance(20) ? openAnew() : (this->*anyOf(acts))();
    QCoreApplication::processEvents();
}

void EditorWalk::gesture(QWidget* widget, const std::function<QPoint()>& place)
{
    const QPointer<QWidget> alive(widget);
    const Qt::MouseButton button = chance(8) ? Qt::RightButton : Qt::LeftButton;
    const Qt::KeyboardModifiers modifiers = anyModifiers();
    QTest::mousePress(widget, button, modifiers, place());
    for (int steps = number(4); steps > 0 && alive; --steps) {
        move(widget, place(), button, modifiers);
        if (chance(10)) {
            interrupt();
        }
    }
    if (alive) {
        QTest::mouseRelease(widget, button, modifiers, place());
    }
}

void EditorWalk::dragOnStage()
{
    if (!stageWidget() || !stageWidget()->isVisible()) {
        return;
    }
    if (chance(8)) {
        did(QStringLiteral("wheel"));
        const QPoint place = anyPlaceOnStage();
        QWheelEvent event(place, stageWidget()->mapToGlobal(place), {}, {0, 120 * (number(7) - 3)},
                          Qt::NoButton, anyModifiers(), Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(stageWidget(), &event);
    } else {
        did(QStringLiteral("stage"));
        gesture(stageWidget(), [this] { return anyPlaceOnStage(); });
    }
}

void EditorWalk::keyOnStage()
{
    if (stageWidget()) {
        const Qt::Key key = anyOf(StageKeys);
        did(QStringLiteral("stage key %1").arg(QKeySequence(key).toString()));
        QTest::keyClick(stageWidget(), key, chance(3) ? Qt::ShiftModifier : Qt::NoModifier);
    }
}

void EditorWalk::useStrip()
{
    TimeLineWidget* line = strip();
    if (!line->isVisible()) {
        return;
    }
    if (chance(3)) {
        const Qt::Key key = anyOf(StripKeys);
        did(QStringLiteral("strip key %1").arg(QKeySequence(key).toString()));
        QTest::keyClick(line, key, anyModifiers());
        return;
    }
    did(QStringLiteral("strip"));
    gesture(line, [this, line] {
        return QPoint(110 + number(chance(2) ? line->width() - 100 : 120), number(line->height()));
    });
}

void EditorWalk::keyInText()
{
    static const QByteArray characters = "0123456789-, fa";
    m_host->edit()->setFocus();
    if (chance(3)) {
        did(QStringLiteral("types"));
        QTest::keyClick(m_host->edit(), characters.at(number(characters.size())));
        return;
    }
    const Qt::Key key = anyOf(TextKeys);
    did(QStringLiteral("text key %1").arg(QKeySequence(key).toString()));
    const int line = m_host->edit()->textCursor().blockNumber();
    QTest::keyClick(m_host->edit(), key, chance(6) ? Qt::ShiftModifier : Qt::NoModifier);
    m_hasMovedCursor = m_host->edit()->textCursor().blockNumber() != line;
}

void EditorWalk::edit()
{
    did(QStringLiteral("edits the text"));
    m_text.edit(random, *document());
}

void EditorWalk::undoOrRedo()
{
    const bool isRedo = chance(3);
    did(isRedo ? QStringLiteral("redo") : QStringLiteral("undo"));
    isRedo ? m_host->redo() : m_host->undo();
}

void EditorWalk::play()
{
    triggerAction(QStringLiteral("anim_play"));
    for (int i = number(3); i >= 0; --i) {
        QTest::qWait(number(LongestWait));
        if (chance(3)) {
            interrupt();
        }
    }
    if (chance(2)) {
        triggerAction(QStringLiteral("anim_stop"));
    }
}

void EditorWalk::openAnew()
{
    did(QStringLiteral("closes and opens"));
    m_host->closeAndOpen();
    QVERIFY(!document()->canUndo());
    m_first = document()->text();
}

/// A window that stands open beside the editor.
void EditorWalk::useDialog()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<QDialog*>(window) && window->isVisible() && !window->isModal()) {
            did(QStringLiteral("window \"%1\"").arg(window->windowTitle()));
            planAnswers();
            useWindow(window, 2);
            return;
        }
    }
    changeOther();
}

/// Dialogs and menus that wait for the person. Each call is a timer of its own, for one may come up
/// inside of another.
void EditorWalk::watchDialogs()
{
    QTimer::singleShot(2, &m_context, [this] {
        watchDialogs();
        answer();
    });
}

void EditorWalk::answer()
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* waiting = popup ? popup : QApplication::activeModalWidget();
    if (!waiting) {
        m_answered = nullptr;
        return;
    }
    m_answers = waiting == m_answered ? m_answers + 1 : 0;
    m_answered = waiting;
    if (popup) {
        static const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};
        m_answers > 3 ? void(popup->close()) : QTest::keyClick(popup, anyOf(keys));
    } else if (m_answers > 3) {
        waiting->close();
    } else {
        useWindow(waiting, 2);
    }
}

void EditorWalk::useWindow(QWidget* window, int acts)
{
    const QPointer<QWidget> alive(window);
    for (; acts > 0 && alive && window->isVisible(); --acts) {
        QList<QWidget*> usable;
        const QList<QWidget*> children = window->findChildren<QWidget*>();
        for (QWidget* child : children) {
            const bool isTool =
                qobject_cast<QAbstractButton*>(child) || qobject_cast<QAbstractSpinBox*>(child) ||
                qobject_cast<QComboBox*>(child) || qobject_cast<QAbstractItemView*>(child) ||
                qobject_cast<QPlainTextEdit*>(child);
            if (isTool && child->isVisible() && child->isEnabled()) {
                usable.append(child);
            }
        }
        if (!usable.isEmpty()) {
            useChild(usable.at(number(usable.size())));
        }
    }
}

void EditorWalk::useChild(QWidget* child)
{
    const QPoint place(number(child->width()), number(child->height()));
    if (qobject_cast<QAbstractButton*>(child)) {
        QTest::mouseClick(child, Qt::LeftButton, {}, child->rect().center());
    } else if (auto* view = qobject_cast<QAbstractItemView*>(child)) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, anyModifiers(), place);
    } else if (qobject_cast<QPlainTextEdit*>(child)) {
        QTest::keyClick(child, anyOf(TextKeys));
        QTest::keyClicks(child, m_text.line(random));
    } else {
        QTest::keyClick(child, chance(2) ? Qt::Key_Up : Qt::Key_Down);
    }
}

void EditorWalk::tidy()
{
    if (!editor()->isActive()) {
        m_host->bringForward();
    }
    if (document()->blockCount() > MostLines || document()->blockCount() < 4) {
        QTextCursor cursor(document());
        cursor.select(QTextCursor::Document);
        cursor.insertText(m_first);
    }
}

QString EditorWalk::undoAll()
{
    // Undo belongs to what has the keyboard.
    triggerAction(QStringLiteral("anim_stop"));
    m_host->edit()->activateWindow();
    if (!QTest::qWaitForWindowActive(m_host->edit()->window())) {
        return QStringLiteral("the window does not come forward");
    }
    m_host->edit()->setFocus();
    letComeWhatIsPutOff();
    QString found = goToEnd(&CodeDocument::canRedo, &Host::redo);
    const QString last = document()->text();
    if (found.isEmpty()) {
        found = goToEnd(&CodeDocument::canUndo, &Host::undo);
    }
    if (found.isEmpty() && document()->text() != m_first) {
        found = QStringLiteral("undone to\n") + document()->text() + QStringLiteral("\nfrom\n") +
                m_first;
    }
    if (found.isEmpty()) {
        found = goToEnd(&CodeDocument::canRedo, &Host::redo);
    }
    if (found.isEmpty() && document()->text() != last) {
        found = QStringLiteral("redone to\n") + document()->text();
    }
    return found;
}

/// Undoes, or does again, all there is.
QString EditorWalk::goToEnd(bool (CodeDocument::*hasMore)() const, void (Host::*step)())
{
    QString found;
    for (int steps = 1; (document()->*hasMore)() && found.isEmpty(); ++steps) {
        const int before = document()->availableUndoSteps();
        (m_host->*step)();
        letComeWhatIsPutOff();
        if (document()->availableUndoSteps() == before) {
            return QStringLiteral("a step leads nowhere, with the keyboard in %1")
                .arg(
                    QString::fromLatin1(QApplication::focusWidget()
                                            ? QApplication::focusWidget()->metaObject()->className()
                                            : "nothing"));
        }
        found = steps % 10 == 0 ? fault() : QString();
    }
    return found.isEmpty() ? fault() : found;
}
