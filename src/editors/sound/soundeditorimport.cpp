#include "cache/sound.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/sound/sndimportdlg.h"
#include "editors/sound/soundeditor_p.h"
#include "text/zorvtranslator.h"

namespace Zorv {

namespace {

constexpr unsigned ReportTitle = 69;
constexpr unsigned EmptyTitle = 2;
constexpr unsigned EmptyText = 4;

/// How many came, and where the first new one stands.
struct Imported
{
    int added = 0;
    int replaced = 0;
    int firstRow = -1;
    QVector<int> emptyRows;  // of the source
};

/// The identifier comes last: another property may change it.
void copyProperties(const Sound& from, Sound* to, const QString& identifier)
{
    const QString key = QStringLiteral("Identifier");
    const QStringList names = from.propertyNames();
    for (const QString& name : names) {
        if (name != key) {
            to->setProperty(name, from.property(name));
        }
    }
    to->setProperty(key, identifier);
}

Imported import(Sounds* destination, const SndImportDlg::Info& choice)
{
    Imported result;
    int row = destination->count() == 0 ? 0 : destination->currentIndex + 1;
    for (const ImportEntry& entry : choice.entries) {
        const auto* list = qobject_cast<const Sounds*>(entry.source.model());
        const Sound* from = list ? list->sound(entry.source.row()) : nullptr;
        const QByteArray data = from ? from->sampleData() : QByteArray();
        if (data.isEmpty()) {
            result.emptyRows.append(entry.source.row());
            continue;
        }
        const int there = destination->find(0, entry.identifier);
        if (there >= 0 && choice.conflicts == ImportConflict::Skip) {
            continue;
        }
        Sound* to = destination->sound(there);
        if (to) {
            to->setSample(from->sampleInfo(), data);
            ++result.replaced;
        } else {
            SoundSample sample;
            static_cast<SampleInfo&>(sample) = from->sampleInfo();
            sample.data = data;
            to = destination->add(row, {}, sample);
            if (!to) {
                result.emptyRows.append(entry.source.row());
                continue;
            }
            result.firstRow = result.firstRow < 0 ? row : result.firstRow;
            ++result.added;
            ++row;
        }
        copyProperties(*from, to, entry.identifier);
    }
    return result;
}

}  // namespace

void SoundEditorPrivate::projImport()
{
    if (!ImportDlg::hasSource(host) || !begin()) {
        return;
    }
    const QPointer<Sounds> to = sounds;
    SndImportDlg dialog(host, sounds);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const SndImportDlg::Info choice = dialog.getInfo();
    if (!isAccepted || !choice.source || !to || to != sounds) {
        return;
    }
    const QString name = choice.source->title();
    Imported result;
    {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        sounds->beginChange(SoundEditor::tr("Import sounds from project '%1'").arg(name));
        result = import(sounds, choice);
        sounds->endChange();
        if (result.added > 0) {
            sounds->setCurrent(result.firstRow);
        }
    }
    editor->soundCountChanged();
    for (const int row : qAsConst(result.emptyRows)) {
        Dialogs::instance()->warning(
            host->text(EmptyTitle),
            host->text(EmptyText).arg(SoundEditor::tr("sound"), QString::number(row), name));
    }
    QString report = result.added > 0
                         ? SoundEditor::tr("%n sound(s) were imported!", nullptr, result.added)
                         : SoundEditor::tr("No sound imported!");
    if (result.replaced > 0) {
        report += QLatin1Char('\n') +
                  SoundEditor::tr("%n sound(s) were replaced!", nullptr, result.replaced);
    }
    Dialogs::instance()->information(ZorvTranslator::instance()->trText(ReportTitle), report);
}

}  // namespace Zorv
