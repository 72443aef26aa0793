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
#include "operations/media/soundedits.h"
#include "operations/media/soundloudness.h"

#include <zorv/core/files.h>
#include <zorv/core/jobs.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <cmath>
#include <memory>

namespace Cli {

namespace {

using Operations::MediaResult;
using Operations::SoundChange;
using Operations::SoundLoudness;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

bool isGiven(double level)
{
    return level < Invocation::None;
}

/// Rounds to tenths, and avoids a negative zero.
double tenths(double value)
{
    return std::isfinite(value) ? std::round(value * 10) / 10 + 0.0 : value;
}

QString levelText(double level)
{
    return std::isfinite(level) ? QString::number(tenths(level), 'f', 1) : QStringLiteral("-inf");
}

/// What to print of a change after its place.
enum class Facts { Form, Gain };

void print(const QVector<SoundChange>& changes, Facts facts, bool asJson, Output& output)
{
    if (!asJson) {
        for (const SoundChange& change : changes) {
            const QString gain =
                (change.gain > 0 ? QStringLiteral("+") : QString()) + levelText(change.gain);
            output.writeLine(QStringList{QString::number(change.row), change.id.text()} +
                             (facts == Facts::Gain ? QStringList(gain) : columnsOf(change.info)));
        }
        return;
    }
    JsonList list(output);
    for (const SoundChange& change : changes) {
        QJsonObject object = facts == Facts::Gain ? QJsonObject() : objectOf(change.info);
        if (facts == Facts::Gain) {
            object.insert(QStringLiteral("gain"), tenths(change.gain));
        }
        addPlace(&object, change.row, change.id);
        list.add(object);
    }
}

/// Edits the selected sounds of the first operand; with `--dry-run` only shows the changes.
int editSounds(const Invocation& invocation, const QString& title,
               const Operations::SoundEdit& edit, Facts facts, Output& output)
{
    ProgressHost host;
    const QString fileName = invocation.operands.first();
    QVector<SoundChange> changes;
    const auto change = [&]() -> int {
        changes.clear();
        const OpenSounds sounds = openSounds(fileName);
        if (!sounds) {
            return NotDone;
        }
        const int status =
            tell(Operations::editSounds(sounds.get(), invocation.selection, title, edit, &changes));
        return status == Fine && !invocation.dryRun ? saveSounds(sounds.get(), fileName) : status;
    };
    const int status = invocation.dryRun ? change() : changeFile(fileName, change);
    if (status == Fine) {
        print(changes, facts, invocation.json, output);
    }
    return status;
}

/// A sound to measure: from a sound file, or a file of its own.
struct Heard
{
    QString file;
    const Family::FamilySound* sound = nullptr;
    Zorv::SoundSample sample;
};

void print(const Heard& heard, const SoundLoudness& loudness, JsonList* list, Output& output)
{
    const double peak = Operations::decibelsOf(loudness.samplePeak);
    const double truePeak = Operations::decibelsOf(loudness.truePeak);
    const QString text = Operations::loudnessText(loudness.outcome);
    if (!list) {
        const QString id = heard.sound ? heard.sound->id().text() : QStringLiteral("-");
        output.writeLine({heard.file, id, levelText(peak), levelText(truePeak),
                          text.isEmpty() ? levelText(loudness.integrated) : text});
        return;
    }
    QJsonObject object{{QStringLiteral("file"), heard.file}};
    if (heard.sound) {
        addPlace(&object, heard.sound->row, heard.sound->id());
    }
    if (std::isfinite(peak)) {
        object.insert(QStringLiteral("samplePeak"), tenths(peak));
        object.insert(QStringLiteral("truePeak"), tenths(truePeak));
    }
    if (text.isEmpty()) {
        object.insert(QStringLiteral("loudness"), tenths(loudness.integrated));
    } else {
        object.insert(QStringLiteral("note"), text);
    }
    list->add(object);
}

/// Measures the sounds of one file. False if it is a sound file that cannot be read; the error was
/// printed.
bool measure(const QString& file, const Invocation& invocation, JsonList* list, Output& output,
             MediaResult* result)
{
    QVector<Heard> heard;
    OpenSounds sounds;
    if (Zorv::fileExtension(file) == "SOUNDS") {
        sounds = openSounds(file);
        if (!sounds) {
            return false;
        }
        for (const auto& sound : sounds->items()) {
            if (invocation.selection.contains(sound->id().group, sound->id().number)) {
                heard.append({file, sound.get(), {}});
            }
        }
    } else {
        Heard alone{file, nullptr, {}};
        const Operations::Outcome outcome =
            Operations::readSound(file, extentOf(invocation), &alone.sample);
        result->note(outcome);
        heard += outcome.error.isEmpty() ? QVector<Heard>{alone} : QVector<Heard>();
    }
    const auto prepare = [&](int i) -> std::function<SoundLoudness()> {
        Zorv::SoundSample sample = heard[i].sample;
        const Family::FamilySound* sound = heard[i].sound;
        if (!sound) {
            return [sample] { return Operations::loudnessOf(sample); };
        }
        if (sound->fault().isEmpty()) {
            static_cast<Zorv::SampleInfo&>(sample) = sound->sampleInfo();
        }
        return [sample, reader = sound->sampleReader()]() mutable {
            sample.data = reader();
            return Operations::loudnessOf(sample);
        };
    };
    result->isCanceled = !Zorv::runJobs<SoundLoudness>(
        Text::tr("Loudness"), heard.size(), prepare,
        [&](int i, const SoundLoudness& loudness) { print(heard[i], loudness, list, output); });
    return true;
}

}  // namespace

int resampleSounds(const Invocation& invocation, Output& output)
{
    Zorv::SampleInfo form;
    form.sampleRate = invocation.rate;
    form.bits = quint16(invocation.bits);
    form.channels = quint16(invocation.channels);
    if (form.sampleRate == 0 && form.bits == 0 && form.channels == 0) {
        return wrongUsage(Text::tr("Expected '--rate', '--bits' or '--channels'."));
    }
    return editSounds(invocation, Text::tr("Resample sounds"), Operations::resamplingSound(form),
                      Facts::Form, output);
}

int trimSounds(const Invocation& invocation, Output& output)
{
    constexpr double Silence = -60;
    const bool isPart = invocation.from >= 0 || invocation.to >= 0;
    if (invocation.to >= 0 && invocation.to <= invocation.from) {
        return wrongUsage(Text::tr("The part has to end behind its begin."));
    }
    const Operations::SoundEdit part = Operations::trimmingSound(invocation.from, invocation.to);
    const Operations::SoundEdit ends =
        Operations::trimmingSilence(isGiven(invocation.silence) ? invocation.silence : Silence);
    const Operations::SoundEdit edit = !isPart ? ends
                                       : isGiven(invocation.silence)
                                           ? Operations::inOrder(part, ends)
                                           : part;
    return editSounds(invocation, Text::tr("Trim sounds"), edit, Facts::Form, output);
}

int normalizeSounds(const Invocation& invocation, Output& output)
{
    const double peak = isGiven(invocation.peak) ? invocation.peak : 0;
    return editSounds(invocation, Text::tr("Normalize sounds"),
                      isGiven(invocation.loudness)
                          ? Operations::normalizingLoudness(invocation.loudness, peak)
                          : Operations::normalizingPeak(peak),
                      Facts::Gain, output);
}

int tellLoudness(const Invocation& invocation, Output& output)
{
    QString error;
    const QStringList files = Operations::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    MediaResult result;
    bool areRead = true;
    const std::unique_ptr<JsonList> list(invocation.json ? new JsonList(output) : nullptr);
    for (int i = 0; i < files.size() && !result.isCanceled; ++i) {
        areRead = measure(files[i], invocation, list.get(), output, &result) && areRead;
    }
    const int status = tellOfParts(result);
    return status == Fine && !areRead ? int(NotDone) : status;
}

}  // namespace Cli
