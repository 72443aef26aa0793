#include "app/sounds/hearing.h"

#include "app/actions/actionregistry.h"
#include "app/session/gamesession.h"
#include "app/sounds/familysoundeditor.h"
#include "app/sounds/soundpanel.h"
#include "app/window/editorregistry.h"
#include "app/window/filesaving.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"
#include "family/assets/soundfile.h"
#include "family/project/familyproject.h"
#include "operations/check/uses.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/fileid.h>
#include <zorv/editors/framework/rowlist.h>
#include <zorv/editors/sound/audiosamplewidget.h>
#include <zorv/editors/sound/soundworkspace.h>

#include <QListWidget>

#include <algorithm>

namespace App {

using Family::SoundFile;
using Zorv::SoundEditor;

Hearing::Hearing(const WindowServices& services)
    : QObject(services.window), m_services(services), m_workspace(new Zorv::SoundWorkspace(this)),
      m_editor(new FamilySoundEditor(m_workspace, services.mayRemove, this)),
      m_panel(new SoundPanel)
{
    connect(m_panel, &SoundPanel::changed, services.parts, &PartList::updateSoon);
    connect(m_panel, &SoundPanel::soundActivated, this, &Hearing::showSound);
    m_workspace->sampleWidget()->setShowsTrueChannels(true);
    connect(m_panel, &SoundPanel::useActivated, this, [this](const Family::NamePlace& place) {
        m_services.jumps->showPlace(const_cast<Family::FamilyDocument*>(place.document), place.line,
                                    place.column, place.length);
    });
    connect(m_editor, &FamilySoundEditor::soundShown, this, [this](int row) {
        if (row >= 0 && m_editor->isActive() && m_editor->sounds() == m_panel->sounds() &&
            row != m_panel->currentRow()) {
            m_panel->setCurrentRow(row);
        }
    });
    connect(m_panel->list(), &Zorv::RowList::currentRowChanged, this, &Hearing::follow);
    connect(m_editor, &SoundEditor::saveFailed, this, [](const QString& text) {
        Zorv::Dialogs::instance()->error(tr("Save sounds as"), text);
    });
}

Hearing::~Hearing()
{
    delete m_editor;
    delete m_workspace;
}

SoundEditor* Hearing::editor() const
{
    return m_editor;
}

void Hearing::showSound(int row)
{
    m_services.editors->activate(m_editor);
    m_editor->navigateTo({}, unsigned(row), 0, 0);
}

void Hearing::actionsMade()
{
    m_panel->list()->addAction(m_services.actions->action(QStringLiteral("snd_add")));
}

/// An edit can make the text name another sound file.
void Hearing::showProject(Family::FamilyProject* project)
{
    m_panel->setSounds(
        dynamic_cast<SoundFile*>(project ? project->file(Zorv::FileID::Sounds) : nullptr));
    m_panel->setProject(project);
}

/// Any text may play other sounds now.
void Hearing::updateState()
{
    m_panel->updateUsesSoon();
}

/// While sounds are in the middle, selecting one in the panel shows it there.
void Hearing::follow(int row)
{
    if (row >= 0 && m_editor->isActive() && m_panel->list()->hasFocus()) {
        m_editor->navigateTo({}, unsigned(row), 0, 0);
    }
}

/// Delete and Select all act on the list of sounds. The other commands come from the editor, for
/// the list of moves too.
QVector<PanelPlace> Hearing::places()
{
    const CommandRows rows{{Command::Delete, [this] { removeSelected(); },
                            [this] { return m_panel->currentRow() >= 0; }},
                           {Command::SelectAll, [list = m_panel->list()] { list->selectAll(); }}};
    QVector<PanelPlace> places{PanelPlace::of(m_panel->list(), rows + commands())};
    if (m_panel->uses()->isEnabled()) {
        places.append(PanelPlace::of(m_panel->uses(), commands()));
    }
    return places;
}

CommandRows Hearing::commands()
{
    SoundEditor* editor = m_editor;
    const auto file = [editor] { return editor->file(); };
    return {
        {Command::Undo, [editor] { editor->undo(); },
         [file] { return file() && file()->canUndo(); }, [file] { return file()->undoTitle(); }},
        {Command::Redo, [editor] { editor->redo(); },
         [file] { return file() && file()->canRedo(); }, [file] { return file()->redoTitle(); }},
        {Command::SelectAll, [editor] { editor->selectAll(); }},
        {Command::Save, [this] { save(); }, [this] { return canSave(); }}};
}

/// A file missing on disk can be written again.
bool Hearing::canSave() const
{
    return m_editor->file() && (m_editor->isModified() || isGone(m_editor->file()));
}

void Hearing::save()
{
    saveFile(m_services, m_editor->file());
}

void Hearing::removeSelected()
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
