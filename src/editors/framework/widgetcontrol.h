#pragma once

#include "editors/framework/control.h"

#include <QByteArray>
#include <QFlags>

class QObject;

namespace Zorv {

/// A widget that the host creates for a tool: a slider, a field, a list.
///
/// Signatures have the form of `SLOT()` and `SIGNAL()`. The host connects user input to
/// `changedSlot()` of the receiver, and the receiver's `setSignal()` and
/// `enableSignal()` to the widget. Each may be empty. The input of each kind, and the
/// argument of slot and signal:
///
/// | Kind | User input | Argument |
/// |---|---|---|
/// | `Slider`, `SpinEdit` | chooses a value | `int` |
/// | `FloatEdit` | chooses a value | `double` |
/// | `ComboBox` | chooses a row | `int` |
/// | `CheckBox` | toggles it | `bool` |
/// | `Label` | - | `QString`, of `setSignal()` only |
/// | `ListView`, `TreeView` | double-clicks a row | `QModelIndex` |
///
/// A value set by `setSignal()` does not trigger `changedSlot()`. The publisher sets
/// range, entries and model on the widget that `Interface::addControl()` returns.
class ZORV_EXPORT WidgetControl : public Control
{
public:
    enum Kind { Slider, Label, CheckBox, SpinEdit, FloatEdit, ComboBox, ListView, TreeView };

    enum Flag {
        NoFlags = 0,
        SingleClick = 1,  ///< views: one click is enough
        Reorderable = 2   ///< views: rows can be dragged within the view, several at once
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    /// `size` is the wanted size: characters for a slider or a field, rows for a view,
    /// 0 for the default. The receiver is not owned. It outlives the widget, or the
    /// host disconnects when the receiver dies.
    WidgetControl(Kind kind, int size, QObject* receiver, const char* changedSlot = nullptr,
                  const char* setSignal = nullptr, const char* enableSignal = nullptr,
                  Flags flags = NoFlags);

    std::unique_ptr<Control> clone() const override;

    Kind kind() const { return m_kind; }
    int size() const { return m_size; }
    QObject* receiver() const { return m_receiver; }
    QByteArray changedSlot() const { return m_changedSlot; }
    QByteArray setSignal() const { return m_setSignal; }
    QByteArray enableSignal() const { return m_enableSignal; }
    Flags flags() const { return m_flags; }

private:
    Kind m_kind;
    int m_size;
    QObject* m_receiver;
    QByteArray m_changedSlot;
    QByteArray m_setSignal;
    QByteArray m_enableSignal;
    Flags m_flags;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(WidgetControl::Flags)

/// A list view; with `Reorderable` its rows can be dragged.
class ZORV_EXPORT ListViewControl : public WidgetControl
{
public:
    ListViewControl(int size, QObject* receiver, const char* doubleClickSlot,
                    Flags flags = NoFlags);

    std::unique_ptr<Control> clone() const override;
};

}  // namespace Zorv
