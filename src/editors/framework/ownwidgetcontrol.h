#pragma once

#include "editors/framework/control.h"

#include <QByteArray>
#include <QPointer>
#include <QWidget>

namespace Zorv {

/// A widget that its publisher has created: a palette grid, the options of a tool.
///
/// The host only places it and switches its enabled state. From `Interface::addControl()` on, the
/// widget belongs to the parent that it is placed in and dies with it. A publisher that dies first
/// must delete the widget: keep it in a `QPointer`.
class ZORV_EXPORT OwnWidgetControl : public Control
{
public:
    /// The receiver is the publisher and may be null. `enableSignal` is one of its signals in the
    /// form of `SIGNAL()`, with a bool: whether the widget is enabled.
    explicit OwnWidgetControl(QWidget* widget, QObject* receiver = nullptr,
                              const char* enableSignal = nullptr);

    std::unique_ptr<Control> clone() const override;

    /// Null once it was deleted.
    QWidget* widget() const { return m_widget; }
    QObject* receiver() const { return m_receiver; }
    QByteArray enableSignal() const { return m_enableSignal; }

private:
    QPointer<QWidget> m_widget;
    QObject* m_receiver;
    QByteArray m_enableSignal;
};

}  // namespace Zorv
