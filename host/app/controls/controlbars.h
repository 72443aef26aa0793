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

/// The tool bars and panels of the window that take published tools.
///
/// One is shown while something stands in it, its menu is not hidden and the person has not
/// switched it off, which is kept as the setting "bars_off". Bars of the table have their place;
/// any other name gets a tool bar at the end.
class ControlBars : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window. The switches of the bars go to `actions`.
    ControlBars(QMainWindow* window, WindowActions* actions);
    ~ControlBars() override;

    /// Puts a button into the bar of a name, which is made if need be.
    QToolButton* addButton(const QString& name, QAction* action);

    /// Puts the widget of a tool into a bar; `takesRoom` for one that takes all that is left in a
    /// panel. The bar owns it.
    void addWidget(const QString& name, const QString& tool, QWidget* widget, bool takesRoom);

    /// The same into the panel of a name, which gets that title if the table has none.
    void addPanel(const QString& name, QWidget* widget, const std::function<QString()>& title);

    /// Switches a bar or panel on, and shows a panel in front of those in its place.
    void bringForward(const QString& name);

    /// Switches a bar or panel off or on, as the person does.
    void setOff(const QString& name, bool isOff);

    /// What a bar of the kind `Page` consists of, for a part of the window to put up and own.
    QWidget* page(const QString& name);

    /// The actions of the tables that are there, and in no bar yet.
    void fill(const ActionRegistry* registry);

    /// Allows the bars of a menu and a group, or hides them.
    void setGroupEnabled(const QString& menu, const QString& group, bool isEnabled);

    /// False for a bar whose menu and group are hidden.
    bool isGroupEnabled(const QString& name) const;

    /// Shows what is to be shown. To be called after something else has changed that,
    /// such as QMainWindow::restoreState().
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
