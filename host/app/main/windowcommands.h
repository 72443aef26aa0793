#pragma once

#include "app/window/part.h"

#include <QObject>

namespace App {

class MainWindow;

/// What can be done with the window itself: its panels, settings and help, and its end.
class WindowCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit WindowCommands(MainWindow* window);

    QVector<ActionRow> actions() override;

private:
    void quit();
    void focusNextPanel();
    void focusPreviousPanel();
    void searchActions();
    void changeSettings();
    void listKeys();
    void tellAbout();

    MainWindow* m_window;
};

}  // namespace App
