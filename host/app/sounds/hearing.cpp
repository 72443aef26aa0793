#include "app/sounds/hearing.h"

#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/sounds/familysoundeditor.h"
#include "app/window/editorregistry.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/projectfile.h>
#include <zorv/editors/sound/audiosamplewidget.h>
#include <zorv/editors/sound/soundworkspace.h>

namespace App {

using Zorv::SoundEditor;

Hearing::Hearing(const WindowServices& services)
    : QObject(services.window), m_services(services), m_workspace(new Zorv::SoundWorkspace(this)),
      m_editor(new FamilySoundEditor(m_workspace, services.mayRemove, this))
{
    m_workspace->sampleWidget()->setShowsTrueChannels(true);
    connect(m_editor, &SoundEditor::saveFailed, this, [](const QString& text) {
        Zorv::Dialogs::instance()->error(tr("Save sounds as"), text);
    });
}

Hearing::~Hearing()
{
    delete m_editor;
    delete m_workspace;
}

void Hearing::showSound(int row)
{
    m_services.editors->activate(m_editor);
    m_editor->navigateTo({}, unsigned(row), 0, 0);
}

CommandRows Hearing::commands() const
{
    SoundEditor* editor = m_editor;
    const auto file = [editor] { return editor->file(); };
    return {
        {Command::Undo, [editor] { editor->undo(); },
         [file] { return file() && file()->canUndo(); }, [file] { return file()->undoTitle(); }},
        {Command::Redo, [editor] { editor->redo(); },
         [file] { return file() && file()->canRedo(); }, [file] { return file()->redoTitle(); }},
        {Command::SelectAll, [editor] { editor->selectAll(); }},
        {Command::Save, [this] { const_cast<Hearing*>(this)->save(); },
         [this] { return canSave(); }}};
}

/// A file that has gone can be brought back.
bool Hearing::canSave() const
{
    return m_editor->file() && (m_editor->isModified() || isGone(m_editor->file()));
}

void Hearing::save()
{
    if (saveFiles({m_editor->file()})) {
        m_services.status->showPassing(
            tr("%1 is saved.").arg(m_services.session->shownPath(m_editor->file()->fileName())));
    }
    m_services.parts->gameChanged();
}

}  // namespace App
