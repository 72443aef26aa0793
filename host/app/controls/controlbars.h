#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QAction;
class QMainWindow;
class QToolButton;
class QWidget;

namespace App {

class ActionRegistry;
class WindowActions;

/// The tool bars and panels of the window that hold published tools.
///
/// A bar is shown if it is not empty, its menu is not hidden and the user has not switched it off.
/// The bars switched off are stored in the setting "bars_off". Bars of the table have a fixed
/// place; any other name gets a tool bar at the end.
class ControlBars : public QObject
{
    Q_OBJECT

public:
    /// A child of the window. Adds the switches of the bars to `actions`.
    ControlBars(QMainWindow* window, WindowActions* actions);
    ~ControlBars() override;

    /// Adds a button to a bar, which is created if necessary.
    QToolButton* addButton(const QString& name, QAction* action);

    /// Adds a tool's widget to a bar. With `takesRoom` it gets all the remaining space of a panel.
    /// The bar owns it.
    void addWidget(const QString& name, const QString& tool, QWidget* widget, bool takesRoom);

    /// The same for a panel. The panel gets `title` if the table has none for it.
    void addPanel(const QString& name, QWidget* widget, const std::function<QString()>& title);

    /// Switches a bar or panel on, and raises a panel above the others in its dock.
    void bringForward(const QString& name);

    /// Switches a bar or panel off or on, like the user's own switch.
    void setOff(const QString& name, bool isOff);

    /// The content of a bar of kind `Page`. A part of the window shows it and owns it.
    QWidget* page(const QString& name);

    /// Adds the actions that the tables name to their bars, if they exist and are not there yet.
    void fill(const ActionRegistry* registry);

    /// Allows or hides the bars of a menu and a group.
    void setGroupEnabled(const QString& menu, const QString& group, bool isEnabled);

    /// False for a bar whose menu and group are hidden.
    bool isGroupEnabled(const QString& name) const;

    /// Applies the visibility of all bars. Call it after something else changed it, such as
    /// QMainWindow::restoreState().
    void updateVisibility();

    void retranslate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Bar;
    struct Private;

    Bar* find(const QString& name) const;
    Bar* bar(const QString& name);
    Bar* makeBar(const QString& name, bool isPanel = false);
    void makeToolBar(Bar* bar);
    void makePanel(Bar* bar);
    void makePage(Bar* bar);
    void addSwitch(const Bar* bar);
    void updateSoon();

    std::unique_ptr<Private> d;
};

}  // namespace App
