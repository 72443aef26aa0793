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

/// What the library needs from its host: settings, main window, menus, progress, editors.
///
/// A host derives from this class and installs its one object with `setGlobalInterface()` before it
/// uses anything else of the library. The host keeps owning the object. Without a host only the
/// lookup of settings works. Main thread only.
class ZORV_EXPORT Interface
{
public:
    virtual ~Interface();

    /// The installed host; null before `setGlobalInterface()`.
    static Interface* instance();

    /// A shared text in the user's language, by number. The library uses:
    ///
    /// | Number | Text |
    /// |---|---|
    /// | 2 | title of the messages with text 3 or 4 |
    /// | 3 | a picture or sound could not be read; `%1` is its file |
    /// | 4 | an item of an import is empty; `%1` is its kind, `%2` its row, `%3` the project |
    /// | 7 | name of the "all formats" entry in a file filter |
    /// | 8 | title of the message that nothing was found |
    virtual QString text(unsigned id) const = 0;

    /// The parent for every dialog the library opens. May be null.
    virtual QWidget* mainWindow() const = 0;

    /// Opens a progress reporter; never null. The library always passes 0 for `style`. The caller
    /// ends the reporter with `ProgressReporter::finish()`.
    virtual ProgressReporter* progress(const QString& title, int style) = 0;

    /// The model of the engine family in use.
    virtual EngineModel* engineModel() const = 0;

    /// The active editor, or null. During `activateEditor()` this is already the new editor. So the
    /// old editor, in its `deactivate()`, can leave what they share to the new one.
    virtual Editor* currentEditor() const = 0;

    /// The editor whose `name()` is `name`, or null.
    virtual Editor* editorByName(const char* name) const = 0;

    /// The editor responsible for a file of a project, or null.
    virtual Editor* fileEditor(ProjectFile* file, FileID id) const = 0;

    /// The number of open projects.
    virtual unsigned projectCount() const = 0;

    /// An open project. `index` is less than `projectCount()`.
    virtual Project* projectAt(unsigned index) const = 0;

    /// The current project, or null.
    virtual Project* currentProject() const = 0;

    /// Converts a length in pixels at 96 dpi to pixels of the screen.
    virtual int pixels(int size) const = 0;

    /// A colour from the settings: "back_start", "back_end".
    virtual QColor colorOption(const QString& key) const = 0;

    /// Lets the user choose palette files and a name for each. The answer counts only if both lists
    /// have the same length.
    virtual void selectPaletteFiles(QStringList& files, QStringList& names, bool* flag) = 0;

    /// Supplies an identifier for each sound file about to be added, in the same order. If the
    /// number of identifiers differs, no file is added. By default a sound gets its file name
    /// without folder and suffix.
    virtual void soundIdentifiers(const QStringList& files, QList<QVariant>* identifiers);

    /// A global setting; invalid if the host does not know the key.
    virtual QVariant option(const QString& key) const = 0;

    /// Stores a global setting. A null value removes it.
    virtual void setOption(const QString& key, const QVariant& value) = 0;

    /// Shows a text in one of the numbered fields of the status bar.
    virtual void showStatus(int field, const QString& text) = 0;

    /// Publishes a tool under a name, which is also the key of its shortcut. The host keeps a copy
    /// (`Control::clone()`) and returns the widget or action it made, which it keeps owning; null
    /// if it made none. Nothing is made for a tool without a name, because it has neither a place
    /// nor a shortcut key.
    virtual QObject* addControl(const QString& name, const Control& control) = 0;

    /// A menu of the main window by its short name: "anim", "view", "pal", "spr", "snd". Null if
    /// the host does not have it.
    virtual QMenu* menu(const char* name) const = 0;

    /// Creates the action of a tool. Returns null if `name` is empty. The host owns the action.
    ///
    /// `areas` is a null-terminated array with the names of the areas in which the action is
    /// enabled. Its texts are number `textId` of `translator`. `slot`, `enableSignal` and
    /// `checkSignal` are signatures of `receiver` in the form of `SLOT()` and `SIGNAL()`.
    /// Triggering the action calls `slot`. `enableSignal` and `checkSignal` carry a bool that sets
    /// the enabled and the checked state; both may be null. `shortcut` is the initial key sequence
    /// in portable form.
    virtual QAction* createAction(const char* const* areas, const QString& name,
                                  Translator* translator, unsigned textId, const char* shortcut,
                                  QObject* receiver, const char* slot, const char* enableSignal,
                                  const char* checkSignal) = 0;

    /// Creates the action that activates an editor ("editor_anim", ...).
    virtual QAction* createEditorAction(const QString& name, Translator* translator,
                                        unsigned textId) = 0;

    /// Shows or hides a menu together with its tool area.
    virtual void setMenuEnabled(const char* menu, const char* group, bool enabled) = 0;

    /// A side panel: 0 is the organizer, 1 the thumbnails. Null if there is none.
    virtual ExtraEditor* extraEditor(unsigned index) const = 0;

    /// Asks the host to refresh its projects, because a backup has been restored.
    virtual void refreshProjects() = 0;

    /// Activates an editor, if it is not active: calls `Editor::deactivate()` of the previous one,
    /// then `Editor::activate()` of this one. An editor that is activated directly calls this
    /// function too, so nested calls are allowed.
    virtual void activateEditor(Editor* editor) = 0;

    /// Shows a workspace in the middle of the window: calls `Workspace::deactivate()` of the
    /// previous one, then `Workspace::activate()` of this one. An editor calls it when it is
    /// activated. Does nothing if the workspace is already shown. The default does nothing, for
    /// hosts without a window.
    virtual void showWorkspace(Workspace* workspace);

    /// Shows a side panel that may be hidden or behind another one. The focus does not move. The
    /// default does nothing.
    virtual void showExtraEditor(ExtraEditor* editor);

    /// Creates a dialog for picking rows of `model`. If `row` is not negative, that row is selected
    /// first. The caller owns the dialog and the model. The model must outlive the dialog, or be
    /// detached with `ItemsDialog::release()`.
    virtual ItemsDialog* itemsDialog(QWidget* parent, const QString& title,
                                     QAbstractItemModel* model, int row) const;

    /// Return false in a host that opens games, does one task and exits. Then no files or folders
    /// are watched, because watching costs more than reading the files. Called whenever a watch
    /// would start. True by default.
    virtual bool watchesFiles() const;
};

}  // namespace Zorv

extern "C" {
/// Installs the host; null uninstalls it. The name is not mangled, so that a host that loads the
/// library at run time can look it up.
ZORV_EXPORT void setGlobalInterface(Zorv::Interface* interface);
}
