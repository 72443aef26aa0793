#include "graphics/graphicwork/stageplace_p.h"

#include "animation/timeline/timelinewidget.h"
#include "graphics/glcontext.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/renderwidget.h"

#include <QLabel>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Zorv {

namespace {

const QSize SmallestStage(80, 45);
constexpr int TextMargin = 12;

QVBoxLayout* makeColumn(QWidget* parent)
{
    auto* column = new QVBoxLayout(parent);
    column->setContentsMargins({});
    column->setSpacing(0);
    return column;
}

QLabel* makeText(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(TextMargin);
    label->setMinimumSize(SmallestStage);
    return label;
}

}  // namespace

StagePlace::StagePlace()
    : m_pages(new QStackedWidget(this)), m_notice(makeText("stage_notice")),
      m_unusable(makeText("stage_message")), m_strip(new QWidget(this)),
      m_timeLine(new TimeLineWidget)
{
    m_notice->setEnabled(false);
    m_pages->addWidget(m_notice);
    m_pages->addWidget(m_unusable);
    m_timeLine->setWholePages(true);
    m_timeLine->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_strip->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    makeColumn(m_strip)->addWidget(m_timeLine);
    QVBoxLayout* column = makeColumn(this);
    column->addWidget(m_pages, 1);
    column->addWidget(m_strip);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    setFocusProxy(m_timeLine);
}

void StagePlace::setNotice(const QString& text)
{
    m_notice->setText(text);
    ensureStage();
    showPage();
}

void StagePlace::setUnusableText(const QString& text)
{
    m_unusable->setText(text);
}

void StagePlace::retranslate()
{
    m_timeLine->setAccessibleName(GraphicsWorkspace::tr("Time line"));
    if (m_stage) {
        m_stage->setAccessibleName(GraphicsWorkspace::tr("Stage"));
    }
}

QSize StagePlace::minimumSizeHint() const
{
    return SmallestStage;
}

/// A GL widget that cannot have a context would take the whole window with it.
void StagePlace::ensureStage()
{
    if (m_stage || !isVisible() || !m_notice->text().isEmpty() || !isContextUsable()) {
        return;
    }
    m_stage = new RenderWidget;
    m_stage->setObjectName(QStringLiteral("stage"));
    m_stage->setMinimumSize(SmallestStage);
    m_stage->setFocusPolicy(Qt::StrongFocus);
    m_stage->installEventFilter(this);
    m_pages->addWidget(m_stage);
    setFocusProxy(m_stage);
    retranslate();
    emit stageMade();
}

void StagePlace::showPage()
{
    QWidget* const stage = m_stage ? static_cast<QWidget*>(m_stage) : m_unusable;
    m_pages->setCurrentWidget(m_notice->text().isEmpty() ? stage : m_notice);
}

void StagePlace::showEvent(QShowEvent* event)
{
    ensureStage();
    showPage();
    QWidget::showEvent(event);
}

/// The stage is worth more than what is around it.
void StagePlace::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_strip->setVisible(height() >= SmallestStage.height() + m_timeLine->sizeHint().height());
}

bool StagePlace::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_stage && event->type() == QEvent::Resize) {
        const QSize size = static_cast<QResizeEvent*>(event)->size();
        if (!size.isEmpty()) {
            m_stageSize = size;
            emit stageResized();
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace Zorv
