#include "app/stage/stageview.h"

#include "app/look/language.h"
#include "app/stage/stagerenderer.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/core/interface.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>
#include <zorv/graphics/renderwidget.h>

#include <QKeyEvent>
#include <QLabel>
#include <QResizeEvent>
#include <QToolBar>
#include <QVBoxLayout>
#include <QVariant>
#include <QWheelEvent>

// The stage's origin is stored as a fraction of its size. When the size changes, the origin is
// computed from that fraction. If the user moved the origin meanwhile, the fraction is first
// computed from the new place. The size is stored in the settings, so that the first size of the
// next session counts as a change too.

namespace App {

namespace {

const QString SizeKey = QStringLiteral("origin_size");
const QSize ButtonSize(16, 16);
const QSize UsualSize(640, 420);
const QSize SmallestStage(80, 45);

}  // namespace

StageView::StageView(Zorv::GraphicsWorkspace* workspace, StageRenderer* renderer, QToolBar* bar)
    : m_workspace(workspace), m_renderer(renderer), m_bar(bar), m_line(new QLabel),
      m_fault(new QLabel)
{
    m_bar->setIconSize(ButtonSize);
    m_line->setEnabled(false);
    m_line->setAlignment(Qt::AlignCenter);
    m_line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_line->hide();
    m_fault->setObjectName(QStringLiteral("stage_fault"));
    m_fault->setMargin(4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_line);
    layout->addWidget(m_bar);
    layout->addWidget(m_workspace->widget(), 1);
    connect(m_workspace, &Zorv::GraphicsWorkspace::renderWidgetMade, this, &StageView::followStage);
    followLanguage(this, [this] { retranslate(); });
}

void StageView::retranslate()
{
    m_workspace->setUnusableText(
        tr("The stage cannot be shown: OpenGL does not work on this display. "
           "Texts, lists and the time line work as ever. A driver for the "
           "graphics card, or Mesa's software OpenGL, brings the stage back."));
}

void StageView::followStage()
{
    m_workspace->renderWidget()->setMouseTracking(true);
    m_workspace->renderWidget()->installEventFilter(this);
}

QWidget* StageView::focusTarget() const
{
    return m_workspace->renderWidget() ? static_cast<QWidget*>(m_workspace->renderWidget())
                                       : m_workspace->timeLine();
}

void StageView::setHint(const QString& text)
{
    m_line->setText(text);
    m_workspace->setNotice(text);
}

void StageView::setEmpty(bool isEmpty)
{
    m_isEmpty = isEmpty;
    m_line->setVisible(isEmpty);
    m_workspace->widget()->setHidden(isEmpty);
    showWhatFits();
}

void StageView::setFault(const QString& text)
{
    if (!m_fault->parentWidget()) {
        m_bar->addWidget(m_fault);
    }
    m_fault->setText(text);
}

/// The stage is more important than the bar and the time line.
void StageView::showWhatFits()
{
    m_bar->setVisible(!m_isEmpty &&
                      height() >= SmallestStage.height() + m_bar->sizeHint().height());
}

QSize StageView::sizeHint() const
{
    return UsualSize;
}

QSize StageView::minimumSizeHint() const
{
    return {SmallestStage.width(),
            m_isEmpty ? m_line->sizeHint().height() : SmallestStage.height()};
}

void StageView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showWhatFits();
}

bool StageView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_workspace->renderWidget()) {
        if (event->type() == QEvent::Resize) {
            keepOrigin(static_cast<QResizeEvent*>(event)->size());
        } else if (event->type() == QEvent::Wheel) {
            m_renderer->setPointer(static_cast<QWheelEvent*>(event)->position().toPoint());
        } else if (event->type() == QEvent::Leave) {
            emit pointerLeft();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void StageView::keyPressEvent(QKeyEvent* event)
{
    if (m_workspace->renderWidget() && m_workspace->renderWidget()->hasFocus()) {
        event->accept();
    } else {
        QWidget::keyPressEvent(event);
    }
}

/// Keeps the contents in view when panels change size, and at the next start.
void StageView::keepOrigin(QSize size)
{
    if (size.isEmpty()) {
        return;
    }
    auto* host = Zorv::Interface::instance();
    const QPoint origin = m_renderer->origin();
    const bool isFirst = m_size.isEmpty();
    const QSize before = isFirst ? host->option(SizeKey).toSize() : m_size;
    m_size = size;
    if (!before.isEmpty()) {
        placeOrigin(origin, !isFirst && origin == m_origin ? QSize() : before);
    }
    host->setOption(SizeKey, size);
    if (isFirst) {
        emit placed();
    }
}

/// `origin` is a place on a stage of `size`; an empty size keeps the last place set here.
void StageView::placeOrigin(QPoint origin, QSize size)
{
    // An origin set here keeps its exact fraction, or rounding errors would add up.
    if (!size.isEmpty()) {
        m_originShare = {origin.x() / double(size.width()), origin.y() / double(size.height())};
    }
    m_origin = QPoint(qRound(m_originShare.x() * m_size.width()),
                      qRound(m_originShare.y() * m_size.height()));
    m_renderer->setOrigin(m_origin);
}

}  // namespace App
