#include "app/stage/timelineplace.h"

#include <zorv/animation/timeline/timelinewidget.h>

#include <QEvent>
#include <algorithm>

namespace App {

TimeLinePlace::TimeLinePlace(Zorv::TimeLineWidget* timeLine, QWidget* parent)
    : QWidget(parent), m_timeLine(timeLine)
{
    m_timeLine->setParent(this);
    setFocusProxy(m_timeLine);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TimeLinePlace::sizeHint() const
{
    return m_timeLine->sizeHint();
}

QSize TimeLinePlace::minimumSizeHint() const
{
    return m_timeLine->minimumSizeHint();
}

bool TimeLinePlace::event(QEvent* event)
{
    // The time line wants another size.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QWidget::event(event);
}

void TimeLinePlace::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int room = std::max(width() - m_timeLine->baseSize().width(), 0);
    const int rest = room % m_timeLine->sizeIncrement().width();
    m_timeLine->setGeometry(0, 0, width() - rest, height());
    // Turns to the page of the tick, which a resized time line does not do by itself.
    m_timeLine->setCurrentTick(m_timeLine->currentTick());
}

}  // namespace App
