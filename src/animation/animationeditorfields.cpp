#include "animation/animationeditor_p.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

#include <climits>

namespace Zorv {

namespace {

using Field = AnimationEditor::Field;

const struct
{
    const char* name;
    Field field;
} fields[] = {
    {"anim_frame_xaxis", Field::X},       {"anim_frame_yaxis", Field::Y},
    {"anim_frame_time", Field::Time},     {"anim_frame_xscale", Field::ScaleX},
    {"anim_frame_yscale", Field::ScaleY}, {"anim_frame_angle", Field::Angle},
    {"anim_box_x", Field::BoxX},          {"anim_box_y", Field::BoxY},
    {"anim_box_width", Field::BoxWidth},  {"anim_box_height", Field::BoxHeight},
};

/// In the order of the rows of the flip list.
const FrameCode::Flip flips[] = {FrameCode::NoFlip, FrameCode::FlipVertically,
                                 FrameCode::FlipHorizontally,
                                 FrameCode::FlipVertically | FrameCode::FlipHorizontally};

int rowOf(FrameCode::Flip flip)
{
    const auto* found = std::find(std::begin(flips), std::end(flips), flip);
    return found == std::end(flips) ? 0 : int(found - std::begin(flips));
}

int whole(double value)
{
    return int(qBound(double(INT_MIN), value, double(INT_MAX)));
}

}  // namespace

void AnimationEditorPrivate::applyRanges()
{
    const Guard guard(&updating);
    for (const auto& row : fields) {
        const AnimationEditor::FieldRange range = editor->fieldRange(row.field);
        if (auto* number = widget<QSpinBox>(row.name)) {
            number->setRange(whole(range.minimum), whole(range.maximum));
            number->setSingleStep(whole(range.step));
        } else if (auto* real = widget<QDoubleSpinBox>(row.name)) {
            real->setDecimals(range.decimals);
            real->setRange(range.minimum, range.maximum);
            real->setSingleStep(range.step);
        }
    }
}

double AnimationEditorPrivate::longestTime() const
{
    return editor->fieldRange(Field::Time).maximum;
}

void AnimationEditorPrivate::fillFields(const FrameCode* frame)
{
    const Guard guard(&updating);
    const QPoint offset = frame ? frame->offset() : QPoint();
    const QPointF scale = frame ? frame->scale() : QPointF();
    emit setFrameX(offset.x());
    emit setFrameY(offset.y());
    emit setFrameTime(frame ? frame->delay() : 0);
    emit setFrameFlip(frame ? rowOf(frame->flip()) : 0);
    emit setFrameScaleX(scale.x());
    emit setFrameScaleY(scale.y());
    emit setFrameAngle(frame ? frame->angle() : 0);
}

void AnimationEditorPrivate::commitFields()
{
    for (const auto& row : fields) {
        auto* field = widget<QAbstractSpinBox>(row.name);
        if (updating == 0 && field && field->hasFocus()) {
            field->interpretText();
        }
    }
}

/// Writes a value as one undo step, unless the frame already has it. A value that the grammar
/// rejects disappears from the field again.
template <class Value, class Setter>
void AnimationEditorPrivate::write(const QString& title, Value (FrameCode::*get)() const,
                                   Setter set, Value value)
{
    FrameCode* const frame = currentFrame();
    if (updating > 0 || !frame || (frame->*get)() == value) {
        return;
    }
    {
        const Guard guard(&updating);
        animations->beginChange(frameTitle(title));
        (frame->*set)(value);
        animations->endChange();
    }
    editor->animationCodeChanged(false, false);
}

void AnimationEditorPrivate::writeOffset(QPoint offset)
{
    write(AnimationEditor::tr("Offset of frame #%1"), &FrameCode::offset, &FrameCode::setOffset,
          offset);
}

void AnimationEditorPrivate::writeScale(QPointF scale)
{
    write(AnimationEditor::tr("Scale of frame #%1"), &FrameCode::scale, &FrameCode::setScale,
          scale);
}

void AnimationEditorPrivate::frameXChanged(int x)
{
    if (const FrameCode* frame = currentFrame()) {
        writeOffset({x, frame->offset().y()});
    }
}

void AnimationEditorPrivate::frameYChanged(int y)
{
    if (const FrameCode* frame = currentFrame()) {
        writeOffset({frame->offset().x(), y});
    }
}

void AnimationEditorPrivate::frameTimeChanged(int ticks)
{
    write(AnimationEditor::tr("Time of frame #%1"), &FrameCode::delay, &FrameCode::setDelay, ticks);
}

void AnimationEditorPrivate::frameFlipChanged(int row)
{
    if (row >= 0 && row < int(std::size(flips))) {
        write(AnimationEditor::tr("Flip of frame #%1"), &FrameCode::flip, &FrameCode::setFlip,
              flips[row]);
    }
}

void AnimationEditorPrivate::frameScaleXChanged(double factor)
{
    if (const FrameCode* frame = currentFrame()) {
        writeScale({factor, frame->scale().y()});
    }
}

void AnimationEditorPrivate::frameScaleYChanged(double factor)
{
    if (const FrameCode* frame = currentFrame()) {
        writeScale({frame->scale().x(), factor});
    }
}

void AnimationEditorPrivate::frameAngleChanged(double degrees)
{
    write(AnimationEditor::tr("Angle of frame #%1"), &FrameCode::angle, &FrameCode::setAngle,
          degrees);
}

void AnimationEditorPrivate::moveFrame(QPoint step)
{
    commitFields();
    const FrameCode* frame = currentFrame();
    if (!frame || updating > 0) {
        return;
    }
    const auto moved = [this](Field field, int value, int by) {
        const AnimationEditor::FieldRange range = editor->fieldRange(field);
        return qBound(qMin(value, whole(range.minimum)), value + by,
                      qMax(value, whole(range.maximum)));
    };
    const QPoint offset = frame->offset();
    writeOffset({moved(Field::X, offset.x(), step.x()), moved(Field::Y, offset.y(), step.y())});
}

void AnimationEditorPrivate::axisLeft()
{
    moveFrame({-1, 0});
}

void AnimationEditorPrivate::axisUp()
{
    moveFrame({0, -1});
}

void AnimationEditorPrivate::axisRight()
{
    moveFrame({1, 0});
}

void AnimationEditorPrivate::axisDown()
{
    moveFrame({0, 1});
}

}  // namespace Zorv
