#include "operations/media/soundwork.h"

#include "assets/soundfile.h"
#include "core/files.h"
#include "media/soundfile.h"
#include "operations/media/assetnames.h"
#include "operations/media/jobs.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

namespace Family {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::SoundWork)
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

/// The sound that a target means; -1 if there is none yet.
int rowOf(const SoundFile& sounds, const ImportTarget& target)
{
    int row = -1;
    for (int copy = 0; copy < target.copy && (copy == 0 || row >= 0); ++copy) {
        row = sounds.find(row + 1, target.id.text());
    }
    return row;
}

/// Adds a sound, or replaces the one of a row. Empty if that was done, else why not.
QString putSound(SoundFile* sounds, int row, const ImportTarget& target, const QString& file)
{
    Zorv::SoundSample sample;
    QString error;
    if (!readSound(file, &sample, &error)) {
        return error;
    }
    FamilySound* sound =
        sounds->add(row < 0 ? int(sounds->count()) : row, target.id.text(), sample);
    if (!sound) {
        return Text::tr("'%1' has a form that a sound file cannot hold. Expected 1 to 8 channels "
                        "of 8, 16, 24 or 32 bits.")
            .arg(file);
    }
    if (row >= 0) {
        sounds->remove(unsigned(row + 1));
    }
    return {};
}

}  // namespace

bool readSound(const QString& fileName, Zorv::SoundSample* sample, QString* error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Text::tr("Cannot open '%1': %2. Check that the file is there and may be read.")
                     .arg(fileName, file.errorString());
    } else if (!Zorv::loadSound(&file, Zorv::fileExtension(fileName).constData(), *sample)) {
        *error =
            Text::tr("Cannot read '%1': it is no WAV file with plain samples (PCM).").arg(fileName);
    }
    return error->isEmpty();
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
    JobProgress progress(Text::tr("Sounds"), selected.size());
    for (int i = 0; i < selected.size() && !result.isCanceled; ++i) {
        result.note(writeSound(*selected[i], outputs, i));
        result.isCanceled = !progress.step();
    }
    return result;
}

MediaResult importSounds(SoundFile* sounds, const QStringList& files, int group, bool force)
{
    const AssetHistory::Hold hold(sounds->steps());
    QString error;
    const QVector<ImportTarget> targets = importTargets(
        files, group, [sounds](AssetId id) { return sounds->freeId(id); }, &error);
    for (int i = 0; i < targets.size() && error.isEmpty(); ++i) {
        if (!force && rowOf(*sounds, targets[i]) >= 0) {
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
    JobProgress progress(Text::tr("Sounds"), files.size());
    sounds->beginChange(Text::tr("Import sounds"));
    for (int i = 0; i < targets.size() && !result.isCanceled; ++i) {
        result.note(putSound(sounds, rowOf(*sounds, targets[i]), targets[i], files[i]));
        result.isCanceled = !progress.step();
    }
    sounds->endChange();
    if (result.done > 0 && (result.isCanceled || !result.errors.isEmpty())) {
        sounds->undo();
    }
    return result;
}

}  // namespace Family
