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

/// Describes an action of an editor; see `Zorv::Interface::createAction()`.
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

/// Creates the tools that editors publish, and places them in the window.
///
/// `controllayout.h` defines where a tool goes, by its name. A tool is removed when its receiver is
/// destroyed. A new tool with the same name replaces the old one.
class ControlPlacer : public QObject
{
    Q_OBJECT

public:
    /// A child of the window.
    ControlPlacer(QMainWindow* window, WindowActions* actions);

    /// Null for a request without a name.
    QAction* createAction(const ActionRequest& request);

    /// Triggering it brings an editor to the front: the one named after "editor_" in `name`.
    QAction* createEditorAction(const QString& name, const Zorv::Translator* translator,
                                unsigned textId);

    /// The button or the widget; the window owns it. Null for a control of an unknown class or
    /// without a name.
    QObject* addControl(const QString& name, const Zorv::Control& control);

    /// The dock of a panel: the one with its tools, or a new one if the panel has its own widget.
    /// Null if it has neither.
    QDockWidget* addPanel(Zorv::ExtraEditor* panel);

    /// Shows the dock of a panel, raised above the others in its place. `bringForward()` takes its
    /// name; an empty panel appears once it is of use.
    void showPanel(const Zorv::ExtraEditor* panel);
    void bringForward(const char* panel);

    /// Hides a panel or bar until the user switches it on.
    void switchOff(const char* bar);

    /// Adds the actions named in the bar tables to their bars, whoever made them.
    void fillBars();

    /// The content of a bar of kind `BarRow::Page`: a tool bar, or rows of fields. A part of the
    /// window shows it and owns it.
    QWidget* page(const char* name);

    void setMenuEnabled(const char* menu, const char* group, bool isEnabled);

    /// Applies the visibility of all bars again, after something else showed or hid some.
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
    QMap<QPair<QByteArray, QByteArray>, bool> m_groups;  ///< by menu and group
};

}  // namespace App
