#pragma once

#include "zorv_export.h"

#include <QString>

class QMenu;

namespace Zorv {

/// A table of numbered texts: the labels and tool tips of actions and menus.
///
/// Tools are published with a translator and a number, so that a host can ask
/// again for all texts when the language changes. A translator has no state and
/// lives as long as the program.
class ZORV_EXPORT Translator
{
public:
    virtual ~Translator();

    /// The label; empty for a number without one.
    virtual QString trText(unsigned int id) const = 0;

    /// The tool tip, which serves as status tip too; empty for a number without one.
    virtual QString trToolTip(unsigned int id) const = 0;

    /// The longer help; empty for every number, unless a host knows one.
    virtual QString trWhatIsThis(unsigned int id) const;

    /// Gives a menu its title, tool tip, status tip and longer help.
    void trMenu(QMenu* menu, unsigned int id) const;
};

}  // namespace Zorv
