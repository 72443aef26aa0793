#include "cli/changing.h"
#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/progresshost.h"
#include "cli/results.h"
#include "family/assets/soundfile.h"
#include "operations/media/filepatterns.h"
#include "operations/media/soundwork.h"

#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <memory>

namespace Cli {

namespace {

struct Release
{
    void operator()(Family::SoundFile* sounds) const { sounds->release(); }
};

using OpenSounds = std::unique_ptr<Family::SoundFile, Release>;

/// Null if the file cannot be read. What is wrong with it is told.
OpenSounds openSounds(const QString& fileName)
{
    OpenSounds sounds(new Family::SoundFile);
    if (!sounds->fromFile(*Zorv::FileSystemArchive::instance(), fileName, false)) {
        complain(sounds->errorString());
        return {};
    }
    const QStringList broken = sounds->loadErrors();
    for (const QString& line : broken) {
        complain(line);
    }
    return sounds;
}

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

}  // namespace

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
        object.insert(QStringLiteral("index"), sound->row);
        object.insert(QStringLiteral("group"), sound->id().group);
        object.insert(QStringLiteral("number"), sound->id().number);
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
        const OpenSounds sounds =
            QFileInfo::exists(fileName) ? openSounds(fileName) : OpenSounds(new Family::SoundFile);
        if (!sounds) {
            return NotDone;
        }
        const int status = tellOfParts(Operations::importSounds(sounds.get(), files, request));
        if (status != Fine || !sounds->isModified()) {
            return status;
        }
        return sounds->toFile(*Zorv::FileSystemArchive::instance(), fileName, false)
                   ? int(Fine)
                   : notDone(sounds->errorString());
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
