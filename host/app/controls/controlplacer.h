#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QPair>
#include <QPointer>

class QAction;
class QActionGroup;
class QCheckBox;
class QDockWidget;
class QMainWindow;
class QToolButton;

namespace Zorv {
class Control;
class ExtraEditor;
class ToolButtonControl;
class Translator;
class WidgetControl;
}  // namespace Zorv

namespace App {

class AreaGate;
class ControlBars;
class ControlBox;
class WindowActions;

/// What an action of an editor is to be; see `Zorv::Interface::createAction()`.
struct ActionRequest
{
    const char* const* areas;
    QString name;
    const Zorv::Translator* translator;
    unsigned textId;
    const char* shortcut;
    QObject* receiver;
    const char* slot;
    const char* enableSignal;
    const char* checkSignal;
};

/// Makes the tools that editors publish, and gives them their places in the window.
///
/// Where a tool stands tells `controllayout.h`, by its name. A tool goes when its receiver
/// dies, and one that comes under the name of another takes its place.
class ControlPlacer : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    ControlPlacer(QMainWindow* window, WindowActions* actions);

    /// Null for a request without a name.
    QAction* createAction(const ActionRequest& request);

    /// Its trigger brings the editor forward that is named behind "editor_".
    QAction* createEditorAction(const QString& name, const Zorv::Translator* translator,
                                unsigned textId);

    /// The button or the widget, of which the window stays or becomes the owner; null for a
    /// control of an unknown class, and for one without a name.
    QObject* addControl(const QString& name, const Zorv::Control& control);

    /// The dock of a panel, which is that of its tools, or with a widget of its own one that is
    /// made for it; null for a panel that has neither.
    QDockWidget* addPanel(Zorv::ExtraEditor* panel);

    /// Shows the dock of a panel, in front of those in its place; the second one when it is of use.
    void showPanel(const Zorv::ExtraEditor* panel);
    void bringForward(const char* panel);

    /// Hides a panel or a bar until the person switches it on.
    void switchOff(const char* bar);

    /// Puts the actions that the tables of the bars name into these, whoever has made them.
    void fillBars();

    /// What a bar of the kind `BarRow::Page` consists of: a tool bar, or rows of fields. It is for
    /// a part of the window to put up and own.
    QWidget* page(const char* name);

    void setMenuEnabled(const char* menu, const char* group, bool isEnabled);

    /// Bars that have been shown or hidden by something else go back to how they are to be.
    void updateVisibility();

    void retranslate();

private:
    QAction* addAction(const ActionRequest& request);
    QToolButton* addButton(const QString& name, const Zorv::ToolButtonControl& control);
    template <typename WidgetKind>
    QWidget* addWidget(const QString& name, const WidgetKind& control);
    void addSwitch(const QString& name, const Zorv::WidgetControl& control, QCheckBox* check);
    void keepGate(const QString& name, AreaGate* gate);

    QMainWindow* m_window;
    WindowActions* m_actions;
    ControlBars* m_bars;
    QActionGroup* m_editors;
    QHash<QString, QPointer<ControlBox>> m_boxes;
    QMultiHash<QString, QPointer<AreaGate>> m_gates;
    QMap<QPair<QByteArray, QByteArray>, bool> m_groups;  ///< of a menu and a group
};

}  // namespace App
