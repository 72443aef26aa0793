#pragma once

#include "core/fileid.h"
#include "zorv_export.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

class ItemsDialog;
class QAbstractItemModel;
class QAction;
class QMenu;
class QObject;
class QWidget;

namespace Zorv {

class Control;
class Editor;
class EngineModel;
class ExtraEditor;
class ProgressReporter;
class Project;
class ProjectFile;
class Translator;
class Workspace;

/// The host's side of the seam: settings, main window, menus, progress, editors.
///
/// A host derives from it and installs its one object with
/// `setGlobalInterface()` before it uses anything else of the library. The
/// object stays the host's. Only the lookup of settings works without a host;
/// everything else needs one. Main thread only.
class ZORV_EXPORT Interface
{
public:
    virtual ~Interface();

    /// The installed host, null before `setGlobalInterface()`.
    static Interface* instance();

    /// A shared text in the person's language, by number. The library asks for:
    ///
    /// | Number | Text |
    /// |---|---|
    /// | 2 | title of the messages that 3 and 4 are the text of |
    /// | 3 | a picture or sound that could not be read; `%1` is its file |
    /// | 4 | an empty one in an import; `%1` is its kind, `%2` its row, `%3` the project |
    /// | 7 | label of the entry of a file filter that lists all formats |
    /// | 8 | title of the message that nothing was found |
    virtual QString text(unsigned id) const = 0;

    /// The parent of every dialog that the library opens; may be null.
    virtual QWidget* mainWindow() const = 0;

    /// Opens a progress reporter. `style` is 0 for all that the library does.
    /// The caller ends it with `ProgressReporter::finish()`; never null.
    virtual ProgressReporter* progress(const QString& title, int style) = 0;

    /// The model of the engine family in use.
    virtual EngineModel* engineModel() const = 0;

    /// The active editor, or null. In the middle of `activateEditor()` it is the one that comes
    /// forward already: so an editor that goes can leave to it what they share.
    virtual Editor* currentEditor() const = 0;

    /// The editor whose `name()` is `name`, or null.
    virtual Editor* editorByName(const char* name) const = 0;

    /// The editor in charge of a file of a project, or null.
    virtual Editor* fileEditor(ProjectFile* file, FileID id) const = 0;

    /// How many projects are open.
    virtual unsigned projectCount() const = 0;

    /// An open project, by its number below `projectCount()`.
    virtual Project* projectAt(unsigned index) const = 0;

    /// The project in front, or null.
    virtual Project* currentProject() const = 0;

    /// Scales a length in pixels at 96 dots an inch to the screen.
    virtual int pixels(int size) const = 0;

    /// A colour of the settings: "back_start", "back_end".
    virtual QColor colorOption(const QString& key) const = 0;

    /// Lets the person choose palette files and a name for each. The answer
    /// counts only if both lists come back with the same length.
    virtual void selectPaletteFiles(QStringList& files, QStringList& names, bool* flag) = 0;

    /// Gives an identifier for each of the sound files that are about to be added, in
    /// their order; with another number of identifiers none is added. As it stands here
    /// a sound is called as its file is, without folder and suffix.
    virtual void soundIdentifiers(const QStringList& files, QList<QVariant>* identifiers);

    /// A global setting; invalid for a key that the host does not know.
    virtual QVariant option(const QString& key) const = 0;

    /// Stores a global setting; a null value removes it.
    virtual void setOption(const QString& key, const QVariant& value) = 0;

    /// Shows a text in a numbered field of the status bar.
    virtual void showStatus(int field, const QString& text) = 0;

    /// Publishes a tool under a name, which is also the key of its shortcut.
    /// The host keeps a copy (`Control::clone()`) and returns the widget or
    /// action that it made for it, which stays the host's; null if it made none.
    /// A tool without a name has neither place nor key: nothing is made for it.
    virtual QObject* addControl(const QString& name, const Control& control) = 0;

    /// A menu of the main window by its short name: "anim", "view", "pal",
    /// "spr", "snd"; null if the host has none.
    virtual QMenu* menu(const char* name) const = 0;

    /// Builds the action of a tool.
    ///
    /// `areas` is a null-ended array of area names in which the action is
    /// enabled. Its texts come from `translator` by `textId`. `slot` and the
    /// signals are signatures of `receiver` in the form of `SLOT()` and
    /// `SIGNAL()`: the action's trigger is connected to `slot`, `enableSignal`
    /// (a bool; may be null) to its enabled state and `checkSignal` (a bool;
    /// may be null) to its checked state. With `shortcut` the action starts
    /// with that key sequence, in the portable form. The action is the host's;
    /// null for an empty name.
    virtual QAction* createAction(const char* const* areas, const QString& name,
                                  Translator* translator, unsigned textId, const char* shortcut,
                                  QObject* receiver, const char* slot, const char* enableSignal,
                                  const char* checkSignal) = 0;

    /// Builds the action that brings an editor forward ("editor_anim", ...).
    virtual QAction* createEditorAction(const QString& name, Translator* translator,
                                        unsigned textId) = 0;

    /// Shows or hides a menu together with its area of tools.
    virtual void setMenuEnabled(const char* menu, const char* group, bool enabled) = 0;

    /// A side panel: 0 is the organizer, 1 the thumbnails; null if there is none.
    virtual ExtraEditor* extraEditor(unsigned index) const = 0;

    /// Asks the host to look at its projects again: a backup has come back.
    virtual void refreshProjects() = 0;

    /// Brings an editor forward: calls `Editor::deactivate()` of the one before and
    /// `Editor::activate()` of this one, if it is not active. An editor that is activated
    /// by hand asks for it, too, so a call in the middle of another is no error.
    virtual void activateEditor(Editor* editor) = 0;

    /// Puts a workspace into the middle of the window, which an editor asks for when it
    /// comes forward: calls `Workspace::deactivate()` of the one that was there and
    /// `Workspace::activate()` of this one. Nothing if it is there already. Without an
    /// override nothing is shown, as by a host without a window.
    virtual void showWorkspace(Workspace* workspace);

    /// Shows a side panel that may be hidden or behind another one, and leaves the focus
    /// where it is. Without an override nothing is shown.
    virtual void showExtraEditor(ExtraEditor* editor);

    /// A dialog in which rows of `model` are picked; `row`, if not negative, is
    /// selected at first. The caller owns it. The model stays the caller's and
    /// must outlive the dialog or be taken off with `ItemsDialog::release()`.
    virtual ItemsDialog* itemsDialog(QWidget* parent, const QString& title,
                                     QAbstractItemModel* model, int row) const;

    /// False for a host that opens games, does one piece of work, and ends: then neither files nor
    /// folders are watched, which costs more than to read them. Asked when a watch would begin.
    /// True, unless a host says otherwise.
    virtual bool watchesFiles() const;
};

}  // namespace Zorv

extern "C" {
/// Installs the host; null takes it away. The name is not mangled, so that a
/// host that loads the library by hand finds it.
ZORV_EXPORT void setGlobalInterface(Zorv::Interface* interface);
}
