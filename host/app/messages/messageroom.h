#pragma once

#include <QObject>

class QDockWidget;
class QMainWindow;

namespace App {

class MessagePanel;

/// How high the panel of messages is: as the person has left it, and one line without a title while
/// there are none.
class MessageRoom : public QObject
{
public:
    /// All outlive this.
    MessageRoom(QMainWindow* window, QDockWidget* dock, MessagePanel* panel);

protected:
    /// The panel has its first size when it is shown.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QMainWindow* m_window;
    QDockWidget* m_dock;
    MessagePanel* m_panel;
    bool m_isLine = false;
};

}  // namespace App
