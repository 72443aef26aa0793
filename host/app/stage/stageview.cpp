#include "app/stage/stageview.h"

#include "app/look/language.h"
#include "app/stage/stagerenderer.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/graphics/glcontext.h>
#include <zorv/graphics/renderwidget.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace App {

namespace {

const QSize ButtonSize(16, 16);
const QSize UsualSize(640, 420);
const QSize SmallestStage(80, 45);

QLabel* makeMessage()
{
    auto* label = new QLabel;
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(12);
    label->setMinimumSize(SmallestStage);
    return label;
}

}  // namespace

StageView::StageView(QWidget* parent)
    : QWidget(parent), m_renderer(new StageRenderer(this)),
      m_timeLine(new Zorv::TimeLineWidget(this)), m_bar(new QToolBar(this)),
      m_pages(new QStackedWidget(this)), m_hint(makeMessage()), m_line(new QLabel(this)),
      m_info(new QLabel)
{
    m_bar->setObjectName(QStringLiteral("stage_tools"));
    m_bar->setIconSize(ButtonSize);
    m_pages->addWidget(m_hint);
    m_hint->setEnabled(false);
    m_line->setEnabled(false);
    m_line->setAlignment(Qt::AlignCenter);
    m_line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_line->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_line);
    layout->addWidget(m_bar);
    layout->addWidget(m_pages, 1);
    m_timeLine->setWholePages(true);
    m_timeLine->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(m_timeLine);
    m_info->setMargin(4);
    followLanguage(this, [this] { retranslate(); });
}

StageView::~StageView()
{
    if (m_widget) {
        m_widget->setRenderer(nullptr);
    }
}

/// A GL widget that cannot have a context would take the whole window with it.
QWidget* StageView::makeStage()
{
    if (!Zorv::isContextUsable()) {
        m_message = makeMessage();
        m_message->setObjectName(QStringLiteral("stage_message"));
        return m_message;
    }
    m_widget = new Zorv::RenderWidget;
    m_widget->setObjectName(QStringLiteral("stage"));
    m_widget->setMinimumSize(SmallestStage);
    m_widget->setFocusPolicy(Qt::StrongFocus);
    m_widget->setMouseTracking(true);
    m_widget->setRenderer(m_renderer);
    m_widget->installEventFilter(this);
    return m_widget;
}

void StageView::retranslate()
{
    m_timeLine->setAccessibleName(tr("Time line"));
    m_bar->setAccessibleName(tr("Tools of the stage"));
    m_info->setToolTip(tr("Frame, number of frames, and how long the animation is"));
    if (m_widget) {
        m_widget->setAccessibleName(tr("Stage"));
    }
    if (m_message) {
        m_message->setText(tr("The stage cannot be shown: OpenGL does not work on this display. "
                              "Texts, lists and the time line work as ever. A driver for the "
                              "graphics card, or Mesa's software OpenGL, brings the stage back."));
    }
}

QWidget* StageView::focusTarget() const
{
    return m_widget ? static_cast<QWidget*>(m_widget) : m_timeLine;
}

void StageView::setHint(const QString& text)
{
    m_hint->setText(text);
    m_line->setText(text);
    m_pages->setCurrentWidget(text.isEmpty() || !m_widget ? m_pages->widget(0) : m_hint);
}

void StageView::setEmpty(bool isEmpty)
{
    m_isEmpty = isEmpty;
    if (isVisible()) {
        ensureStage();
    }
    m_line->setVisible(isEmpty);
    m_pages->setHidden(isEmpty);
    showWhatFits();
}

/// The stage itself is worth more than what is around it.
void StageView::showWhatFits()
{
    const int room = height() - SmallestStage.height();
    const int bar = m_bar->sizeHint().height();
    m_bar->setVisible(!m_isEmpty && room >= bar);
    m_timeLine->setVisible(!m_isEmpty && room >= bar + m_timeLine->sizeHint().height());
}

QSize StageView::minimumSizeHint() const
{
    return {SmallestStage.width(),
            m_isEmpty ? m_line->sizeHint().height() : SmallestStage.height()};
}

void StageView::showEvent(QShowEvent* event)
{
    ensureStage();
    QWidget::showEvent(event);
}

void StageView::ensureStage()
{
    if (m_pages->count() == 1 && !m_isEmpty) {
        m_pages->insertWidget(0, makeStage());
        retranslate();
        setHint(m_hint->text());
    }
}

void StageView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showWhatFits();
}

void StageView::setInfo(const QString& text)
{
    if (!m_info->parentWidget()) {
        auto* gap = new QWidget;
        gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        m_bar->addWidget(gap);
        m_bar->addWidget(m_info);
    }
    m_info->setText(text);
}

QSize StageView::sizeHint() const
{
    return UsualSize;
}

bool StageView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_widget && event->type() == QEvent::Resize) {
        keepOrigin(static_cast<QResizeEvent*>(event)->size());
    } else if (watched == m_widget && event->type() == QEvent::Wheel) {
        m_renderer->setPointer(static_cast<QWheelEvent*>(event)->position().toPoint());
    } else if (watched == m_widget && event->type() == QEvent::Leave) {
        emit pointerLeft();
    }
    return QWidget::eventFilter(watched, event);
}

void StageView::keyPressEvent(QKeyEvent* event)
{
    if (m_widget && m_widget->hasFocus()) {
        event->accept();
    } else {
        QWidget::keyPressEvent(event);
    }
}

/// What stands on the stage stays in sight when panels move.
void StageView::keepOrigin(QSize size)
{
    if (size.isEmpty()) {
        return;
    }
    if (m_size.isEmpty()) {
        m_size = size;
        emit placed(size);
    } else {
        const QPoint origin = m_renderer->origin();
        const QSize before = m_size;
        m_size = size;
        placeOrigin(origin, origin == m_origin ? QSize() : before);
    }
}

void StageView::placeOrigin(QPoint origin, QSize size)
{
    // One that was put here keeps its share, or what is rounded would add up.
    if (!size.isEmpty()) {
        m_originShare = {origin.x() / double(size.width()), origin.y() / double(size.height())};
    }
    m_origin = QPoint(qRound(m_originShare.x() * m_size.width()),
                      qRound(m_originShare.y() * m_size.height()));
    m_renderer->setOrigin(m_origin);
}

}  // namespace App
