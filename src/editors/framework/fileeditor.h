#pragma once

#include "editors/framework/editor.h"

namespace Zorv {

/// An editor that opens and saves files of its own.
///
/// The commands first bring the editor to the front. They ask questions through `Dialogs`. They do
/// not report read or write errors: `ProjectFile::errorString()` has them.
class ZORV_EXPORT FileEditor : public Editor
{
    Q_OBJECT

public:
    using Editor::Editor;

    /// Pairs of a label and an extension with its dot, joined by ";", as in
    /// "Picture;.png;Palette;.act". Empty: the file cannot be saved under a name.
    virtual QString fileFilter() const;

    /// True if the current file can be discarded: there is none, it is saved with its owner, it has
    /// no changes, or the user agrees to lose them.
    virtual bool canDiscard() const;

    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;

    /// Shows the editor's save dialog and writes a project file under the chosen name. False if the
    /// user cancelled, the file cannot be saved under a name, or writing failed.
    static bool saveFileAs(ProjectFile* file, FileEditor* editor, Interface* interface);

public slots:
    /// Empties the file, after `canDiscard()`.
    virtual void reset();

    /// Asks for a file and reads it. A file from outside the project is read in place, or as a copy
    /// if the user wants that: its content under the old identity.
    virtual void open();

    /// Writes the file if it has changes, after flushing pending input into it (`FileInput`). Calls
    /// `saveAs()` if writing fails.
    virtual void save();

    /// `saveFileAs()` for the current file.
    virtual void saveAs();

public:
    /// True if input that has not reached the file yet, such as typing or painting, can be
    /// discarded: there is none, or the user saves or discards it. `canDiscard()` asks this first.
    virtual bool canDiscardInput() const;

private:
    void comeForward();
};

}  // namespace Zorv
