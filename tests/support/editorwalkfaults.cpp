// What must be true after each act: what shows is what a fresh parse of the text says.

#include "animation/animationeditor.h"
#include "animation/timeline/timeline.h"
#include "animation/timeline/timelinecells.h"
#include "animation/timeline/timelinewidget.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "editors/code/codeeditor.h"
#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"
#include "support/documentdump.h"
#include "support/editorwalk.h"
#include "support/stagedata.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QTextBlock>

#include <limits>

using namespace Zorv;

namespace {

struct ReleaseNode
{
    void operator()(CodeDocument* document) const { static_cast<CodeNode*>(document)->release(); }
};

int saturated(qint64 value)
{
    return int(qMin<qint64>(value, std::numeric_limits<int>::max()));
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
    std::unique_ptr<CodeDocument, ReleaseNode> text;
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
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
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
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
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
