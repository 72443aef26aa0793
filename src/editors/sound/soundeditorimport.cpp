#include "cache/sound.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/progress.h"
#include "core/project.h"
#include "editors/sound/sndimportdlg.h"
#include "editors/sound/soundbatch_p.h"
#include "editors/sound/soundeditor_p.h"
#include "text/zorvtranslator.h"

namespace Zorv {

namespace {

constexpr unsigned ReportTitle = 69;
constexpr unsigned EmptyTitle = 2;
constexpr unsigned EmptyText = 4;

/// The numbers of imported sounds, and the row of the first new one.
struct Imported
{
    int added = 0;
    int replaced = 0;
    int firstRow = 0;
    QVector<int> emptyRows;  // rows of the source
};

using Properties = QVector<QPair<QString, QVariant>>;

const QString& identifierKey()
{
    static const QString key = QStringLiteral("Identifier");
    return key;
}

Properties propertiesOf(const Sound& from)
{
    Properties properties;
    const QStringList names = from.propertyNames();
    for (const QString& name : names) {
        if (name != identifierKey()) {
            properties.append({name, from.property(name)});
        }
    }
    return properties;
}

/// Stores an unpacked sound in a list; null if the list cannot hold its form.
Sound* store(Sounds* to, const ReadySample& ready, const ImportEntry& entry, int row, int there)
{
    Sound* sound = to->sound(there);
    if (sound) {
        sound->setSample(ready.sample, ready.sample.data);
        return sound;
    }
    return to->add(row, entry.identifier, ready.sample);
}

/// Imports one sound. Both lists can be destroyed while it is unpacked.
void importEntry(const QPointer<Sounds>& to, const ImportEntry& entry, ImportConflict conflicts,
                 int row, Imported* result)
{
    const int sourceRow = entry.source.row();
    const auto* list = qobject_cast<const Sounds*>(entry.source.model());
    const Sound* from = list ? list->sound(sourceRow) : nullptr;
    if (!from) {
        result->emptyRows.append(sourceRow);
        return;
    }
    const Properties properties = propertiesOf(*from);
    const ReadySample ready = readySample(to, readerOf(*from));
    const int there = to ? to->find(0, entry.identifier) : -1;
    const bool isEmpty = ready.sample.data.isEmpty();
    if (!to || (!isEmpty && there >= 0 && conflicts == ImportConflict::Skip)) {
        return;
    }
    Sound* sound = isEmpty ? nullptr : store(to, ready, entry, row, there);
    if (!sound) {
        result->emptyRows.append(sourceRow);
        return;
    }
    ++(there >= 0 ? result->replaced : result->added);
    for (const auto& property : properties) {
        sound->setProperty(property.first, property.second);
    }
    // Set the identifier last: another property may change it.
    sound->setProperty(identifierKey(), entry.identifier);
}

/// Imports in one undo step. If the user cancels, the sounds imported so far stay.
Imported import(const QPointer<Sounds>& to, const SndImportDlg::Info& choice, const QString& title)
{
    Imported result;
    result.firstRow = to->count() == 0 ? 0 : to->currentIndex + 1;
    to->beginChange(title);
    {
        Progress progress(title, choice.entries.size());
        for (const ImportEntry& entry : choice.entries) {
            if (!to || !choice.source) {
                break;
            }
            importEntry(to, entry, choice.conflicts, result.firstRow + result.added, &result);
            if (!progress.step()) {
                break;
            }
        }
    }
    if (to) {
        to->endChange();
    }
    return result;
}

/// Shows one message for each sound that could not be imported, and one for the rest.
void tellImported(const Interface* host, const Imported& result, const QString& name)
{
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
    const QPointer<SoundEditorPrivate> self(this);
    const QString name = choice.source->title();
    ++inhibit;
    isBusy = true;
    const Imported result =
        import(to, choice, SoundEditor::tr("Import sounds from project '%1'").arg(name));
    if (!self) {
        return;
    }
    --inhibit;
    isBusy = false;
    const bool isThere = to && to == sounds;
    if (isThere) {
        sounds->setCurrent(result.added > 0 ? result.firstRow : current());
    }
    editor->soundCountChanged();  // another collection may be there now
    if (isThere) {
        tellImported(host, result, name);
    }
}

}  // namespace Zorv
