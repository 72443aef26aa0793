#include "graphics/renderplace_p.h"

#include "graphics/glcontext.h"
#include "graphics/renderwidget.h"

#include <QLabel>

namespace Zorv {

namespace {

constexpr int TextMargin = 12;

}  // namespace

RenderPlace::RenderPlace(const QString& name, QWidget* parent)
    : QStackedWidget(parent), m_name(name), m_notice(makeText(name + QLatin1String("_notice"))),
      m_unusable(makeText(name + QLatin1String("_message")))
{
    m_notice->setEnabled(false);
}

QLabel* RenderPlace::makeText(const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(TextMargin);
    label->setMinimumSize(SmallestSize);
    addWidget(label);
    return label;
}

void RenderPlace::setNotice(const QString& text)
{
    m_notice->setText(text);
    ensureWidget();
    showPage();
}

void RenderPlace::setUnusableText(const QString& text)
{
    m_unusable->setText(text);
}

QSize RenderPlace::minimumSizeHint() const
{
    return SmallestSize;
}

/// Only with a usable context: a GL widget without one breaks the whole window.
void RenderPlace::ensureWidget()
{
    if (m_widget || !isVisible() || !m_notice->text().isEmpty() || !isContextUsable()) {
        return;
    }
    m_widget = new RenderWidget;
    m_widget->setObjectName(m_name);
    m_widget->setMinimumSize(SmallestSize);
    m_widget->setFocusPolicy(Qt::StrongFocus);
    m_widget->resize(size());  // so its first resize event has the final size
    addWidget(m_widget);
    emit widgetMade();
}

void RenderPlace::showPage()
{
    QWidget* const drawn = m_widget ? static_cast<QWidget*>(m_widget) : m_unusable;
    setCurrentWidget(m_notice->text().isEmpty() ? drawn : m_notice);
}

void RenderPlace::showEvent(QShowEvent* event)
{
    ensureWidget();
    showPage();
    QStackedWidget::showEvent(event);
}

}  // namespace Zorv
