#include "app/window/editorregistry.h"

#include "app/controls/controllayout.h"
#include "app/controls/controlplacer.h"
#include "family/project/familyproject.h"

#include <zorv/core/fileinput.h>
#include <zorv/core/projectfile.h>
#include <zorv/editors/framework/fileeditor.h>
#include <zorv/editors/framework/findflag.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QInputDialog>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

// At most one editor is in front (`m_current`), and it fills the middle with one or two workspaces.
// Activating works from both sides: an editor that is activated calls the host, which calls
// `activate()`, and `activate()` itself activates the editor. When the current editor has nothing
// to work on any more, the first registered one takes over; if that cannot be used either, the
// first page of the stack is shown.

namespace App {

using Zorv::Editor;
using Zorv::ExtraEditor;
using Zorv::FileID;
using Zorv::ProjectFile;
using Zorv::Workspace;

namespace {

/// Editors disable or hide their action while they have nothing to work on.
bool isUsable(const Editor* editor)
{
    const QAction* action = editor->action();
    return !action || (action->isVisible() && action->isEnabled());
}

/// The area of the tools named after an editor or a panel.
QString areaOfTools(const QString& name)
{
    return QLatin1String(placeOf(name + QLatin1Char('_')).area);
}

CommandRows editorCommands(Editor* editor)
{
    const auto file = [editor] { return editor->file(); };
    CommandRows rows{
        {Command::Undo, [editor] { editor->undo(); },
         [file] { return file() && file()->canUndo(); }, [file] { return file()->undoTitle(); }},
        {Command::Redo, [editor] { editor->redo(); },
         [file] { return file() && file()->canRedo(); }, [file] { return file()->redoTitle(); }},
        {Command::SelectAll, [editor] { editor->selectAll(); }}};
    if (auto* files = qobject_cast<Zorv::FileEditor*>(editor)) {
        rows += CommandRows{
            {Command::Cut, [files] { files->cut(); }},
            {Command::Copy, [files] { files->copy(); }},
            {Command::Paste, [files] { files->paste(); }},
            {Command::Save, [files] { files->save(); }, [files] { return files->isModified(); }}};
    }
    return rows;
}

/// The files of a project that editors work on.
QVector<const ProjectFile*> filesOf(const Zorv::Project* project)
{
    QVector<const ProjectFile*> files;
    for (const auto type :
         {FileID::MainCode, FileID::Sprites, FileID::Sounds, FileID::Animations}) {
        files.append(project ? project->file(type) : nullptr);
    }
    return files;
}

}  // namespace

EditorRegistry::EditorRegistry(QStackedWidget* pages, ControlPlacer* controls, QObject* parent)
    : QObject(parent), m_pages(pages), m_controls(controls)
{
}

EditorRegistry::~EditorRegistry() = default;

void EditorRegistry::add(Editor* editor, FileID files, const EditorPlace& place)
{
    Workspace* workspace = editor->workspace();
    Entry entry{editor, files, workspace, place};
    QWidget* widget = workspace ? workspace->widget() : nullptr;
    entry.place.page = place.page ? place.page : widget;
    entry.place.field = place.field ? place.field : widget;
    if (entry.place.page && m_pages->indexOf(entry.place.page) < 0) {
        m_pages->addWidget(entry.place.page);
    }
    m_entries.append(entry);
    connect(editor, &Editor::modified, this, &EditorRegistry::modified);
    editor->setProject(m_project);
}

void EditorRegistry::addPanel(ExtraEditor* panel)
{
    m_panels.append(panel);
    if (QDockWidget* dock = m_controls->addPanel(panel)) {
        connect(dock, &QDockWidget::visibilityChanged, panel, [panel](bool isVisible) {
            if (isVisible != panel->isActive()) {
                isVisible ? panel->activate() : panel->deactivate();
            }
        });
    }
}

bool EditorRegistry::has(const Editor* editor) const
{
    return editor && std::any_of(m_entries.begin(), m_entries.end(),
                                 [editor](const Entry& entry) { return entry.editor == editor; });
}

Editor* EditorRegistry::byName(const QString& name) const
{
    const auto find = [this](auto fits) -> Editor* {
        for (const Entry& entry : m_entries) {
            if (entry.editor && fits(entry.editor.data())) {
                return entry.editor;
            }
        }
        return nullptr;
    };
    const auto appliesIn = [](const QString& area) {
        return [area](const Editor* editor) { return editor->areas().contains(area); };
    };
    Editor* found = find([&name](const Editor* editor) { return editor->name() == name; });
    found = found ? found : find(appliesIn(name));
    return found ? found : find(appliesIn(areaOfTools(name)));
}

Editor* EditorRegistry::forFile(FileID id) const
{
    Editor* found = nullptr;
    for (const Entry& entry : m_entries) {
        if (entry.editor && (entry.files & id) != 0 && (!found || entry.editor == m_current)) {
            found = entry.editor;
        }
    }
    return found;
}

ExtraEditor* EditorRegistry::panel(int index) const
{
    return m_panels.value(index);
}

/// Activating an editor calls this function again, from here or from elsewhere. `m_activating`
/// guards against that re-entrance.
void EditorRegistry::activate(Editor* editor)
{
    if (!has(editor) || !isUsable(editor) || editor == m_activating) {
        return;
    }
    const QScopedValueRollback<const Editor*> guard(m_activating, editor);
    if (m_current != editor) {
        const QPointer<Editor> before = std::exchange(m_current, editor);
        if (before && before->isActive()) {
            before->deactivate();
        }
    }
    if (!editor->isActive()) {
        editor->activate();
    }
    if (Workspace* workspace = editor->workspace()) {
        showWorkspace(workspace);
    }
    focusWorkspace();
    if (QAction* action = editor->action()) {
        action->setChecked(true);
    }
    emit currentChanged();
}

void EditorRegistry::showWorkspace(Workspace* workspace)
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [workspace](const Entry& entry) {
            return entry.workspace == workspace && entry.place.page;
        });
    if (!workspace || found == m_entries.end()) {
        return;
    }
    m_field = found->place.field;
    m_pages->setCurrentWidget(found->place.page);
    showWorkspaces({workspace, found->place.second});
}

/// Workspaces that stay visible are not touched.
void EditorRegistry::showWorkspaces(const QVector<Workspace*>& workspaces)
{
    const QVector<QPointer<Workspace>> before = m_workspaces;
    m_workspaces.clear();
    for (Workspace* each : workspaces) {
        if (each) {
            m_workspaces.append(each);
        }
    }
    for (const QPointer<Workspace>& each : before) {
        if (each && !workspaces.contains(each)) {
            each->deactivate();
        }
    }
    for (Workspace* each : workspaces) {
        if (each && !before.contains(each)) {
            each->activate();
        }
    }
}

void EditorRegistry::focusWorkspace()
{
    if (m_field) {
        m_field->setFocus();
    }
}

QWidget* EditorRegistry::focusTarget() const
{
    return m_field && m_field->focusProxy() ? m_field->focusProxy() : m_field.data();
}

/// Asks for the text to find once, and reuses it afterwards.
void EditorRegistry::find(Editor* editor, bool isAgain, unsigned flags)
{
    if (!isAgain || m_sought.isEmpty()) {
        bool isGiven = false;
        const QString text = QInputDialog::getText(m_pages->window(), tr("Find"), tr("Text:"),
                                                   QLineEdit::Normal, m_sought, &isGiven);
        m_sought = isGiven ? text : QString();
    }
    if (!m_sought.isEmpty()) {
        editor->find(m_sought, flags | Zorv::FindWrap);
    }
}

CommandRows EditorRegistry::commands()
{
    Editor* editor = m_current;
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(),
                                    [editor](const Entry& each) { return each.editor == editor; });
    if (!editor || entry == m_entries.end()) {
        return {};
    }
    CommandRows rows = entry->place.commands;
    rows += editorCommands(editor);
    rows += CommandRows{
        {Command::Find, [this, editor] { find(editor, false, 0); }},
        {Command::FindNext, [this, editor] { find(editor, true, 0); }},
        {Command::FindPrevious, [this, editor] { find(editor, true, Zorv::FindBackward); }}};
    if (Workspace* workspace = this->workspace()) {
        rows += CommandRows{{Command::ZoomIn, [workspace] { workspace->zoomIn(); }},
                            {Command::ZoomOut, [workspace] { workspace->zoomOut(); }},
                            {Command::ZoomActual, [workspace] { workspace->zoomActual(); }}};
    }
    return rows;
}

/// The current editor has nothing to work on any more.
void EditorRegistry::leave()
{
    const QPointer<Editor> before = std::exchange(m_current, nullptr);
    if (before->isActive()) {
        before->deactivate();
    }
    if (QAction* action = before ? before->action() : nullptr) {
        action->setChecked(false);
    }
    Editor* first = m_entries.first().editor;
    if (first && isUsable(first)) {
        activate(first);
        return;
    }
    m_pages->setCurrentIndex(0);
    m_field = nullptr;
    showWorkspaces({});
    emit currentChanged();
}

void EditorRegistry::showPanel(ExtraEditor* panel)
{
    if (m_panels.contains(panel)) {
        m_controls->showPanel(panel);
    }
}

QSet<QString> EditorRegistry::areas() const
{
    const QStringList names = m_current ? m_current->areas() : QStringList();
    return {names.begin(), names.end()};
}

bool EditorRegistry::canDiscard(const Zorv::Project* project,
                                const QList<ProjectFile*>& files) const
{
    return std::all_of(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        const auto* editor = qobject_cast<const Zorv::FileEditor*>(entry.editor.data());
        ProjectFile* file = editor ? editor->file() : nullptr;
        const bool isConcerned = file && (!project || file->project() == project);
        const bool isAsked = isConcerned && files.contains(file);
        if (!isConcerned || (isAsked && Zorv::FileInput::isOn(file))) {
            return true;
        }
        const bool isDiscarded = isAsked && file->isModified();
        return isDiscarded ? editor->canDiscardInput() : editor->canDiscard();
    });
}

void EditorRegistry::showProject(Family::FamilyProject* project)
{
    const QVector<const ProjectFile*> files = filesOf(project);
    if (project == m_project && files == m_files) {
        return;
    }
    m_project = project;
    m_files = files;
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.editor) {
            entry.editor->setProject(project);
        }
    }
}

void EditorRegistry::forgetProject(Family::FamilyProject* project)
{
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.editor) {
            entry.editor->projectAboutToClose(project);
        }
    }
}

void EditorRegistry::updateState()
{
    if (m_current && !isUsable(m_current)) {
        leave();
    }
}

template <class Act>
void EditorRegistry::forAll(Act act)
{
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.editor) {
            act(entry.editor.data());
        }
        if (entry.workspace) {
            act(entry.workspace.data());
        }
    }
    for (ExtraEditor* panel : qAsConst(m_panels)) {
        if (panel) {
            act(panel);
        }
    }
}

void EditorRegistry::reconfig()
{
    forAll([](auto* each) { each->reconfig(); });
}

void EditorRegistry::retranslate()
{
    forAll([](auto* each) { each->retranslate(); });
}

}  // namespace App
