#pragma once

#include "editors/framework/editor.h"

namespace Zorv {

/// An editor that opens and saves files of its own.
///
/// The commands bring the editor forward first, and ask through `Dialogs`. A
/// file that cannot be read or written is told by `ProjectFile::errorString()`;
/// these commands show nothing of it themselves.
class ZORV_EXPORT FileEditor : public Editor
{
    Q_OBJECT

public:
    using Editor::Editor;

    /// Pairs of a label and an extension with its point, joined by ";", as in
    /// "Picture;.png;Palette;.act". Empty: the file cannot be saved under a name.
    virtual QString fileFilter() const;

    /// True if the file in work can go: there is none, it is saved with its
    /// owner, it has no changes, or the person discards them.
    virtual bool canDiscard() const;

    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;

    /// Asks for a name with the save dialog of an editor and writes a file of
    /// a project under it. False if the person gave up, the file cannot be
    /// saved under a name, or writing failed.
    static bool saveFileAs(ProjectFile* file, FileEditor* editor, Interface* interface);

public slots:
    /// Empties the file, after `canDiscard()`.
    virtual void reset();

    /// Asks for a file and reads it. One from outside of the project is read as
    /// it is, or on demand as a copy: its content under the old identity.
    virtual void open();

    /// Writes the file if it has changes, with what has not gone into it yet (`FileInput`); goes
    /// on to `saveAs()` if that fails.
    virtual void save();

    /// As `saveFileAs()` for the file in work.
    virtual void saveAs();

public:
    /// True if what was typed or painted beside the file, and is not in it yet, can
    /// go: there is none, or the person saves or discards it. `canDiscard()` asks this first.
    virtual bool canDiscardInput() const;

private:
    void comeForward();
};

}  // namespace Zorv
