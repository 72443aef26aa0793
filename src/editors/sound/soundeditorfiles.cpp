#include "cache/sound.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/itemsdialog.h"
#include "core/extensionmanager.h"
#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/interface.h"
#include "core/progress.h"
#include "editors/sound/soundbatch_p.h"
#include "editors/sound/soundeditor_p.h"
#include "media/pcmsamples_p.h"
#include "media/soundconversion.h"
#include "media/soundfile.h"
#include "media/wav.h"
#include "text/zorvtranslator.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace Zorv {

namespace {

constexpr unsigned AddText = 146;
constexpr unsigned DeleteText = 147;
constexpr unsigned OpenText = 148;
constexpr unsigned SaveText = 149;
constexpr unsigned UnreadableTitle = 2;
constexpr unsigned UnreadableText = 3;
constexpr unsigned AllFormats = 7;

QString textOf(unsigned id)
{
    return ZorvTranslator::instance()->trText(id);
}

QString waveFilter()
{
    return SoundEditor::tr("WAVEform audio format (*.wav)");
}

/// WAV, and the formats that extensions can read.
QString openFilter(const Interface* host)
{
    QStringList patterns{QStringLiteral("*.wav")};
    QStringList filters{waveFilter()};
    for (const Extension* loader : qAsConst(ExtensionManager::list(Extension::SoundLoader))) {
        const QString name = QString::fromLatin1(loader->name());
        const QString pattern = QStringLiteral("*.") + name.toLower();
        if (!name.isEmpty() && !patterns.contains(pattern)) {
            patterns.append(pattern);
            filters.append(QStringLiteral("%1 (%2)").arg(name, pattern));
        }
    }
    filters.prepend(QStringLiteral("%1 (%2)").arg(host->text(AllFormats), patterns.join(' ')));
    return filters.join(QStringLiteral(";;"));
}

/// Derives unique names from a chosen one: "folder/base_IDENTIFIER.suffix".
QStringList namesFor(const QString& chosen, const QStringList& identifiers)
{
    const QFileInfo file(chosen);
    const QString suffix = file.suffix().isEmpty() ? QStringLiteral("wav") : file.suffix();
    QStringList names;
    QSet<QString> taken;
    for (QString id : identifiers) {
        for (const char bad : {',', '/', '\\'}) {
            id.replace(QLatin1Char(bad), QLatin1Char('-'));
        }
        QString name;
        for (int copy = 1; name.isEmpty() || taken.contains(name); ++copy) {
            name = QStringLiteral("%1/%2_%3%4.%5")
                       .arg(file.absolutePath(), file.completeBaseName(), id,
                            copy > 1 ? QStringLiteral("-%1").arg(copy) : QString(), suffix);
        }
        taken.insert(name);
        names.append(name);
    }
    return names;
}

/// The first lines, one per entry.
QString shortList(const QStringList& lines)
{
    constexpr int MostLines = 10;
    return lines.mid(0, MostLines).join(QLatin1Char('\n')) +
           (lines.size() > MostLines ? QStringLiteral("\n...") : QString());
}

/// Reports files that were read only in part, or in a form that cannot be stored.
void tellLosses(const QString& title, const QStringList& reasons)
{
    if (!reasons.isEmpty()) {
        Dialogs::instance()->warning(title, shortList(reasons));
    }
}

/// Asks before existing files are overwritten.
bool mayReplace(const QString& title, const QStringList& names)
{
    QStringList there;
    for (const QString& name : names) {
        if (QFileInfo::exists(name)) {
            there.append(QFileInfo(name).fileName());
        }
    }
    if (there.isEmpty()) {
        return true;
    }
    return Dialogs::instance()->question(
               title,
               SoundEditor::tr("%n file(s) of these names are there already. Replace them?",
                               nullptr, there.size()) +
                   QLatin1String("\n\n") + shortList(there),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

/// False if writing failed, which the user was told. A file that cannot be opened, and a broken
/// sound, are only added to `unopened`: an existing file keeps its content.
bool write(const SoundSample& sample, const QString& fileName, QStringList* unopened)
{
    if (sample.frames > 0 && sample.data.isEmpty()) {
        unopened->append(
            SoundEditor::tr("%1: the samples of this sound are broken.").arg(fileName));
        return true;
    }
    Archive* archive = FileSystemArchive::instance();
    QString error;
    QIODevice* device = archive->openFile(fileName, QIODevice::WriteOnly, &error);
    if (!device) {
        unopened->append(QStringLiteral("%1: %2").arg(fileName, error));
        return true;
    }
    soundToWAV(sample, device);
    if (!archive->closeFile(device, &error)) {
        Dialogs::instance()->error(textOf(SaveText), QStringLiteral("%1: %2").arg(fileName, error));
        return false;
    }
    return true;
}

}  // namespace

/// Fails if another action is running, or if there are no sounds: a dialog may have been open while
/// the project was closed.
bool SoundEditorPrivate::begin()
{
    if (!editor->isActive()) {
        host->activateEditor(editor);
    }
    return sounds && !isBusy;
}

QString SoundEditorPrivate::folder() const
{
    const auto value = [this](const char* key) {
        return sounds->option(QLatin1String(key)).toString();
    };
    return value("snd_path").isEmpty() ? value("project_path") : value("snd_path");
}

void SoundEditorPrivate::rememberFolder(const QString& fileName) const
{
    sounds->setOption(QStringLiteral("snd_path"), QFileInfo(fileName).absolutePath(), true, false);
}

/// Reads a file and packs it for the list. The list and the editor may be gone afterwards.
ReadySample SoundEditorPrivate::readReady(const QString& fileName, QString* reason) const
{
    return readySample(sounds, [reader = editor->soundReader(fileName), reason] {
        SoundSample sample = reader(reason);
        sample.frames = wholeFramesOf(sample, sample.data);
        return sample;
    });
}

/// Everything but WAV files with plain samples is left to the extensions.
SoundEditor::SoundReader SoundEditor::soundReader(const QString& fileName)
{
    QVector<Extension*> loaders;
    for (Extension* loader : qAsConst(ExtensionManager::list(Extension::SoundLoader))) {
        if (loader->name() == fileExtension(fileName)) {
            loaders.append(loader);
        }
    }
    return [fileName, loaders](QString*) {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly)) {
            return SoundSample();
        }
        SoundSample sample = soundFromWAV(&file);
        for (Extension* loader : loaders) {
            SoundSample other;
            if (wholeFramesOf(sample, sample.data) == 0 && file.seek(0) &&
                loader->loadSound(&file, other)) {
                sample = other;
            }
        }
        return sample;
    };
}

void SoundEditorPrivate::tellUnreadable(const QString& fileName, const QString& reason) const
{
    const QString text = host->text(UnreadableText).arg(fileName);
    Dialogs::instance()->warning(host->text(UnreadableTitle),
                                 reason.isEmpty() ? text : text + QLatin1Char('\n') + reason);
}

void SoundEditorPrivate::add()
{
    if (!begin()) {
        return;
    }
    const QPointer<Sounds> to = sounds;
    const QStringList files =
        getOpenFileNames(nullptr, textOf(AddText), folder(), openFilter(host));
    if (files.isEmpty() || !to || to != sounds) {
        return;
    }
    rememberFolder(files.first());
    if (!editor->mayReadSounds(files) || !to || to != sounds) {
        return;
    }
    QList<QVariant> ids;
    host->soundIdentifiers(files, &ids);
    if (ids.size() != files.size() || !to || to != sounds) {
        return;
    }
    addFiles(files, ids);
}

/// Adds files in one undo step. The editor and its sounds can be destroyed meanwhile. If the user
/// cancels, the files read so far stay.
void SoundEditorPrivate::addFiles(const QStringList& files, const QList<QVariant>& ids)
{
    const QPointer<SoundEditorPrivate> self(this);
    const QPointer<Sounds> to = sounds;
    const int first = to->count() == 0 ? 0 : current() + 1;
    int row = first;
    QVector<std::pair<QString, QString>> unreadable;
    QStringList losses;
    ++inhibit;
    isBusy = true;
    if (files.size() > 1) {
        to->beginChange({});
    }
    auto progress = std::make_unique<Progress>(textOf(AddText), files.size());
    for (int i = 0; i < files.size() && self && to && to == sounds; ++i) {
        QString reason;
        const ReadySample ready = readReady(files[i], &reason);
        if (!self || !to || to != sounds) {
            break;
        }
        const bool isRead = ready.sample.frames > 0;
        const bool isAdded = isRead && to->add(row, ids[i], ready.sample);
        row += isAdded ? 1 : 0;
        if (isRead && !reason.isEmpty()) {
            losses.append(reason);
        } else if (!isAdded) {
            unreadable.append({files[i], reason});
        }
        if (!progress->step()) {
            break;
        }
    }
    progress.reset();
    if (files.size() > 1 && to) {
        to->endChange();
    }
    if (!self) {
        return;
    }
    --inhibit;
    isBusy = false;
    if (to && to == sounds) {
        sounds->setCurrent(row > first ? row - 1 : current());
    }
    editor->soundCountChanged();  // another collection may be there now
    tellLosses(textOf(AddText), losses);
    for (const auto& file : qAsConst(unreadable)) {
        if (self) {
            tellUnreadable(file.first, file.second);
        }
    }
}

void SoundEditorPrivate::del()
{
    if (!begin() || current() < 0 || current() >= count()) {
        return;
    }
    const QPointer<Sounds> from = sounds;
    const Sound* wanted = sounds->sound(current());
    if (host->option(QStringLiteral("confirm_delete")).toBool() &&
        Dialogs::instance()->question(textOf(DeleteText),
                                      SoundEditor::tr("Do you really want to delete the sprite?"),
                                      Dialogs::Yes | Dialogs::No, Dialogs::Yes) != Dialogs::Yes) {
        return;
    }
    const auto isThere = [&] { return from && from == sounds && from->sound(current()) == wanted; };
    if (!isThere() || !editor->mayDeleteSound() || !isThere()) {
        return;
    }
    {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        sounds->remove(unsigned(current()));
    }
    editor->soundCountChanged();
}

void SoundEditorPrivate::duplicate()
{
    Sound* source = begin() ? sounds->sound(current()) : nullptr;
    if (!source) {
        return;
    }
    {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        const int row = current();
        source->duplicate();
        sounds->setCurrent(qMin(row + 1, count() - 1));
    }
    editor->soundCountChanged();
}

void SoundEditorPrivate::openSnd()
{
    const Sound* wanted = begin() ? sounds->sound(current()) : nullptr;
    if (!wanted) {
        return;
    }
    const QPointer<Sounds> to = sounds;
    const QString file = getOpenFileName(nullptr, textOf(OpenText), folder(), openFilter(host));
    if (file.isEmpty() || !to || to != sounds || sounds->sound(current()) != wanted) {
        return;
    }
    rememberFolder(file);
    if (!editor->mayReadSounds({file}) || !to || to != sounds ||
        sounds->sound(current()) != wanted) {
        return;
    }
    QString reason;
    const QPointer<SoundEditorPrivate> self(this);
    isBusy = true;
    auto progress = std::make_unique<Progress>(textOf(OpenText), 1);
    const ReadySample ready = readReady(file, &reason);
    const bool isGivenUp = !progress->step();
    progress.reset();
    if (!self) {
        return;
    }
    isBusy = false;
    if (!isGivenUp && to && to == sounds && sounds->sound(current()) == wanted) {
        replaceBy(ready, file, reason);
    } else {
        listChanged();  // list signals were ignored meanwhile
    }
}

void SoundEditorPrivate::replaceBy(const ReadySample& ready, const QString& fileName,
                                   const QString& reason)
{
    const QPointer<SoundEditorPrivate> self(this);
    const QPointer<Sounds> to = sounds;
    const SoundSample& sample = ready.sample;
    Sound* const changed = sounds->sound(current());
    const bool isRead = sample.frames > 0;
    if (isRead) {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        changed->setSample(sample, sample.data);
    }
    if (isRead && !reason.isEmpty()) {
        tellLosses(textOf(OpenText), {reason});
    } else if (!isRead || !isSameForm(changed->sampleInfo(), sample)) {
        tellUnreadable(fileName, reason);
    }
    if (self && to && to == sounds) {
        selPosChanged(current());
    }
}

void SoundEditorPrivate::saveSndAs()
{
    if (!begin() || !sounds->sound(current())) {
        return;
    }
    const QPointer<Sounds> from = sounds;
    const QString title = textOf(SaveText);
    const QString chosen =
        Dialogs::instance()->saveFileName(nullptr, title, folder(), waveFilter());
    if (chosen.isEmpty() || !from || from != sounds) {
        return;
    }
    rememberFolder(chosen);
    const std::unique_ptr<ItemsDialog> dialog(
        host->itemsDialog(host->mainWindow(), title, sounds, current()));
    const QMetaObject::Connection closing =
        connect(sounds, &QObject::destroyed, dialog.get(), &QDialog::reject);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog->hasSelection();
    disconnect(closing);
    const QList<int> rows = dialog->selected();
    dialog->release();
    if (!isAccepted || !from || from != sounds) {
        return;
    }
    QStringList ids;
    QVector<const Sound*> chosenSounds;
    for (const int row : rows) {
        chosenSounds.append(sounds->sound(row));
        ids.append(sounds->sound(row)->property(QStringLiteral("Identifier")).toString());
    }
    const bool isOne = rows.size() == 1;
    const QStringList names = isOne ? QStringList(chosen) : namesFor(chosen, ids);
    if ((!isOne && !mayReplace(title, names)) || !from || from != sounds) {
        return;
    }
    const QPointer<SoundEditorPrivate> self(this);
    QStringList unopened;
    isBusy = true;
    {
        Progress progress(title, rows.size());
        for (int i = 0; i < rows.size() && self && from && from == sounds; ++i) {
            // The project file may have been reloaded while a dialog was open.
            const Sound* each = from->sound(rows[i]);
            if (!each || each != chosenSounds[i]) {
                unopened.append(
                    SoundEditor::tr("%1: the sound is not there any more.").arg(names[i]));
            } else if (!write(readElsewhere(readerOf(*each)), names[i], &unopened) ||
                       !progress.step()) {
                break;
            }
        }
    }
    if (!self) {
        return;
    }
    isBusy = false;
    listChanged();  // list signals were ignored meanwhile
    if (!unopened.isEmpty()) {
        emit editor->saveFailed(unopened.join(QLatin1Char('\n')));
    }
}

}  // namespace Zorv
