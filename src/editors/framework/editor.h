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

/// Works on the file that a workspace shows: animations, sprites, sounds, code.
///
/// There is one editor of each kind for the process, owned by the host. It holds
/// the current project and file without owning them. It builds no menus: it
/// publishes its tools through `Interface`. Main thread only.
class ZORV_EXPORT Editor : public QObject
{
    Q_OBJECT

public:
    /// Takes the installed host, which must outlive the editor.
    explicit Editor(QObject* parent = nullptr);
    ~Editor() override;

    /// The action that brings the editor forward; the host's.
    virtual QAction* action() const = 0;

    /// Short name, such as "anim", "spr", "snd"; `name() + "_path"` is the
    /// setting that keeps the last folder of its file dialogs.
    virtual QString name() const = 0;

    /// True if the file in work has unsaved changes.
    virtual bool isModified() const;

    /// 1 for an editor whose file may be without a real one until it is saved.
    virtual int canEditFileType() const = 0;

    /// The names of the areas in which the editor applies.
    virtual QStringList areas() const = 0;

    /// Where the editor shows its file; the host's. Null for an editor without one.
    virtual Workspace* workspace() const;

    /// The host calls these when the editor's area comes forward and goes.
    virtual void activate();
    virtual void deactivate();

    /// Settings have changed.
    virtual void reconfig();

    /// The language has changed.
    virtual void retranslate() = 0;

    /// The project in front has changed; null for none.
    virtual void setProject(Project* project);

    /// A project is about to close: nothing of it may be kept. Not called by
    /// the library.
    virtual void projectAboutToClose(Project* project);

    /// Shows the place of a message. `name` and the numbers are those of the
    /// file's kind; a code file takes line and column, from 0, as the last two.
    virtual void navigateTo(const QString& name, unsigned a, unsigned b, unsigned c);

    /// One step of the history of the file in work.
    virtual void undo();
    virtual void redo();

    /// Looks for a text from the present place on; `flags` are bits of `FindFlag`.
    virtual void find(const QString& text, unsigned flags) = 0;

    /// Replaces the text at the present place, or with `all` everywhere; `flags`
    /// are bits of `FindFlag`.
    virtual void replace(const QString& text, const QString& with, unsigned flags, bool all) = 0;

    /// Selects everything that the editor can select. Not called by the library.
    virtual void selectAll() = 0;

    /// The file in work, or null.
    virtual ProjectFile* file() const = 0;

    /// True between `activate()` and `deactivate()`.
    bool isActive() const;

public slots:
    /// The content of the file has changed.
    virtual void contentsChanged();

signals:
    /// What the host shows about the file may have changed.
    void modified();

protected:
    Interface* host() const;

private:
    Interface* m_host;
    bool m_active = false;
};

}  // namespace Zorv
