#pragma once

#include "editors/framework/control.h"

#include <QByteArray>
#include <QFlags>

class QObject;

namespace Zorv {

/// A widget that the host makes for a tool: a slider, a field, a list.
///
/// Signatures have the form of `SLOT()` and `SIGNAL()`. The host connects what
/// the person does with the widget to `changedSlot()` of the receiver, and the
/// receiver's `setSignal()` and `enableSignal()` to the widget; each may be
/// empty. What the person does, and the argument of slot and signal:
///
/// | Kind | The person | Argument |
/// |---|---|---|
/// | `Slider`, `SpinEdit` | chooses a value | `int` |
/// | `FloatEdit` | chooses a value | `double` |
/// | `ComboBox` | chooses a row | `int` |
/// | `CheckBox` | switches it | `bool` |
/// | `Label` | - | `QString`, of `setSignal()` alone |
/// | `ListView`, `TreeView` | double clicks a row | `QModelIndex` |
///
/// What `setSignal()` sets is not told to `changedSlot()`. Range, entries and
/// model are the publisher's, who gets the widget from `Interface::addControl()`.
class ZORV_EXPORT WidgetControl : public Control
{
public:
    enum Kind { Slider, Label, CheckBox, SpinEdit, FloatEdit, ComboBox, ListView, TreeView };

    enum Flag {
        NoFlags = 0,
        SingleClick = 1,  ///< of a view: one click is enough
        Reorderable = 2   ///< of a view: rows can be dragged within it, several at once
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    /// `size` is the room that the widget wants: for a slider or a field in
    /// characters, for a view in rows; 0 for what is usual. The receiver is not
    /// owned and outlives the widget, or the host disconnects with it.
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
