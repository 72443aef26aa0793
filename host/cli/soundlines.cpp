#include "cli/soundlines.h"

#include "cli/options.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/assets/assetid.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace Cli {

QStringList columnsOf(const Zorv::SampleInfo& info)
{
    return {QString::number(info.channels), QString::number(info.bits),
            QString::number(info.sampleRate), QString::number(info.frames),
            QString::number(Operations::duration(info), 'f', 3)};
}

QJsonObject objectOf(const Zorv::SampleInfo& info)
{
    return {{QStringLiteral("channels"), info.channels},
            {QStringLiteral("bits"), info.bits},
            {QStringLiteral("rate"), info.sampleRate},
            {QStringLiteral("frames"), info.frames},
            {QStringLiteral("seconds"), Operations::duration(info)}};
}

void addPlace(QJsonObject* object, int row, Family::AssetId id)
{
    object->insert(QStringLiteral("index"), row);
    object->insert(QStringLiteral("group"), id.group);
    object->insert(QStringLiteral("number"), id.number);
}

Operations::SoundExtent extentOf(const Invocation& invocation)
{
    return invocation.isLenient ? Operations::SoundExtent::Whole : Operations::SoundExtent::AsTold;
}

int tellOfParts(const Operations::MediaResult& result)
{
    const int status = tell(result);
    if (result.isPart) {
        complain(QCoreApplication::translate(
            "Cli", "'--lenient' reads all frames that are there, whatever the sizes say."));
    }
    return status;
}

}  // namespace Cli
