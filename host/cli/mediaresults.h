#pragma once

#include <QStringList>

class QJsonObject;

namespace Family {
struct MediaResult;
}

namespace Cli {

class Output;

/// Says what went wrong; gives the status.
int tell(const Family::MediaResult& result);

/// Says it, unless it is empty because that was done; gives `NotDone`.
int notDone(const QString& error);

/// Says how a command that was not used right has to be; gives `WrongUsage`.
int wrongUsage(const QString& error);

/// A list of JSON objects, a line each.
class JsonList
{
public:
    explicit JsonList(Output& output) : m_output(output) {}
    ~JsonList();

    void add(const QJsonObject& object);

private:
    Output& m_output;
    bool m_isEmpty = true;
};

}  // namespace Cli
