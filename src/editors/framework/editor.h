#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QStringList>

class QAction;

namespace Zorv {

class Interface;
class Project;
class ProjectFile;
class Workspace;

/// Edits the file that a workspace shows: animations, sprites, sounds, code.
///
/// There is one editor of each kind in the process. The host owns it. The editor keeps
/// the current project and file without owning them. It builds no menus: it publishes
/// its tools through `Interface`. Main thread only.
class ZORV_EXPORT Editor : public QObject
{
    Q_OBJECT

public:
    /// Uses the installed host, which must outlive the editor.
    explicit Editor(QObject* parent = nullptr);
    ~Editor() override;

    /// The action that brings the editor to the front. Owned by the host.
    virtual QAction* action() const = 0;

    /// Short name, such as "anim", "spr", "snd". The setting `name() + "_path"` keeps
    /// the last folder of the editor's file dialogs.
    virtual QString name() const = 0;

    /// True if the current file has unsaved changes.
    virtual bool isModified() const;

    /// 1 if the current file may have no file on disk until it is saved.
    virtual int canEditFileType() const = 0;

    /// The names of the areas in which the editor applies.
    virtual QStringList areas() const = 0;

    /// Where the editor shows its file; null for an editor without a workspace. Owned
    /// by the host.
    virtual Workspace* workspace() const;

    /// Called by the host when the editor's area comes to the front and when it leaves
    /// it.
    virtual void activate();
    virtual void deactivate();

    /// Settings have changed.
    virtual void reconfig();

    /// The language has changed.
    virtual void retranslate() = 0;

    /// The active project has changed; null for none.
    virtual void setProject(Project* project);

    /// A project is about to close: drop every reference to it. The library itself does
    /// not call this.
    virtual void projectAboutToClose(Project* project);

    /// Jumps to the place of a message. The meaning of `name` and the numbers depends
    /// on the kind of file; a code file takes line and column, from 0, as the last two.
    virtual void navigateTo(const QString& name, unsigned a, unsigned b, unsigned c);

    /// Step through the undo history of the current file.
    virtual void undo();
    virtual void redo();

    /// Searches for a text from the current position; `flags` are bits of `FindFlag`.
    virtual void find(const QString& text, unsigned flags) = 0;

    /// Replaces the text at the current position, or everywhere with `all`; `flags` are
    /// bits of `FindFlag`.
    virtual void replace(const QString& text, const QString& with, unsigned flags, bool all) = 0;

    /// Selects everything that the editor can select. The library itself does not call
    /// this.
    virtual void selectAll() = 0;

    /// The current file, or null.
    virtual ProjectFile* file() const = 0;

    /// True between `activate()` and `deactivate()`.
    bool isActive() const;

public slots:
    /// The content of the file has changed.
    virtual void contentsChanged();

signals:
    /// Something that the host shows about the file may have changed.
    void modified();

protected:
    Interface* host() const;

private:
    Interface* m_host;
    bool m_active = false;
};

}  // namespace Zorv
