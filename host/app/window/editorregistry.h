#pragma once

#include "app/window/part.h"

#include <zorv/core/fileid.h>
#include <zorv/editors/framework/editor.h>
#include <zorv/editors/framework/extraeditor.h>
#include <zorv/editors/framework/workspace.h>

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVector>

class QStackedWidget;
class QWidget;

namespace Zorv {
class Project;
class ProjectFile;
}  // namespace Zorv

namespace App {

class ControlPlacer;

/// What the middle of the window shows while an editor is in front.
struct EditorPlace
{
    QWidget* page = nullptr;    ///< null: the widget of its workspace
    CommandRows commands = {};  ///< commands that the host handles instead of the editor
    QWidget* field = nullptr;   ///< gets the keyboard focus; null: the widget of its workspace
    Zorv::Workspace* second = nullptr;  ///< another workspace on the same page
};

/// The editors of the window with their workspaces, and the panels at its sides.
///
/// One line registers an editor:
///
///     editors->add(new SpriteEditor(palettes), Zorv::FileID::Sprites);
///
/// The registry then notifies it of projects, settings and language changes. It can be found by its
/// name, its area or its files. Its action or the host's `activateEditor()` brings it to the front,
/// and its workspace then fills the middle of the window. The registry owns none of them: they
/// outlive it, or leave it when they are destroyed.
class EditorRegistry : public QObject, public Part
{
    Q_OBJECT

public:
    /// Workspaces become pages of `pages`; its first page is shown while no editor is in front.
    /// `controls` gives panels with a widget of their own a place. Both outlive the registry.
    EditorRegistry(QStackedWidget* pages, ControlPlacer* controls, QObject* parent);
    ~EditorRegistry() override;

    /// Registers an editor for some kinds of files. The first one registered is the fallback when
    /// another editor has nothing left to work on.
    void add(Zorv::Editor* editor, Zorv::FileID files, const EditorPlace& place = {});

    /// Adds a panel after the others.
    void addPanel(Zorv::ExtraEditor* panel);

    /// The editor in front, or null.
    Zorv::Editor* current() const { return m_current; }

    /// Finds an editor by its own name, by an area where it applies, or by the prefix of the tools
    /// in its area: "spr", "sprites" and "pal" give the same editor. Null if there is none.
    Zorv::Editor* byName(const QString& name) const;

    /// The editor for a file: the one in front if it handles the file, else the first one
    /// registered. Null if there is none.
    Zorv::Editor* forFile(Zorv::FileID id) const;

    /// In the order of registration; null after the last.
    Zorv::ExtraEditor* panel(int index) const;

    /// Brings an editor to the front. Does nothing if it is not registered, or if its action is
    /// disabled or hidden: it has nothing to work on then.
    void activate(Zorv::Editor* editor);

    /// Shows a workspace in the middle, whichever editor it belongs to.
    void showWorkspace(Zorv::Workspace* workspace);

    /// The workspace in the middle, or null.
    Zorv::Workspace* workspace() const { return m_workspaces.value(0); }

    /// Focuses the workspace in the middle, if any. Whoever brings an editor to the front calls
    /// this.
    void focusWorkspace();

    /// The widget that gets the focus in the middle workspace; null without a workspace.
    QWidget* focusTarget() const;

    /// How the editor in front runs the commands.
    CommandRows commands();

    /// Shows a panel, raised above the others in its dock.
    void showPanel(Zorv::ExtraEditor* panel);

    /// The areas in which the editor in front applies.
    QSet<QString> areas() const;

    /// True if the editors release the files of a project, or with null all files. The user was
    /// already asked about `files`: their unsaved changes are discarded.
    bool canDiscard(const Zorv::Project* project, const QList<Zorv::ProjectFile*>& files) const;

    void showProject(Family::FamilyProject* project) override;
    void forgetProject(Family::FamilyProject* project) override;
    void updateState() override;
    void reconfig() override;
    void retranslate() override;

signals:
    /// Another editor came to the front, or none is left.
    void currentChanged();

    /// What the host shows about an editor's file may have changed.
    void modified();

private:
    struct Entry
    {
        QPointer<Zorv::Editor> editor;
        Zorv::FileID files;
        QPointer<Zorv::Workspace> workspace;
        EditorPlace place;
    };

    bool has(const Zorv::Editor* editor) const;

    /// Calls `act` with each registered editor, workspace and panel.
    template <class Act>
    void forAll(Act act);

    void leave();
    void showWorkspaces(const QVector<Zorv::Workspace*>& workspaces);
    void find(Zorv::Editor* editor, bool isAgain, unsigned flags);

    QStackedWidget* m_pages;
    ControlPlacer* m_controls;
    QVector<Entry> m_entries;
    QVector<QPointer<Zorv::ExtraEditor>> m_panels;
    QPointer<Zorv::Editor> m_current;
    QVector<QPointer<Zorv::Workspace>> m_workspaces;  ///< in the middle, the main one first
    QPointer<QWidget> m_field;
    const Zorv::Editor* m_activating = nullptr;
    Family::FamilyProject* m_project = nullptr;
    QString m_sought;
    QVector<const Zorv::ProjectFile*> m_files;  ///< of the project, as last passed to the editors
};

}  // namespace App
