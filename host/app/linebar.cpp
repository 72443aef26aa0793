#include "app/linebar.h"

#include "app/look/language.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>

namespace App {

LineBar::LineBar(QWidget* parent) : QWidget(parent), m_line(new QSpinBox(this))
{
    auto* label = new QLabel(this);
    label->setBuddy(m_line);
    followLanguage(this, [this, label] {
        label->setText(tr("&Go to line:"));
        m_line->setAccessibleName(tr("Line to go to"));
    });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(label);
    layout->addWidget(m_line);
    layout->addStretch();
    m_line->installEventFilter(this);
    hide();
}

void LineBar::ask(int line, int lineCount)
{
    m_line->setRange(1, lineCount);
    m_line->setValue(line + 1);
    m_line->selectAll();
    show();
    m_line->setFocus();
}

bool LineBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isDone = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isDone && key != Qt::Key_Escape) {
        return QWidget::eventFilter(watched, event);
    }
    m_line->interpretText();
    hide();
    if (isDone) {
        emit lineChosen(m_line->value() - 1);
    }
    emit closed();
    return true;
}

}  // namespace App
