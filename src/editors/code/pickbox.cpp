#include "editors/code/pickbox_p.h"

#include <QKeyEvent>
#include <QListView>
#include <QScopedValueRollback>

namespace Zorv {

namespace {

constexpr int PopupRows = 20;

}  // namespace

PickBox::PickBox(int characters, QWidget* parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(characters);
    setMaxVisibleItems(PopupRows);
    applySheet();
    parent->installEventFilter(this);
    if (auto* list = qobject_cast<QListView*>(view())) {
        list->setUniformItemSizes(true);
        list->setTextElideMode(Qt::ElideRight);
    }
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int row) {
        if (!m_isMoving) {
            emit picked(row);
        }
    });
}

/// Some styles size the popup for all rows, and so measure each one. This property
/// turns that off.
void PickBox::applySheet()
{
    setStyleSheet({});
    setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
}

/// Qt does not update the palette of a widget with a style sheet, so set the sheet
/// again.
bool PickBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::PaletteChange) {
        applySheet();
    }
    return QComboBox::eventFilter(watched, event);
}

void PickBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentIndex() >= 0) {
            emit picked(currentIndex());
        }
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        emit left();
        return;
    }
    const QScopedValueRollback<bool> moving(m_isMoving, true);
    QComboBox::keyPressEvent(event);
}

void PickBox::wheelEvent(QWheelEvent* event)
{
    const QScopedValueRollback<bool> moving(m_isMoving, true);
    QComboBox::wheelEvent(event);
}

}  // namespace Zorv
