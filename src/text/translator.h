#pragma once

#include "zorv_export.h"

#include <QString>

class QMenu;

namespace Zorv {

/// A table of numbered texts: the labels and tool tips of actions and menus.
///
/// A tool is published with a translator and a number instead of a text. So a host can fetch all
/// texts again when the language changes. A translator has no state and lives as long as the
/// program.
class ZORV_EXPORT Translator
{
public:
    virtual ~Translator();

    /// The label; empty if the number has none.
    virtual QString trText(unsigned int id) const = 0;

    /// The tool tip, also used as status tip; empty if the number has none.
    virtual QString trToolTip(unsigned int id) const = 0;

    /// The long help text. Empty by default; a host may override it.
    virtual QString trWhatIsThis(unsigned int id) const;

    /// Sets the title, tool tip, status tip and long help of a menu.
    void trMenu(QMenu* menu, unsigned int id) const;
};

}  // namespace Zorv
