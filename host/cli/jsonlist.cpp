#include "cli/jsonlist.h"

#include "cli/output.h"

#include <QJsonObject>

namespace Cli {

JsonList::~JsonList()
{
    m_output.write(m_isEmpty ? QStringLiteral("[]\n") : QStringLiteral("\n]\n"));
}

void JsonList::add(const QJsonObject& object)
{
    m_output.write(m_isEmpty ? QStringLiteral("[\n") : QStringLiteral(",\n"));
    m_output.write(jsonLine(object));
    m_isEmpty = false;
}

}  // namespace Cli
