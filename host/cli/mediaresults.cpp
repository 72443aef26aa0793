#include "mediaresults.h"

#include "cli.h"
#include "notedsignals.h"
#include "operations/media/imageedits.h"
#include "output.h"

#include <QCoreApplication>

namespace Cli {

int tell(const Family::MediaResult& result)
{
    for (const QString& error : result.errors) {
        complain(error);
    }
    if (result.isCanceled) {
        complain(QCoreApplication::translate("Cli", "Given up. Files that are written are whole."));
        return NotedSignals::exitStatus();
    }
    return result.errors.isEmpty() ? Fine : NotDone;
}

int notDone(const QString& error)
{
    if (!error.isEmpty()) {
        complain(error);
    }
    return NotDone;
}

int wrongUsage(const QString& error)
{
    complain(error);
    return WrongUsage;
}

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
