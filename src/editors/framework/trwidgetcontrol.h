#pragma once

#include "editors/framework/widgetcontrol.h"

namespace Zorv {

class Translator;

/// A widget whose label comes from a text table. For a check box it is the text.
///
/// The host reads label, tool tip and status tip from the translator by `textId`, and
/// again when the language changes.
class ZORV_EXPORT trWidgetControl : public WidgetControl
{
public:
    /// See `WidgetControl`. The translator is not owned, and must live as long as the
    /// widget.
    trWidgetControl(Kind kind, int size, Translator* translator, unsigned textId, QObject* receiver,
                    const char* changedSlot = nullptr, const char* setSignal = nullptr,
                    const char* enableSignal = nullptr, Flags flags = NoFlags);

    std::unique_ptr<Control> clone() const override;

    Translator* translator() const { return m_translator; }
    unsigned textId() const { return m_textId; }

private:
    Translator* m_translator;
    unsigned m_textId;
};

/// A field for a whole number; slot and signal take an `int`.
class ZORV_EXPORT SpinEditControl : public trWidgetControl
{
public:
    SpinEditControl(int size, Translator* translator, unsigned textId, QObject* receiver,
                    const char* changedSlot, const char* setSignal, const char* enableSignal);

    std::unique_ptr<Control> clone() const override;
};

/// A field for a real number; slot and signal take a `double`.
class ZORV_EXPORT FloatEditControl : public trWidgetControl
{
public:
    FloatEditControl(int size, Translator* translator, unsigned textId, QObject* receiver,
                     const char* changedSlot, const char* setSignal, const char* enableSignal);

    std::unique_ptr<Control> clone() const override;
};

/// A list to choose from; slot and signal take the row as an `int`.
class ZORV_EXPORT ComboBoxControl : public trWidgetControl
{
public:
    ComboBoxControl(int size, Translator* translator, unsigned textId, QObject* receiver,
                    const char* changedSlot, const char* setSignal, const char* enableSignal);

    std::unique_ptr<Control> clone() const override;
};

}  // namespace Zorv
