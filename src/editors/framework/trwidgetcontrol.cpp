#include "editors/framework/trwidgetcontrol.h"

namespace Zorv {

trWidgetControl::trWidgetControl(Kind kind, int size, Translator* translator, unsigned textId,
                                 QObject* receiver, const char* changedSlot, const char* setSignal,
                                 const char* enableSignal, Flags flags)
    : WidgetControl(kind, size, receiver, changedSlot, setSignal, enableSignal, flags),
      m_translator(translator), m_textId(textId)
{
}

std::unique_ptr<Control> trWidgetControl::clone() const
{
    return std::make_unique<trWidgetControl>(*this);
}

SpinEditControl::SpinEditControl(int size, Translator* translator, unsigned textId,
                                 QObject* receiver, const char* changedSlot, const char* setSignal,
                                 const char* enableSignal)
    : trWidgetControl(SpinEdit, size, translator, textId, receiver, changedSlot, setSignal,
                      enableSignal)
{
}

std::unique_ptr<Control> SpinEditControl::clone() const
{
    return std::make_unique<SpinEditControl>(*this);
}

FloatEditControl::FloatEditControl(int size, Translator* translator, unsigned textId,
                                   QObject* receiver, const char* changedSlot,
                                   const char* setSignal, const char* enableSignal)
    : trWidgetControl(FloatEdit, size, translator, textId, receiver, changedSlot, setSignal,
                      enableSignal)
{
}

std::unique_ptr<Control> FloatEditControl::clone() const
{
    return std::make_unique<FloatEditControl>(*this);
}

ComboBoxControl::ComboBoxControl(int size, Translator* translator, unsigned textId,
                                 QObject* receiver, const char* changedSlot, const char* setSignal,
                                 const char* enableSignal)
    : trWidgetControl(ComboBox, size, translator, textId, receiver, changedSlot, setSignal,
                      enableSignal)
{
}

std::unique_ptr<Control> ComboBoxControl::clone() const
{
    return std::make_unique<ComboBoxControl>(*this);
}

}  // namespace Zorv
