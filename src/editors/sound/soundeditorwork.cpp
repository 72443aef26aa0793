#include "cache/sound.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/resampledlg.h"
#include "editors/sound/soundbatch_p.h"
#include "editors/sound/soundeditor_p.h"
#include "editors/sound/soundtexts_p.h"
#include "text/zorvtranslator.h"

namespace Zorv {

namespace {

constexpr unsigned ResampleText = 150;

}  // namespace

/// With `step`, wraps the work into one undo step with that title. The editor and its sounds can be
/// destroyed meanwhile.
void SoundEditorPrivate::change(const QVector<int>& rows, const QString& title,
                                const std::optional<QString>& step, const Work& work)
{
    const QPointer<SoundEditorPrivate> self(this);
    const QPointer<Sounds> wanted = sounds;
    isBusy = true;
    if (step) {
        wanted->beginChange(*step);
    }
    SoundBatch batch(wanted, rows, work);
    batch.run(title);
    if (step && wanted) {
        wanted->endChange();
    }
    if (!self) {
        return;
    }
    isBusy = false;
    if (wanted && wanted == sounds) {
        listChanged();  // list signals were ignored meanwhile
        editor->refreshSound();
    }
    if (batch.failedCount() > 0) {
        Dialogs::instance()->warning(
            ZorvTranslator::instance()->trText(ResampleText),
            SoundEditor::tr("%n sound(s) stay as they were:", nullptr, batch.failedCount()) +
                QLatin1Char('\n') + batch.reasons().join(QLatin1Char('\n')));
    }
}

void SoundEditorPrivate::resample()
{
    if (!begin() || !sounds->sound(current())) {
        return;
    }
    const QPointer<Sounds> wanted = sounds;
    ResampleDlg dialog(host->mainWindow(), sounds, current(), info);
    const QMetaObject::Connection closing =
        connect(sounds, &QObject::destroyed, &dialog, &QDialog::reject);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    disconnect(closing);
    if (!isAccepted || !wanted || wanted != sounds) {
        return;
    }
    const SampleInfo target = dialog.info();
    const QList<int> selected = dialog.selected();
    QVector<int> rows;
    for (const int row : selected) {
        const Sound* each = sounds->sound(row);
        if (each && !isSameForm(each->sampleInfo(), target)) {
            rows.append(row);
        }
    }
    const std::optional<QString> step =
        rows.size() > 1 ? std::optional<QString>(QString()) : std::nullopt;
    change(rows, SoundEditor::tr("Resampling..."), step,
           [target](const SoundSample& sample, const std::atomic<bool>* isCanceled) {
               return convertSound(sample, target, isCanceled);
           });
}

/// Works on the selected part, or on the whole sound without a selection.
void SoundEditorPrivate::edit(unsigned textId, Edit made)
{
    AudioSampleWidget* widget = begin() && workspace ? waveform() : nullptr;
    if (!widget || !sounds->sound(current())) {
        return;
    }
    widget->showNow();
    if (textId == SoundTexts::Silence && widget->selection().isEmpty()) {
        return;  // the selected part was in the previous sound
    }
    const SoundRange range =
        widget->selection().isEmpty() ? wholeSound(widget->sample()) : widget->selection();
    const QString title = SoundTexts::instance()->trText(textId);
    change({current()}, title, title,
           [range, made](const SoundSample& sample, const std::atomic<bool>*) {
               const SoundSample result = made(sample, range);
               const bool isSame = result.data == sample.data;
               return isSame ? SoundConversion{SoundConversion::Canceled, {}}
                             : SoundConversion{SoundConversion::Done, result};
           });
}

void SoundEditorPrivate::trim()
{
    edit(SoundTexts::Trim, trimSound);
}

void SoundEditorPrivate::fadeIn()
{
    edit(SoundTexts::FadeIn, fadeInSound);
}

void SoundEditorPrivate::fadeOut()
{
    edit(SoundTexts::FadeOut, fadeOutSound);
}

void SoundEditorPrivate::normalize()
{
    edit(SoundTexts::Normalize,
         [](const SoundSample& sample, SoundRange range) { return normalizeSound(sample, range); });
}

void SoundEditorPrivate::silence()
{
    edit(SoundTexts::Silence, silenceSound);
}

}  // namespace Zorv
