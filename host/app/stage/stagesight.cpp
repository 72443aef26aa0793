#include "app/stage/stagesight.h"

#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagerenderer.h"
#include "app/stage/stageroom.h"
#include "family/stage/framecomposer.h"

#include <zorv/core/projectfile.h>
#include <zorv/graphics/renderwidget.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>

// The view moves only if the last frame was completely visible (`m_wasWhole`) or another animation
// is shown: otherwise the user has zoomed in on a detail and wants to keep it. Moving waits for the
// next turn of the event loop, and until the stage has its size (`StageRoom`).

namespace App {

namespace {

constexpr int Margin = 4;  // around the visible frame
constexpr int RulerWidth = 30;

/// How far to move a range so that it lies inside another, or in its middle if it is longer.
int wayInto(int first, int last, int from, int to)
{
    if (last - first > to - from) {
        return (from + to - first - last) / 2;
    }
    return first < from ? from - first : last > to ? to - last : 0;
}

}  // namespace

StageSight::StageSight(FamilyAnimationEditor* editor, StageRenderer* stage, const StageRoom* room,
                       QObject* parent)
    : QObject(parent), m_editor(editor), m_stage(stage), m_room(room)
{
    connect(room, &StageRoom::applied, this, &StageSight::bringSoon);
    connect(editor, &Zorv::AnimationEditor::shownChanged, this, &StageSight::follow);
    connect(stage, &Zorv::GraphicsRenderer::viewChanged, this, [this] { m_wasWhole = isWhole(); });
}

QRect StageSight::areaOf(const Family::FrameNode& frame, const Family::SpriteCollection* sprites,
                         float zoom)
{
    Family::FrameStyle style;
    style.parts = Family::FrameStyle::Sprite | Family::FrameStyle::Boxes;
    style.zoom = zoom;
    QString error;  // a missing sprite takes no space
    return Family::FrameComposer(sprites, style).bounds(frame, &error);
}

/// True also without a frame, or if the frame shows nothing.
bool StageSight::isWhole() const
{
    const Family::FrameNode* frame = m_editor->frame();
    const QRect area =
        frame ? areaOf(*frame, m_editor->spriteCollection(), m_stage->zoom()) : QRect();
    return area.isEmpty() || sight().contains(area.translated(m_stage->origin()));
}

void StageSight::follow()
{
    const int animation = m_editor->animationIndex();
    const int frame = m_editor->frameIndex();
    const bool isOther = animation != m_animation;
    const bool isNew = isOther || frame != m_frame;
    m_animation = animation;
    m_frame = frame;
    if (m_editor->isPlaying()) {
        return;
    }
    if (isNew && (isOther || m_wasWhole)) {
        bringSoon();
    } else {
        m_wasWhole = isWhole();
    }
}

/// Deferred until the stage has its size: fitted into the one-line height of an empty stage, the
/// frame would be tiny.
void StageSight::bringSoon()
{
    if (!m_isPending) {
        m_isPending = true;
        QTimer::singleShot(0, this, &StageSight::bring);
    }
}

void StageSight::keepPlaceOf(const QString& file)
{
    m_keptFile = file;
    qApp->installEventFilter(this);
}

bool StageSight::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
        m_keptFile.clear();
        qApp->removeEventFilter(this);
    }
    return QObject::eventFilter(watched, event);
}

void StageSight::bring()
{
    m_isPending = false;
    const Family::FrameNode* frame = m_editor->frame();
    const Zorv::RenderWidget* widget = m_stage->widget();
    if (!frame || !widget || !widget->isVisible() || m_room->isPending() || m_editor->isPlaying()) {
        return;
    }
    const bool isKept = !m_keptFile.isEmpty() && m_editor->file()->fileName() == m_keptFile;
    if (!isKept && !sight().isEmpty() && !isWhole()) {
        moveInto(*frame);
    }
    m_wasWhole = isWhole();
}

/// Moves the view as little as possible. Zooms out if the frame is too large; centres it if it does
/// not fit at the smallest zoom.
void StageSight::moveInto(const Family::FrameNode& frame)
{
    const QRect sight = this->sight().adjusted(Margin, Margin, -Margin, -Margin);
    const Family::SpriteCollection* sprites = m_editor->spriteCollection();
    QRect area = areaOf(frame, sprites, m_stage->zoom());
    while (m_stage->zoomLevel() > 0 &&
           (area.width() > sight.width() || area.height() > sight.height())) {
        m_stage->setZoomLevel(uchar(m_stage->zoomLevel() - 1));
        area = areaOf(frame, sprites, m_stage->zoom());
    }
    area.translate(m_stage->origin());
    m_stage->setOrigin(m_stage->origin() +
                       QPoint(wayInto(area.left(), area.right(), sight.left(), sight.right()),
                              wayInto(area.top(), area.bottom(), sight.top(), sight.bottom())));
}

/// Excludes the area of the rulers, shown or not: nothing can be clicked there.
QRect StageSight::sight() const
{
    return m_stage->widget() ? m_stage->widget()->rect().adjusted(RulerWidth, RulerWidth, 0, 0)
                             : QRect();
}

}  // namespace App
