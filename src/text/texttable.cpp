#include "text/texttable_p.h"

#include <QCoreApplication>

namespace Zorv {

QString TextTable::trText(unsigned int id) const
{
    return has(id) ? translated(m_rows[id - m_first].label) : QString();
}

QString TextTable::trToolTip(unsigned int id) const
{
    return has(id) ? translated(m_rows[id - m_first].toolTip) : QString();
}

QString TextTable::translated(const char* text) const
{
    return text ? QCoreApplication::translate(m_context, text) : QString();
}

}  // namespace Zorv
