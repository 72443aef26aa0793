#pragma once

#include "text/translator.h"

#include <QObject>

namespace Zorv {

/// The texts of all tools of the library, in the language of the installed
/// `QTranslator`s.
///
/// Labels have the numbers 0 to 171, tool tips some of 1 to 155. All other
/// numbers give an empty text. Some numbers share the label of another number.
class ZORV_EXPORT ZorvTranslator : public Translator
{
    Q_GADGET

public:
    /// The one object, created on first use.
    static ZorvTranslator* instance();

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;
};

}  // namespace Zorv
