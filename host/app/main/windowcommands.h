#pragma once

#include "app/window/part.h"

#include <QObject>

namespace App {

class MainWindow;

/// Commands for the window itself: panels, settings, help, quitting.
class WindowCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window.
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
