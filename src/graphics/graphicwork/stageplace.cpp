#include "graphics/graphicwork/stageplace_p.h"

#include "animation/timeline/timelinewidget.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/renderplace_p.h"
#include "graphics/renderwidget.h"

#include <QResizeEvent>
#include <QVBoxLayout>

namespace Zorv {

namespace {

QVBoxLayout* makeColumn(QWidget* parent)
{
    auto* column = new QVBoxLayout(parent);
    column->setContentsMargins({});
    column->setSpacing(0);
    return column;
}

}  // namespace

StagePlace::StagePlace()
    : m_place(new RenderPlace(QStringLiteral("stage"), this)), m_strip(new QWidget(this)),
      m_timeLine(new TimeLineWidget)
{
    m_timeLine->setWholePages(true);
    m_timeLine->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_strip->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    makeColumn(m_strip)->addWidget(m_timeLine);
    QVBoxLayout* column = makeColumn(this);
    column->addWidget(m_place, 1);
    column->addWidget(m_strip);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    setFocusProxy(m_timeLine);
    connect(m_place, &RenderPlace::widgetMade, this, &StagePlace::takeStage);
}

RenderWidget* StagePlace::stage() const
{
    return m_place->widget();
}

void StagePlace::setNotice(const QString& text)
{
    m_place->setNotice(text);
}

void StagePlace::setUnusableText(const QString& text)
{
    m_place->setUnusableText(text);
}

void StagePlace::retranslate()
{
    m_timeLine->setAccessibleName(GraphicsWorkspace::tr("Time line"));
    if (stage()) {
        stage()->setAccessibleName(GraphicsWorkspace::tr("Stage"));
    }
}

QSize StagePlace::minimumSizeHint() const
{
    return RenderPlace::SmallestSize;
}

void StagePlace::takeStage()
{
    stage()->installEventFilter(this);
    setFocusProxy(stage());
    retranslate();
    emit stageMade();
}

/// The stage has priority: the strip is hidden when there is no room for both.
void StagePlace::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_strip->setVisible(height() >=
                        RenderPlace::SmallestSize.height() + m_timeLine->sizeHint().height());
}

bool StagePlace::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == stage() && event->type() == QEvent::Resize) {
        const QSize size = static_cast<QResizeEvent*>(event)->size();
        if (!size.isEmpty()) {
            m_stageSize = size;
            emit stageResized();
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace Zorv
