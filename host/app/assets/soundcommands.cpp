#include "app/assets/soundcommands.h"

#include "app/actions/actionregistry.h"
#include "app/assets/soundpanel.h"
#include "app/assets/transfer.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/window/fieldcommands.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/assets/soundfile.h"
#include "family/project/familyproject.h"
#include "operations/check/uses.h"
#include "operations/media/soundwork.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/framework/rowlist.h>

#include <algorithm>

namespace App {

using Family::SoundFile;
using Operations::MediaResult;
using Zorv::Dialogs;

SoundCommands::SoundCommands(const WindowServices& services)
    : QObject(services.window), m_services(services), m_panel(new SoundPanel)
{
    connect(m_panel, &SoundPanel::changed, services.parts, &PartList::updateSoon);
}

QVector<ActionRow> SoundCommands::actions()
{
    const Members<SoundCommands> on(this);
    // clang-format off
    return {
        {"sound_add",    "snd.files", QT_TRANSLATE_NOOP("App::Actions", "&Add sounds..."),     {}, on(&SoundCommands::addSounds),      on(&SoundCommands::hasFile)},
        {"sound_export", "snd.files", QT_TRANSLATE_NOOP("App::Actions", "&Save sounds as..."), {}, on(&SoundCommands::exportSounds),   on(&SoundCommands::hasSound)},
        {"sound_remove", "snd.files", QT_TRANSLATE_NOOP("App::Actions", "Re&move sounds"),     {}, on(&SoundCommands::removeSelected), on(&SoundCommands::hasSound)},
    };
    // clang-format on
}

void SoundCommands::actionsMade()
{
    for (const char* name : {"sound_add", "sound_export", "sound_remove"}) {
        m_panel->list()->addAction(m_services.actions->action(QLatin1String(name)));
    }
}

/// A text can come to name another file.
void SoundCommands::showProject(Family::FamilyProject* project)
{
    m_panel->setSounds(
        dynamic_cast<SoundFile*>(project ? project->file(Zorv::FileID::Sounds) : nullptr));
}

QVector<PanelPlace> SoundCommands::places()
{
    CommandRows rows = historyCommands([this] { return m_panel->sounds(); });
    rows +=
        CommandRows{{Command::Delete, [this] { removeSelected(); }, [this] { return hasSound(); }},
                    {Command::SelectAll, [this] { m_panel->list()->selectAll(); }},
                    {Command::Save, [this] { save(); }, [this] { return canSave(); }}};
    return {PanelPlace::of(m_panel, rows)};
}

/// A file that has gone can be brought back.
bool SoundCommands::canSave() const
{
    return m_panel->sounds() && (m_panel->sounds()->isModified() || isGone(m_panel->sounds()));
}

void SoundCommands::save()
{
    if (saveFiles({m_panel->sounds()})) {
        m_services.status->showPassing(
            tr("%1 is saved.").arg(m_services.session->shownPath(m_panel->sounds()->fileName())));
    }
    m_services.parts->gameChanged();
}

bool SoundCommands::hasFile() const
{
    return m_panel->sounds();
}

bool SoundCommands::hasSound() const
{
    return m_panel->currentRow() >= 0;
}

/// Asks for how much of files whose sizes are wrong. False if the person gave up.
bool SoundCommands::chooseExtent(const QString& title, const QStringList& files,
                                 Operations::SoundExtent* extent) const
{
    const QString parts = Operations::partialSounds(files);
    if (parts.isEmpty()) {
        return true;
    }
    const auto answer = Dialogs::instance()->question(
        title, parts + QLatin1String("\n\n") + tr("Take all frames that are there?"),
        Dialogs::Yes | Dialogs::No | Dialogs::Cancel, Dialogs::Yes);
    *extent =
        answer == Dialogs::Yes ? Operations::SoundExtent::Whole : Operations::SoundExtent::AsTold;
    return answer == Dialogs::Yes || answer == Dialogs::No;
}

void SoundCommands::addSounds()
{
    SoundFile* sounds = m_panel->sounds();
    if (!sounds) {
        return;
    }
    const Family::FamilySound* current = sounds->sound(m_panel->currentRow());
    const QString title = tr("Add sounds");
    const ImportChoice choice =
        askForImport(title, current ? current->id().group : 0,
                     [sounds](Family::AssetId id) { return sounds->find(0, id.text()) >= 0; });
    if (choice.files.isEmpty()) {
        return;
    }
    Operations::SoundImport request;
    request.group = choice.group;
    request.force = choice.force;
    if (!chooseExtent(title, choice.files, &request.extent) || sounds != m_panel->sounds()) {
        return;
    }
    const unsigned before = sounds->count();
    const MediaResult result = Operations::importSounds(sounds, choice.files, request);
    tellResult(title, tr("%n sound(s) added.", nullptr, result.done), result);
    if (sounds->count() > before) {
        m_panel->setCurrentRow(int(sounds->count()) - 1);
    }
}

void SoundCommands::exportSounds()
{
    const SoundFile* sounds = m_panel->sounds();
    const QVector<Family::AssetId> ids = m_panel->selectedIds();
    if (!ids.isEmpty()) {
        exportSelected(tr("Save sounds as"), ids, QStringLiteral(".wav"),
                       [sounds](const auto& selection, const auto& request) {
                           return Operations::exportSounds(*sounds, selection, request);
                       });
    }
}

void SoundCommands::removeSelected()
{
    const auto removal = [this] {
        const SoundFile* from = m_panel->sounds();
        return from ? Operations::removalOf(Operations::Removal::Sounds, *from,
                                            m_panel->selectedRows())
                    : Operations::Removal();
    };
    if (removal().names.isEmpty() || !m_services.mayRemove(removal)) {
        return;
    }
    SoundFile* sounds = m_panel->sounds();
    const QVector<int> rows = m_panel->selectedRows();
    sounds->beginChange(tr("Remove sounds"));
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        sounds->remove(unsigned(*row));
    }
    sounds->endChange();
    m_panel->setCurrentRow(std::min(rows.first(), int(sounds->count()) - 1));
}

}  // namespace App
