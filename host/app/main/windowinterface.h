#pragma once

#include "operations/hostinterface.h"

#include <QPointer>

namespace App {

class MainWindow;

/// The host's side of the library, with a window. Editors, workspaces and panels come from the
/// window's registry (`EditorRegistry`).
class WindowInterface : public Operations::HostInterface
{
public:
    using HostInterface::HostInterface;

    /// Not owned; may be destroyed. Lets the window publish its tools.
    void setWindow(MainWindow* window);

    QWidget* mainWindow() const override;
    Zorv::ProgressReporter* progress(const QString& title, int style) override;

    /// Null while no editor is in front.
    Zorv::Editor* currentEditor() const override;

    /// Also finds editors by area: "sprites" for the editor "spr".
    Zorv::Editor* editorByName(const char* name) const override;

    /// Brings a text to the front when its editor is requested.
    Zorv::Editor* fileEditor(Zorv::ProjectFile* file, Zorv::FileID id) const override;
    void activateEditor(Zorv::Editor* editor) override;
    void showWorkspace(Zorv::Workspace* workspace) override;
    void showExtraEditor(Zorv::ExtraEditor* editor) override;
    bool watchesFiles() const override { return true; }
    unsigned projectCount() const override;
    Zorv::Project* projectAt(unsigned index) const override;
    Zorv::Project* currentProject() const override;
    int pixels(int size) const override;

    /// A code colour that the user has not chosen comes from the theme.
    QVariant option(const QString& key) const override;

    /// Palettes get the names of their files; `flag`, if not null, is set to false. Both lists are
    /// empty if the user cancels. The dialog starts in the folder of the first of `files`, else in
    /// the folder of the current project.
    void selectPaletteFiles(QStringList& files, QStringList& names, bool* flag) override;

    /// Fields of the status bar: 0 is the cursor position, 1 the problems of the current text, 2
    /// its encoding, 3 the position on the stage. Any other number shows a temporary message.
    void showStatus(int field, const QString& text) override;

    /// Menus of the menu bar: "anim", "view", "spr", "pal", "snd" and the window's own. "spr",
    /// "pal" and "snd" can be hidden.
    QMenu* menu(const char* name) const override;

    /// `controllayout.h` defines where tools go; see `ControlPlacer`.
    QObject* addControl(const QString& name, const Zorv::Control& control) override;
    QAction* createAction(const char* const* areas, const QString& name,
                          Zorv::Translator* translator, unsigned textId, const char* shortcut,
                          QObject* receiver, const char* slot, const char* enableSignal,
                          const char* checkSignal) override;
    QAction* createEditorAction(const QString& name, Zorv::Translator* translator,
                                unsigned textId) override;
    Zorv::ExtraEditor* extraEditor(unsigned index) const override;
    void setMenuEnabled(const char* menu, const char* group, bool enabled) override;

    /// Shows the contents of files that the library has reloaded.
    void refreshProjects() override;

private:
    QPointer<MainWindow> m_window;
};

}  // namespace App
