#pragma once

#include "editors/framework/control.h"

#include <QByteArray>
#include <QPointer>
#include <QWidget>

namespace Zorv {

/// A widget that its publisher has made: the grid of a palette, the options of a tool.
///
/// The host gives it a place, tells whether it is enabled, and does nothing else with it.
/// From `Interface::addControl()` on it belongs to what it is placed in, and goes with that.
/// A publisher that dies first takes it along: it keeps a `QPointer` and deletes it.
class ZORV_EXPORT OwnWidgetControl : public Control
{
public:
    /// The receiver, which may be null, is the publisher; `enableSignal` is a signal of it in
    /// the form of `SIGNAL()`, with a bool, by which it tells whether the widget is of use.
    explicit OwnWidgetControl(QWidget* widget, QObject* receiver = nullptr,
                              const char* enableSignal = nullptr);

    std::unique_ptr<Control> clone() const override;

    /// Null once it has died.
    QWidget* widget() const { return m_widget; }
    QObject* receiver() const { return m_receiver; }
    QByteArray enableSignal() const { return m_enableSignal; }

private:
    QPointer<QWidget> m_widget;
    QObject* m_receiver;
    QByteArray m_enableSignal;
};

}  // namespace Zorv
