#pragma once

#include <QComboBox>

namespace Zorv {

/// A list in a tool bar, of which rows are picked to do something with them.
///
/// Keys and the wheel only choose what it shows; Return, or a click in the list,
/// picks, and Escape leaves. Its cost does not grow with the model, however often that
/// changes.
class PickBox : public QComboBox
{
    Q_OBJECT

public:
    /// The parent is needed: its colours are the box's.
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
