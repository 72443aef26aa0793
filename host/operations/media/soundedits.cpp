#include "operations/media/soundedits.h"

#include "family/assets/soundfile.h"
#include "operations/media/selection.h"
#include "operations/media/soundloudness.h"

#include <zorv/core/jobs.h>
#include <zorv/media/soundconversion.h>
#include <zorv/media/soundedits.h>

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <memory>

namespace Operations {

using Family::FamilySound;
using Family::SoundFile;
using Zorv::SampleInfo;
using Zorv::SoundRange;
using Zorv::SoundSample;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SoundEdits)
};

EditedSound faultOf(const QString& fault)
{
    EditedSound edited;
    edited.fault = fault;
    return edited;
}

QString number(double value)
{
    return QString::number(value, 'f', 1);
}

int frameAt(const SampleInfo& info, double seconds)
{
    return int(std::lround(std::clamp(seconds * info.sampleRate, 0.0, double(info.frames))));
}

EditedSound withPeak(const SoundSample& sound, double peak)
{
    EditedSound edited;
    const double now = Zorv::peakOf(sound, Zorv::wholeSound(sound));
    if (now <= 0) {
        return faultOf(Text::tr("it is silent"));
    }
    edited.sample = Zorv::normalizeSound(sound, Zorv::wholeSound(sound), peak);
    edited.gain = decibelsOf(peak / now);
    return edited;
}

EditedSound withLoudness(const SoundSample& sound, double wanted, double peak)
{
    const SoundLoudness loudness = loudnessOf(sound);
    switch (loudness.outcome) {
    case SoundLoudness::Measured:
        break;
    case SoundLoudness::TooShort:
        return faultOf(Text::tr("it is too short: a loudness takes 0.4 seconds"));
    case SoundLoudness::Silent:
        return faultOf(Text::tr("it is silent"));
    case SoundLoudness::Unmeasured:
        return faultOf(Text::tr("it cannot be measured"));
    }
    const double most = factorOf(peak);
    const double reached = loudness.samplePeak * factorOf(wanted - loudness.integrated);
    EditedSound edited = withPeak(sound, std::min(reached, most));
    if (reached > most) {
        edited.warning = Text::tr("it reaches %1 LUFS: louder, its peaks would be above %2 dB")
                             .arg(number(loudness.integrated + edited.gain), number(peak));
    }
    return edited;
}

/// An edit of the sounds of a collection.
class Editing
{
public:
    Editing(SoundFile* sounds, const Selection& selection, QVector<SoundChange>* changes)
        : m_sounds(sounds), m_changes(changes)
    {
        for (const auto& sound : sounds->items()) {
            if (selection.contains(sound->id().group, sound->id().number)) {
                m_rows.append(sound->row);
            }
        }
    }

    MediaResult run(const QString& title, const SoundEdit& edit);

private:
    /// The result of a worker thread for one sound.
    struct Made
    {
        EditedSound edited;
        std::shared_ptr<const void> packed;
    };

    std::function<Made()> work(int index, const SoundEdit& edit) const;
    void take(int index, const EditedSound& edited);

    SoundFile* m_sounds;
    QVector<SoundChange>* m_changes;
    QVector<int> m_rows;
    MediaResult m_result;
};

std::function<Editing::Made()> Editing::work(int index, const SoundEdit& edit) const
{
    const FamilySound* sound = m_sounds->sound(m_rows[index]);
    SoundSample sample;
    static_cast<SampleInfo&>(sample) = sound->sampleInfo();
    return [sample, edit, isBroken = !sound->fault().isEmpty(), reader = sound->sampleReader(),
            packer = m_sounds->packer()]() mutable {
        sample.data = reader();
        if (isBroken || (sample.data.isEmpty() && sample.frames > 0)) {
            return Made{faultOf(Text::tr("it is broken")), {}};
        }
        Made made{edit(sample), {}};
        SoundSample& result = made.edited.sample;
        if (Zorv::isSameForm(sample, result) && sample.data == result.data) {
            result = {};  // unchanged: nothing to store
        } else if (made.edited.fault.isEmpty()) {
            made.packed = packer(result.data);
        }
        return made;
    };
}

void Editing::take(int index, const EditedSound& edited)
{
    FamilySound* sound = m_sounds->sound(m_rows[index]);
    if (!edited.fault.isEmpty()) {
        m_result.warnings.append(
            Text::tr("Sound %1 stays as it is: %2.").arg(sound->id().text(), edited.fault));
        return;
    }
    ++m_result.done;
    if (!edited.warning.isEmpty()) {
        m_result.warnings.append(Text::tr("Sound %1: %2.").arg(sound->id().text(), edited.warning));
    }
    if (!edited.sample.data.isEmpty()) {
        sound->setSample(edited.sample, edited.sample.data);
        m_changes->append({sound->row, sound->id(), sound->sampleInfo(), edited.gain});
    }
}

MediaResult Editing::run(const QString& title, const SoundEdit& edit)
{
    if (m_rows.isEmpty()) {
        return MediaResult(Text::tr("There is no such sound."));
    }
    m_sounds->beginChange(title);
    m_result.isCanceled = !Zorv::runJobs<Made>(
        title, m_rows.size(), [&](int i) { return work(i, edit); },
        [&](int i, const Made& made) { take(i, made.edited); });
    m_sounds->endChange();
    if (m_result.isCanceled && !m_changes->isEmpty()) {
        m_sounds->undo();
        m_changes->clear();
    } else if (m_result.done == 0) {
        m_result.errors.swap(m_result.warnings);
    }
    return m_result;
}

}  // namespace

SoundEdit resamplingSound(const SampleInfo& form)
{
    return [form](const SoundSample& sound) {
        SampleInfo target = sound;
        target.channels = form.channels > 0 ? form.channels : sound.channels;
        target.bits = form.bits > 0 ? form.bits : sound.bits;
        target.sampleRate = form.sampleRate > 0 ? form.sampleRate : sound.sampleRate;
        const Zorv::SoundConversion conversion = Zorv::convertSound(sound, target);
        EditedSound edited;
        edited.sample = conversion.sample;
        // The text continues in a longer sentence, so its final dot is removed.
        edited.fault = Zorv::soundConversionText(conversion.outcome);
        edited.fault.chop(edited.fault.endsWith(QLatin1Char('.')) ? 1 : 0);
        return edited;
    };
}

SoundEdit trimmingSound(double from, double to)
{
    return [from, to](const SoundSample& sound) {
        const int first = frameAt(sound, from);
        const int end = to < 0 ? sound.frames : frameAt(sound, to);
        if (first >= end) {
            return faultOf(
                Text::tr("it has no such part, and takes %1 seconds")
                    .arg(QString::number(double(sound.frames) / sound.sampleRate, 'f', 3)));
        }
        EditedSound edited;
        edited.sample = Zorv::trimSound(sound, {first, end - first});
        return edited;
    };
}

SoundEdit trimmingSilence(double level)
{
    return [level](const SoundSample& sound) {
        const SoundRange audible = Zorv::audiblePart(sound, factorOf(level));
        if (audible.isEmpty()) {
            return faultOf(Text::tr("it is silent"));
        }
        EditedSound edited;
        edited.sample = Zorv::trimSound(sound, audible);
        return edited;
    };
}

SoundEdit normalizingPeak(double peak)
{
    return [peak](const SoundSample& sound) { return withPeak(sound, factorOf(peak)); };
}

SoundEdit normalizingLoudness(double loudness, double peak)
{
    return
        [loudness, peak](const SoundSample& sound) { return withLoudness(sound, loudness, peak); };
}

SoundEdit inOrder(const SoundEdit& first, const SoundEdit& second)
{
    return [first, second](const SoundSample& sound) {
        const EditedSound edited = first(sound);
        return edited.fault.isEmpty() ? second(edited.sample) : edited;
    };
}

MediaResult editSounds(SoundFile* sounds, const Selection& selection, const QString& title,
                       const SoundEdit& edit, QVector<SoundChange>* changes)
{
    const Family::AssetHistory::Hold hold(sounds->steps());
    return Editing(sounds, selection, changes).run(title, edit);
}

}  // namespace Operations
