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

/// What stands in the middle of the window while an editor is in front.
struct EditorPlace
{
    QWidget* page = nullptr;    ///< null for the widget of its workspace
    CommandRows commands = {};  ///< what the host does in place of the editor's own operations
    QWidget* field = nullptr;   ///< takes the keyboard; null for the widget of its workspace
    Zorv::Workspace* second = nullptr;  ///< another workspace that stands on the page
};

/// The editors of the window with their workspaces, and the panels at its sides.
///
/// An editor comes into the window by one line:
///
///     editors->add(new SpriteEditor(palettes), Zorv::FileID::Sprites);
///
/// From then on it is told of projects, settings and language, found by its name, by that of its
/// area and by its files, and it comes to the front by its action or by the host's
/// `activateEditor()`. Its workspace stands in the middle of the window while it is in front.
/// None of them is owned; they outlive the registry or are taken out by their end.
class EditorRegistry : public QObject, public Part
{
    Q_OBJECT

public:
    /// Workspaces get pages of `pages`, whose first one is shown while there is no editor in
    /// front. Panels with a widget of their own get a place by `controls`. Both outlive it.
    EditorRegistry(QStackedWidget* pages, ControlPlacer* controls, QObject* parent);
    ~EditorRegistry() override;

    /// Takes an editor in that is in charge of some kinds of files. The first one is that which
    /// comes back when another has nothing to work on any more.
    void add(Zorv::Editor* editor, Zorv::FileID files, const EditorPlace& place = {});

    /// Takes a panel in, behind the others.
    void addPanel(Zorv::ExtraEditor* panel);

    /// The editor in front, or null.
    Zorv::Editor* current() const { return m_current; }

    /// By the name of an editor, that of an area it applies in, or that of tools that work in
    /// its area: "spr", "sprites" and "pal" are one. Null if there is none.
    Zorv::Editor* byName(const QString& name) const;

    /// The editor in charge of a file: the one in front if it is, else the one that came first.
    /// Null if there is none.
    Zorv::Editor* forFile(Zorv::FileID id) const;

    /// In the order in which they came; null behind the last.
    Zorv::ExtraEditor* panel(int index) const;

    /// Brings an editor to the front. Nothing for one that is not here, or whose action is
    /// disabled or hidden: it has nothing to work on.
    void activate(Zorv::Editor* editor);

    /// Puts a workspace into the middle, of whatever editor.
    void showWorkspace(Zorv::Workspace* workspace);

    /// The workspace in the middle, or null.
    Zorv::Workspace* workspace() const { return m_workspaces.value(0); }

    /// Gives the keyboard to the workspace in the middle; nothing without one. Whoever brings an
    /// editor to the front does so.
    void focusWorkspace();

    /// What takes the keyboard of the workspace in the middle; null without one.
    QWidget* focusTarget() const;

    /// How the editor in front does the commands.
    CommandRows commands();

    /// Shows a panel in front of those in its place.
    void showPanel(Zorv::ExtraEditor* panel);

    /// The areas in which the editor in front applies.
    QSet<QString> areas() const;

    /// True if the editors let go of the files of a project, or with null of all. The person has
    /// been asked about `files` already: what is unsaved of them is discarded.
    bool canDiscard(const Zorv::Project* project, const QList<Zorv::ProjectFile*>& files) const;

    void showProject(Family::FamilyProject* project) override;
    void forgetProject(Family::FamilyProject* project) override;
    void updateState() override;
    void reconfig() override;
    void retranslate() override;

signals:
    /// Another editor is in front, or none.
    void currentChanged();

    /// What the host shows about the file of an editor may have changed.
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

    /// Calls it with each editor, workspace and panel that is there.
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
    QVector<const Zorv::ProjectFile*> m_files;  ///< of the project, as the editors were told
};

}  // namespace App
