#pragma once

#include <QComboBox>

namespace Zorv {

/// A combo box in a tool bar whose rows trigger an action.
///
/// Keys and the wheel only change the shown row. Return, or a click in the list, emits
/// `picked()`; Escape emits `left()`. The cost does not depend on the size of the
/// model, nor on how often it changes.
class PickBox : public QComboBox
{
    Q_OBJECT

public:
    /// The parent must not be null: the box uses its colours.
    PickBox(int characters, QWidget* parent);

signals:
    void picked(int row);
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void applySheet();

    bool m_isMoving = false;
};

}  // namespace Zorv
