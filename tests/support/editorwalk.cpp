#include "support/editorwalk.h"

#include "animation/animationeditor.h"
#include "animation/timeline/timeline.h"
#include "animation/timeline/timelinecells.h"
#include "animation/timeline/timelinewidget.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "editors/code/codeeditor.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"
#include "support/documentdump.h"
#include "support/stagedata.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>

#include <limits>

using namespace Zorv;

namespace {

constexpr int MostLines = 60;
constexpr int KeptActs = 12;  // of what is told with a fault
constexpr int LongestWait = 60;
constexpr auto Forever = std::numeric_limits<int>::max();

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

struct Release
{
    void operator()(CodeDocument* document) const { static_cast<CodeNode*>(document)->release(); }
};

int saturated(qint64 value)
{
    return int(qMin<qint64>(value, Forever));
}

/// What stands at a tick, found by a walk over all frames.
class PlainRow : public TimeLine, public TimeLineCells
{
public:
    explicit PlainRow(const AnimationCode* animation)
        : m_name(animation ? animation->displayName() : QString())
    {
        const QList<FrameCode*> frames = animation ? animation->frames() : QList<FrameCode*>();
        qint64 start = 0;
        for (const FrameCode* frame : frames) {
            const bool isHidden = !m_frames.isEmpty() && m_frames.last().isBehindEnd();
            m_frames.append(
                {{unsigned(saturated(start)), frame->delay()}, frame->isLoopPoint(), isHidden});
            start += isHidden ? 0 : qMax(frame->delay(), 0);
        }
    }
    QString name() const override { return m_name; }
    bool markerAtTick(unsigned tick, Marker& marker) const override
    {
        bool isFound = false;
        for (const Frame& frame : m_frames) {
            if (frame.cell.length != 0 && frame.cell.firstTick == tick && !frame.isHidden) {
                marker.length = frame.cell.length;
                marker.color = marker.length < 0 ? QColor(190, 110, 40)
                               : frame.isLoop    ? QColor(140, 190, 40)
                                                 : QColor(160, 140, 40);
                isFound = true;
            }
        }
        return isFound;
    }

    TimeLineCells* cells() override { return this; }
    int count() const override { return m_frames.size(); }
    bool isEditable() const override { return true; }
    bool setLengths(const QVector<int>&, const QVector<int>&) override { return false; }
    bool move(const QVector<int>&, int) override { return false; }
    Cell at(int index) const override { return m_frames.at(index).cell; }
    int indexAt(unsigned tick) const override
    {
        for (int i = 0; i < count(); ++i) {
            const Cell cell = at(i);
            if (cell.length < 0 ||
                (tick >= cell.firstTick && tick - cell.firstTick < unsigned(cell.length))) {
                return i;
            }
        }
        return -1;
    }

private:
    struct Frame
    {
        Cell cell;
        bool isLoop;
        bool isHidden;  // behind one without end
        bool isBehindEnd() const { return isHidden || cell.length < 0; }
    };

    QString m_name;
    QVector<Frame> m_frames;
};

void move(QWidget* widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, button,
                      modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

/// Dialogs are answered first. Timers of no time come in their order, when there is nothing else.
void letComeWhatIsPutOff()
{
    while (QApplication::activeModalWidget() || QApplication::activePopupWidget()) {
        QTest::qWait(1);
    }
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

QString textOfControl(const QWidget* widget)
{
    if (const auto* slider = qobject_cast<const QSlider*>(widget)) {
        return QStringLiteral("%1 of %2").arg(slider->value()).arg(slider->maximum());
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(widget)) {
        return QString::number(spin->value());
    }
    if (const auto* real = qobject_cast<const QDoubleSpinBox*>(widget)) {
        return QString::number(real->value(), 'f', 3);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        return QString::number(combo->currentIndex());
    }
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label ? label->text() : QStringLiteral("missing");
}

}  // namespace

/// The text as a parse that knows no past sees it, and in it what the editor says it shows.
struct EditorWalk::Fresh
{
    std::unique_ptr<CodeDocument, Release> text;
    Animations* animations = nullptr;
    AnimationCode* animation = nullptr;
    FrameCode* frame = nullptr;

    QVector<int> times() const
    {
        QVector<int> result;
        for (int i = 0; animation && i < animation->frameCount(); ++i) {
            result.append(animation->frame(i)->delay());
        }
        return result;
    }

    int firstTick(int index) const
    {
        const QVector<int> all = times();
        qint64 start = 0;
        for (int i = 0; i < index && all.at(i) >= 0; ++i) {
            start += all.at(i);
        }
        return saturated(start);
    }

    /// Behind the end it is the last one that is shown at all.
    int frameAt(int tick) const
    {
        const QVector<int> all = times();
        int last = all.size() - 1;
        for (int i = 0, shown = -1; i < all.size(); ++i) {
            shown = all.at(i) != 0 ? i : shown;
            last = shown >= 0 ? shown : last;
            if (all.at(i) < 0 || (all.at(i) > 0 && tick < firstTick(i) + qint64(all.at(i)))) {
                break;
            }
        }
        return last;
    }
};

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
                                          &EditorWalk::slide,      &EditorWalk::keyOnStage};
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
    m_host->changeOther(random);
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

// What must be true after each

QString EditorWalk::fault()
{
    letComeWhatIsPutOff();
    Fresh fresh;
    fresh.text.reset(m_host->parsed(document()->text()));
    fresh.animations = static_cast<Animations*>(fresh.text->documentEditor(CodeNode::Animation, 0));
    fresh.animation = editor()->animationIndex() < 0
                          ? nullptr
                          : fresh.animations->at(unsigned(editor()->animationIndex()));
    fresh.frame = fresh.animation ? fresh.animation->frame(editor()->frameIndex()) : nullptr;

    QString fault = faultOfSelection(fresh);
    for (const auto look : {&EditorWalk::faultOfTools, &EditorWalk::faultOfStage,
                            &EditorWalk::faultOfStrip, &EditorWalk::faultOfCursor}) {
        fault = fault.isEmpty() ? (this->*look)(fresh) : fault;
    }
    return fault.isEmpty() ? fault
                           : fault + QLatin1String("\nafter: ") + m_log.join(QLatin1String(", ")) +
                                 QLatin1String("\n") + document()->text();
}

/// What the editor says that it shows is there, and none is shown only where there is none.
QString EditorWalk::faultOfSelection(const Fresh& fresh)
{
    const QString nodes = firstDifference(dumpOf(*document()), dumpOf(*fresh.text));
    if (!nodes.isEmpty()) {
        return QLatin1String("nodes: ") + nodes;
    }
    const int count = fresh.animations->count();
    const int frames = fresh.animation ? fresh.animation->frameCount() : 0;
    const AnimationCode* shown = editor()->currentAnimation();
    if (bool(fresh.animation) != (count > 0) || bool(shown) != (count > 0)) {
        return QStringLiteral("animation %1 of %2").arg(editor()->animationIndex()).arg(count);
    }
    if (bool(fresh.frame) != (frames > 0) || bool(editor()->currentFrame()) != (frames > 0)) {
        return QStringLiteral("frame %1 of %2").arg(editor()->frameIndex()).arg(frames);
    }
    if (shown && shown->block().blockNumber() != fresh.animation->block().blockNumber()) {
        return QStringLiteral("animation of another line");
    }
    if (fresh.frame &&
        editor()->currentFrame()->block().blockNumber() != fresh.frame->block().blockNumber()) {
        return QStringLiteral("frame of another line");
    }
    return {};
}

QString EditorWalk::faultOfTools(const Fresh& fresh)
{
    const int count = fresh.animations->count();
    const QVector<int> times = fresh.times();
    const FrameCode* frame = fresh.frame;
    qint64 sum = 0;
    for (int i = 0; frame && i <= editor()->frameIndex(); ++i) {
        sum = sum < 0 || times.at(i) < 0 ? -1 : sum + times.at(i);
    }
    const auto label = [](int index, int of) {
        return of > 0 ? QStringLiteral("%1 / %2").arg(index + 1).arg(of) : QStringLiteral("0 / 0");
    };
    const auto slider = [](int index, int of) {
        return QStringLiteral("%1 of %2").arg(qMax(index, 0)).arg(qMax(of - 1, 0));
    };
    static const int rowsOfFlips[] = {0, 2, 1, 3};
    const auto real = [frame](double value) { return QString::number(frame ? value : 0, 'f', 3); };
    const auto whole = [](int value) { return QString::number(value); };
    const QString frames = label(editor()->frameIndex(), times.size()) +
                           (frame ? QStringLiteral(" - %1 ticks").arg(saturated(sum)) : QString());
    const QPair<const char*, QString> expected[] = {
        {"anim_sel", slider(editor()->animationIndex(), count)},
        {"anim_sel_lb", label(editor()->animationIndex(), count)},
        {"anim_frame_sel", slider(editor()->frameIndex(), times.size())},
        {"anim_frame_sel_lb", frames},
        {"anim_frame_xaxis", whole(frame ? inRange("anim_frame_xaxis", frame->offset().x()) : 0)},
        {"anim_frame_yaxis", whole(frame ? inRange("anim_frame_yaxis", frame->offset().y()) : 0)},
        {"anim_frame_time", whole(frame ? inRange("anim_frame_time", frame->delay()) : 0)},
        {"anim_frame_flip", whole(frame ? rowsOfFlips[int(frame->flip())] : 0)},
        {"anim_frame_xscale", real(frame ? frame->scale().x() : 0)},
        {"anim_frame_yscale", real(frame ? frame->scale().y() : 0)},
        {"anim_frame_angle", real(frame ? frame->angle() : 0)},
    };
    for (const auto& row : expected) {
        const QString found = textOfControl(m_host->control(QLatin1String(row.first)));
        if (found != row.second) {
            return QStringLiteral("%1 shows %2 in place of %3")
                .arg(QLatin1String(row.first), found, row.second);
        }
    }
    return {};
}

/// A field shows the nearest number that it takes.
int EditorWalk::inRange(const char* name, int value)
{
    const auto* field = qobject_cast<QSpinBox*>(m_host->control(QLatin1String(name)));
    return field ? qBound(field->minimum(), value, field->maximum()) : value;
}

/// Where the stage finds something else than a stage to which the text is new, at random places and
/// on the edges of boxes. The handles of what is selected are left out.
QString EditorWalk::faultOfStage(const Fresh& fresh)
{
    if (!stageWidget() || stage()->clickMode() != GraphicsRenderer::PositioningMode) {
        return {};
    }
    GraphicsRenderer other;
    StageData::Provider provider;
    Sprite* sprite = fresh.frame ? m_host->sprite(fresh.frame) : nullptr;
    if (sprite) {
        provider.rows.append({sprite, m_host->pose(fresh.frame, sprite)});
    }
    setUpLike(&other, *stage());
    m_host->setUp(&other, fresh.frame);
    other.setSprites(&provider);
    QVector<QPoint> places;
    for (int i = 0; i < 30; ++i) {
        places.append({number(stageWidget()->width()), number(stageWidget()->height())});
    }
    for (const auto type : BoxTypes) {
        ContactBoxesCode* boxes = fresh.frame ? fresh.frame->contactBoxes(type) : nullptr;
        other.setContactBoxes(type, boxes);
        for (int i = 0; boxes && i < boxes->count(); ++i) {
            const QRect rect = boxes->at(i)->rect();
            const QPoint end = stagePlace(rect.bottomRight() + QPoint(1, 1));
            places << stagePlace(rect.topLeft()) << stagePlace(rect.topLeft()) - QPoint(1, 1) << end
                   << end - QPoint(1, 1);
        }
    }
    const unsigned shown = stage()->spriteProvider() ? stage()->spriteProvider()->count() : 0;
    if (shown != provider.count()) {
        return QStringLiteral("%1 sprites on the stage").arg(shown);
    }
    const auto item = GraphicsRenderer::SpriteType;
    if (stage()->itemPosition(item, 0) != other.itemPosition(item, 0)) {
        return QStringLiteral("sprite at another place");
    }
    for (const QPoint place : qAsConst(places)) {
        const int found = stage()->hitTest(place);
        const int expected = other.hitTest(place);
        if (found != expected && found < GraphicsRenderer::TopLeftSizer) {
            return QStringLiteral("element %1 at %2,%3 in place of %4")
                .arg(found)
                .arg(place.x())
                .arg(place.y())
                .arg(expected);
        }
    }
    return {};
}

void EditorWalk::setUpLike(GraphicsRenderer* other, const GraphicsRenderer& model)
{
    other->setZoomLevel(model.zoomLevel());
    other->setGuideLines(model.guideLines());
    other->setPriority(model.spriteOverGuides(), model.contactOverCross());
    const auto isOn = [this](const char* name) {
        const QAction* action = m_host->action(QLatin1String(name));
        return action && action->isChecked() && action->isEnabled();
    };
    other->setVisibility(isOn("view_main_cross"), isOn("view_secondary_cross"),
                         isOn("view_extra_cross"), isOn("view_attack_box"),
                         isOn("view_collision_box"), isOn("view_rulers"), isOn("view_guide_lines"));
    for (const auto type : BoxTypes) {
        other->setContactBoxesLocked(type, isOn("anim_box_lock"));
    }
    for (const auto cross : {GraphicsRenderer::MainCross, GraphicsRenderer::SecondaryCross,
                             GraphicsRenderer::ExtraCross}) {
        other->setItemPosition(cross, model.itemPosition(cross, 0), 0);
    }
}

/// The strip shows the pixels of one that has a row of the new parse, and its tick is one of the
/// shown frame.
QString EditorWalk::faultOfStrip(const Fresh& fresh)
{
    const int tick = saturated(strip()->currentTick());
    if (fresh.frame && tick != fresh.firstTick(editor()->frameIndex()) &&
        fresh.frameAt(tick) != editor()->frameIndex()) {
        return QStringLiteral("tick %1 at frame %2%3")
            .arg(tick)
            .arg(editor()->frameIndex())
            .arg(QLatin1String(editor()->isPlaying() ? " of play" : ""));
    }
    if (strip()->isHidden() == bool(fresh.animation)) {
        return QStringLiteral("time line without animation, or the other way round");
    }
    if (!strip()->isPlaying() && fresh.animation &&
        strip()->selectedCells() != editor()->selectedFrames()) {
        return QStringLiteral("other frames are selected than the strip shows");
    }
    PlainRow row(fresh.animation);
    TimeLineWidget other;
    other.addTimeLine(&row);
    other.setPalette(strip()->palette());
    other.setFont(strip()->font());
    other.setWholePages(true);
    other.resize(strip()->size());
    other.setCurrentTick(strip()->currentTick());
    other.setSelectedCells(strip()->selectedCells());
    other.setLoopRange(strip()->loopRange());
    const auto picture = [](TimeLineWidget* line) {
        return line->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const bool isSame = !strip()->isVisible() || picture(strip()) == picture(&other);
    return isSame ? QString() : QStringLiteral("another strip");
}

/// With stage and text linked, the stage goes where the person goes in the text.
QString EditorWalk::faultOfCursor(const Fresh& fresh)
{
    if (!m_hasMovedCursor || !m_host->followsAtOnce() || !editor()->isEditCodeMode() ||
        editor()->isPlaying()) {
        return {};
    }
    const int line = m_host->edit()->textCursor().blockNumber();
    for (int i = 0; i < fresh.animations->count(); ++i) {
        const QList<FrameCode*> frames = fresh.animations->at(unsigned(i))->frames();
        for (const FrameCode* frame : frames) {
            if (line >= frame->firstLine() && line <= frame->block().blockNumber() &&
                frame != fresh.frame) {
                return QStringLiteral("cursor in line %1, frame of line %2")
                    .arg(line)
                    .arg(fresh.frame->block().blockNumber());
            }
        }
    }
    return {};
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
