#include "operations/media/soundwork.h"

#include "family/assets/soundfile.h"
#include "family/assets/soundfiledata.h"
#include "operations/media/assetnames.h"
#include "operations/media/soundformats.h"

#include <zorv/core/files.h>
#include <zorv/core/progress.h>
#include <zorv/media/soundfile.h>
#include <zorv/media/wav.h>
#include <zorv/media/wavecontents.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <limits>

namespace Operations {

using Family::AssetHistory;
using Family::AssetId;
using Family::FamilySound;
using Family::SoundFile;

namespace {

const int PlainTag = 1;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SoundWork)
};

QString writeSound(const FamilySound& sound, const OutputFiles& outputs, int index)
{
    Zorv::SoundSample sample;
    static_cast<Zorv::SampleInfo&>(sample) = sound.sampleInfo();
    sample.data = sound.sampleData();
    if (sample.data.isEmpty() && sample.frames > 0) {
        return Text::tr("Sound %1 is broken.").arg(sound.id().text());
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!Zorv::saveSound(&buffer, outputs.format(index).constData(), sample)) {
        return Text::tr("Cannot write '%1': sounds are written as .wav.").arg(outputs.path(index));
    }
    return outputs.write(index, bytes);
}

/// The row of the sound that a target means; -1 if there is none.
int rowOf(const SoundFile& sounds, const ImportTarget& target)
{
    int row = -1;
    for (int copy = 0; copy < target.copy && (copy == 0 || row >= 0); ++copy) {
        row = sounds.find(row + 1, target.id.text());
    }
    return row;
}

/// Adds a sound, or replaces the one in a row.
Outcome putSound(SoundFile* sounds, int row, const ImportTarget& target, const QString& file,
                 SoundExtent extent)
{
    Zorv::SoundSample sample;
    Outcome outcome = readSound(file, extent, &sample);
    if (outcome.error.isEmpty()) {
        outcome.error = unfitText(file, sample);
    }
    if (!outcome.error.isEmpty()) {
        return outcome;
    }
    sounds->add(row < 0 ? int(sounds->count()) : row, target.id.text(), sample);
    if (row >= 0) {
        sounds->remove(unsigned(row + 1));
    }
    return outcome;
}

/// The name of a format tag; empty for a rare one.
QString formOfTag(int tag)
{
    static const struct
    {
        int tag;
        const char* form;
    } forms[] = {
        {2, QT_TRANSLATE_NOOP("Operations::SoundWork", "ADPCM")},
        {3, QT_TRANSLATE_NOOP("Operations::SoundWork", "floating point")},
        {6, QT_TRANSLATE_NOOP("Operations::SoundWork", "A-law")},
        {7, QT_TRANSLATE_NOOP("Operations::SoundWork", "mu-law")},
        {17, QT_TRANSLATE_NOOP("Operations::SoundWork", "ADPCM")},
        {85, QT_TRANSLATE_NOOP("Operations::SoundWork", "MP3")},
        {65534, QT_TRANSLATE_NOOP("Operations::SoundWork", "the extensible form")},
    };
    const auto found = std::find_if(std::begin(forms), std::end(forms),
                                    [tag](const auto& row) { return row.tag == tag; });
    return found == std::end(forms) ? QString() : Text::tr(found->form);
}

/// Clamped for plural forms. A file with more frames cannot be read anyway.
int numberOf(qint64 frames)
{
    return int(qBound<qint64>(0, frames, std::numeric_limits<int>::max()));
}

/// Why a file has no readable samples.
QString unreadText(const QString& fileName, const Zorv::WaveContents& contents)
{
    const int tag = contents.formatTag;
    if (tag == PlainTag && contents.info.frames > 0) {
        return Text::tr("Cannot read '%1': the sizes in it do not fit, and lead to none of its %n "
                        "frame(s).",
                        nullptr, numberOf(contents.info.frames))
            .arg(fileName);
    }
    if (tag == 0 || tag == PlainTag) {
        return Text::tr("Cannot read '%1': it is no WAV file with plain samples (PCM).")
            .arg(fileName);
    }
    const QString form = formOfTag(tag);
    return Text::tr(
               "Cannot read '%1': its samples are not plain ones (PCM), but of format %2. Save "
               "it as plain WAV, of 16 bits for example, with the program that made it.")
        .arg(fileName, form.isEmpty() ? QString::number(tag)
                                      : QStringLiteral("%1 (%2)").arg(QString::number(tag), form));
}

QString cutText(const QString& fileName, qint64 held, qint64 missing)
{
    return Text::tr("'%1' is cut short: of %n frame(s) it has %2.", nullptr,
                    numberOf(held + missing))
        .arg(fileName, QString::number(held));
}

/// Describes how much was read of a file that holds more or is truncated.
QString partText(const QString& fileName, qint64 read, const Zorv::WaveContents& contents)
{
    const qint64 held = contents.info.frames;
    if (read < held) {
        return Text::tr("Of the %n frame(s) in '%1' %2 are read: the sizes in it do not fit.",
                        nullptr, numberOf(held))
            .arg(fileName, QString::number(read));
    }
    return contents.missing == 0 ? QString() : cutText(fileName, held, contents.missing);
}

/// Reads a WAV file with PCM samples.
Outcome readPlain(const QString& fileName, QIODevice* file, SoundExtent extent,
                  const Zorv::WaveContents& contents, Zorv::SoundSample* sample)
{
    *sample =
        extent == SoundExtent::Whole ? Zorv::wholeSoundFromWAV(file) : Zorv::soundFromWAV(file);
    Outcome outcome;
    if (sample->data.isEmpty()) {
        outcome.error = unreadText(fileName, contents);
    } else {
        outcome.warning = partText(fileName, sample->frames, contents);
    }
    outcome.isPart = sample->frames < contents.info.frames;
    return outcome;
}

Outcome readDecoded(const QString& fileName, QIODevice* file, Zorv::SoundSample* sample)
{
    Outcome outcome;
    QString reason;
    qint64 missing = 0;
    *sample = decodeSound(file, &reason, &missing);
    if (sample->data.isEmpty()) {
        outcome.error = Text::tr("Cannot read '%1': %2.").arg(fileName, reason);
    } else if (missing > 0) {
        outcome.warning = cutText(fileName, sample->frames, missing);
    }
    return outcome;
}

QString unknownText(const QString& fileName)
{
    return Text::tr("Cannot read '%1': sounds are WAV, FLAC, Ogg Vorbis and Opus files (.wav, "
                    ".flac, .ogg, .oga, .opus).")
        .arg(fileName);
}

}  // namespace

Outcome readSound(const QString& fileName, SoundExtent extent, Zorv::SoundSample* sample)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return Text::tr("Cannot open '%1': %2. Check that the file is there and may be read.")
            .arg(fileName, file.errorString());
    }
    const QByteArray format = Zorv::fileExtension(fileName);
    const Zorv::WaveContents contents = Zorv::waveContents(&file);
    const bool isPlain = contents.formatTag == PlainTag;
    const bool isWave = format == "WAV" || contents.formatTag != 0;
    if (isPlain || (isWave && contents.formatTag == 0)) {
        const Outcome outcome = readPlain(fileName, &file, extent, contents, sample);
        if (isPlain || !sample->data.isEmpty() || !file.seek(0)) {
            return outcome;
        }
    }
    if (isWave || isDecodedFormat(format)) {
        const Outcome outcome = readDecoded(fileName, &file, sample);
        return isWave && sample->data.isEmpty() ? unreadText(fileName, contents) : outcome;
    }
    return Zorv::loadSound(&file, format.constData(), *sample) ? QString() : unknownText(fileName);
}

QString unfitText(const QString& fileName, const Zorv::SampleInfo& info)
{
    Zorv::SampleInfo form = info;
    form.frames = 1;
    return Family::SoundFileData::isFine(form)
               ? QString()
               : Text::tr("'%1' has a form that a sound file cannot hold. Expected 1 to 8 channels "
                          "of 8, 16, 24 or 32 bits, and 1 to 384000 frames a second.")
                     .arg(fileName);
}

QString partialSounds(const QStringList& files)
{
    QStringList texts;
    for (const QString& fileName : files) {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        const Zorv::WaveContents contents = Zorv::waveContents(&file);
        if (contents.formatTag == PlainTag && contents.reached < contents.info.frames) {
            texts.append(contents.reached > 0 ? partText(fileName, contents.reached, contents)
                                              : unreadText(fileName, contents));
        }
    }
    return texts.mid(0, 12).join(QLatin1Char('\n'));
}

double duration(const Zorv::SampleInfo& info)
{
    return info.sampleRate > 0 ? double(info.frames) / info.sampleRate : 0;
}

MediaResult exportSounds(const SoundFile& sounds, const Selection& selection,
                         const OutputRequest& request)
{
    const AssetHistory::Hold hold(sounds.steps());
    QVector<const FamilySound*> selected;
    QVector<AssetId> ids;
    for (const auto& sound : sounds.items()) {
        if (selection.contains(sound->id().group, sound->id().number)) {
            selected.append(sound.get());
            ids.append(sound->id());
        }
    }
    if (ids.isEmpty()) {
        return MediaResult(Text::tr("There is no such sound."));
    }
    OutputFiles outputs;
    MediaResult refusal;
    if (!outputs.plan(exportNames(ids), request, QByteArrayLiteral("WAV"), &refusal)) {
        return refusal;
    }
    MediaResult result;
    Zorv::Progress progress(Text::tr("Sounds"), selected.size());
    for (int i = 0; i < selected.size() && !result.isCanceled; ++i) {
        result.note(writeSound(*selected[i], outputs, i));
        result.isCanceled = !progress.step();
    }
    return result;
}

MediaResult importSounds(SoundFile* sounds, const QStringList& files, const SoundImport& request)
{
    const AssetHistory::Hold hold(sounds->steps());
    QString error;
    const QVector<ImportTarget> targets = importTargets(
        files, request.group, [sounds](AssetId id) { return sounds->freeId(id); }, &error);
    for (int i = 0; i < targets.size() && error.isEmpty(); ++i) {
        if (!request.force && rowOf(*sounds, targets[i]) >= 0) {
            MediaResult refusal(Text::tr("There is a sound %1 already, which '%2' would replace. "
                                         "Nothing is changed.")
                                    .arg(targets[i].id.text(), files[i]));
            refusal.isTaken = true;
            return refusal;
        }
    }
    if (!error.isEmpty()) {
        return MediaResult(error);
    }
    MediaResult result;
    Zorv::Progress progress(Text::tr("Sounds"), files.size());
    sounds->beginChange(Text::tr("Import sounds"));
    for (int i = 0; i < targets.size() && !result.isCanceled; ++i) {
        result.note(
            putSound(sounds, rowOf(*sounds, targets[i]), targets[i], files[i], request.extent));
        result.isCanceled = !progress.step();
    }
    sounds->endChange();
    if (result.done > 0 && (result.isCanceled || !result.errors.isEmpty())) {
        sounds->undo();
    }
    return result;
}

}  // namespace Operations
