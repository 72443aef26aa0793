#include "cli/changing.h"
#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/progresshost.h"
#include "cli/results.h"
#include "cli/soundlines.h"
#include "cli/soundopening.h"
#include "family/assets/soundfile.h"
#include "operations/media/filepatterns.h"
#include "operations/media/soundwork.h"

#include <QJsonObject>
#include <memory>

namespace Cli {

int listSounds(const Invocation& invocation, Output& output)
{
    const OpenSounds sounds = openSounds(invocation.operands.first());
    if (!sounds) {
        return NotDone;
    }
    if (!invocation.json) {
        for (const auto& sound : sounds->items()) {
            output.writeLine(QStringList{QString::number(sound->row), sound->id().text()} +
                             columnsOf(sound->sampleInfo()));
        }
        return Fine;
    }
    JsonList list(output);
    for (const auto& sound : sounds->items()) {
        QJsonObject object = objectOf(sound->sampleInfo());
        addPlace(&object, sound->row, sound->id());
        list.add(object);
    }
    return Fine;
}

int exportSounds(const Invocation& invocation, Output&)
{
    ProgressHost host;
    const OpenSounds sounds = openSounds(invocation.operands.first());
    if (!sounds) {
        return NotDone;
    }
    Operations::OutputRequest request = invocation.output;
    request.place = invocation.operands.at(1);
    return tell(Operations::exportSounds(*sounds, invocation.selection, request));
}

int importSounds(const Invocation& invocation, Output&)
{
    const QString fileName = invocation.operands.first();
    QString error;
    const QStringList files = Operations::expandPatterns(invocation.operands.mid(1), &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    Operations::SoundImport request;
    request.group = invocation.group;
    request.force = invocation.output.force;
    request.extent = extentOf(invocation);
    return changeFile(fileName, [&]() -> int {
        const OpenSounds sounds = openOrNewSounds(fileName);
        if (!sounds) {
            return NotDone;
        }
        const int status = tellOfParts(Operations::importSounds(sounds.get(), files, request));
        return status == Fine ? saveSounds(sounds.get(), fileName) : status;
    });
}

int tellOfSounds(const Invocation& invocation, Output& output)
{
    QString error;
    const QStringList files = Operations::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    Operations::MediaResult result;
    std::unique_ptr<JsonList> list(invocation.json ? new JsonList(output) : nullptr);
    for (const QString& file : files) {
        Zorv::SoundSample sample;
        const Operations::Outcome outcome =
            Operations::readSound(file, extentOf(invocation), &sample);
        if (outcome.error.isEmpty() && list) {
            QJsonObject object = objectOf(sample);
            object.insert(QStringLiteral("file"), file);
            list->add(object);
        } else if (outcome.error.isEmpty()) {
            output.writeLine(QStringList{file} + columnsOf(sample));
        }
        result.note(outcome);
    }
    return tellOfParts(result);
}

}  // namespace Cli
