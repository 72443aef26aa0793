#pragma once

#include <QObject>

class QDockWidget;
class QMainWindow;

namespace App {

class MessagePanel;

/// Controls the height of the message panel: as the user left it, or one line without a title while
/// there are no messages.
class MessageRoom : public QObject
{
public:
    /// All of them outlive this object.
    MessageRoom(QMainWindow* window, QDockWidget* dock, MessagePanel* panel);

protected:
    /// The panel gets its first size when it is shown.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QMainWindow* m_window;
    QDockWidget* m_dock;
    MessagePanel* m_panel;
    bool m_isLine = false;
};

}  // namespace App
