#pragma once

#include "operations/hostinterface.h"

#include <QPointer>

namespace App {

class MainWindow;

/// The host's side of the library with a window. Editors, workspaces and panels are those of the
/// window's registry (`EditorRegistry`).
class WindowInterface : public Operations::HostInterface
{
public:
    using HostInterface::HostInterface;

    /// Not owned; may die. Lets the window publish its tools.
    void setWindow(MainWindow* window);

    QWidget* mainWindow() const override;
    Zorv::ProgressReporter* progress(const QString& title, int style) override;

    /// Null while no editor is in front.
    Zorv::Editor* currentEditor() const override;

    /// Also by the name of an area: "sprites" for the editor "spr".
    Zorv::Editor* editorByName(const char* name) const override;

    /// A text that its editor is asked for comes to the front.
    Zorv::Editor* fileEditor(Zorv::ProjectFile* file, Zorv::FileID id) const override;
    void activateEditor(Zorv::Editor* editor) override;
    void showWorkspace(Zorv::Workspace* workspace) override;
    void showExtraEditor(Zorv::ExtraEditor* editor) override;
    bool watchesFiles() const override { return true; }
    unsigned projectCount() const override;
    Zorv::Project* projectAt(unsigned index) const override;
    Zorv::Project* currentProject() const override;
    int pixels(int size) const override;

    /// A colour of code that the person has not chosen is that of the theme.
    QVariant option(const QString& key) const override;

    /// Palettes are named as their files are; `flag`, if not null, becomes false. Both lists are
    /// empty if the person gives up. Begins in the folder of the first of `files`, else in that
    /// of the project in front.
    void selectPaletteFiles(QStringList& files, QStringList& names, bool* flag) override;

    /// Those of the status bar: 0 is the place, 1 the problems of the text in front, 2 its
    /// encoding, 3 the place on the stage. Any other number shows a passing text.
    void showStatus(int field, const QString& text) override;

    /// Those of the menu bar: "anim", "view", "spr", "pal", "snd" and the window's own. The
    /// middle three can be hidden.
    QMenu* menu(const char* name) const override;

    /// Tools stand where `controllayout.h` tells; see `ControlPlacer`.
    QObject* addControl(const QString& name, const Zorv::Control& control) override;
    QAction* createAction(const char* const* areas, const QString& name,
                          Zorv::Translator* translator, unsigned textId, const char* shortcut,
                          QObject* receiver, const char* slot, const char* enableSignal,
                          const char* checkSignal) override;
    QAction* createEditorAction(const QString& name, Zorv::Translator* translator,
                                unsigned textId) override;
    Zorv::ExtraEditor* extraEditor(unsigned index) const override;
    void setMenuEnabled(const char* menu, const char* group, bool enabled) override;

    /// Shows what is in files that the library has read again.
    void refreshProjects() override;

private:
    QPointer<MainWindow> m_window;
};

}  // namespace App
