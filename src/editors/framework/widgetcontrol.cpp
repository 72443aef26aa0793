#include "editors/framework/widgetcontrol.h"

namespace Zorv {

WidgetControl::WidgetControl(Kind kind, int size, QObject* receiver, const char* changedSlot,
                             const char* setSignal, const char* enableSignal, Flags flags)
    : m_kind(kind), m_size(size), m_receiver(receiver), m_changedSlot(changedSlot),
      m_setSignal(setSignal), m_enableSignal(enableSignal), m_flags(flags)
{
}

std::unique_ptr<Control> WidgetControl::clone() const
{
    return std::make_unique<WidgetControl>(*this);
}

ListViewControl::ListViewControl(int size, QObject* receiver, const char* doubleClickSlot,
                                 Flags flags)
    : WidgetControl(ListView, size, receiver, doubleClickSlot, nullptr, nullptr, flags)
{
}

std::unique_ptr<Control> ListViewControl::clone() const
{
    return std::make_unique<ListViewControl>(*this);
}

}  // namespace Zorv
