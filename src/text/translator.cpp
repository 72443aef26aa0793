#include "text/translator.h"

#include <QMenu>

namespace Zorv {

Translator::~Translator() = default;

QString Translator::trWhatIsThis(unsigned int) const
{
    return {};
}

void Translator::trMenu(QMenu* menu, unsigned int id) const
{
    menu->setTitle(trText(id));
    menu->setToolTip(trToolTip(id));
    menu->setStatusTip(menu->toolTip());
    menu->setWhatsThis(trWhatIsThis(id));
}

}  // namespace Zorv
