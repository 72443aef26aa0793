#include "editors/framework/ownwidgetcontrol.h"

namespace Zorv {

OwnWidgetControl::OwnWidgetControl(QWidget* widget, QObject* receiver, const char* enableSignal)
    : m_widget(widget), m_receiver(receiver), m_enableSignal(enableSignal)
{
}

std::unique_ptr<Control> OwnWidgetControl::clone() const
{
    return std::make_unique<OwnWidgetControl>(*this);
}

}  // namespace Zorv
