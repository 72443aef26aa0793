#include "app/game/gameopener.h"

#include "app/game/gametree.h"
#include "app/session/gamesession.h"
#include "app/session/recentfolders.h"
#include "app/session/unsavedwork.h"
#include "app/window/editorregistry.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/rename/changeset.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/fileid.h>
#include <zorv/core/projectfile.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>

namespace App {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;

namespace {

/// Shows the wait cursor for its lifetime: a folder may be large or on a network.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }

private:
    Q_DISABLE_COPY(WaitCursor)
};

}  // namespace

GameOpener::GameOpener(const WindowServices& services, GameTree* tree)
    : QObject(services.window), m_services(services), m_tree(tree)
{
}

QVector<ActionRow> GameOpener::actions()
{
    const Members<GameOpener> on(this);
    // clang-format off
    return {
        {"open_folder",   "file.open",  QT_TRANSLATE_NOOP("App::Actions", "&Open game folder..."), QKeySequence::Open, on(&GameOpener::chooseFolder)},
        {"save_all",      "file.all",   QT_TRANSLATE_NOOP("App::Actions", "Save a&ll"),            "Ctrl+Shift+S",     on(&GameOpener::saveAll),      on(&GameOpener::hasUnsaved)},
        {"close_project", "file.close", QT_TRANSLATE_NOOP("App::Actions", "Close &project"),       "Ctrl+Shift+W",     on(&GameOpener::closeProject), on(&GameOpener::hasProject)},
        {"close_folder",  "file.close", QT_TRANSLATE_NOOP("App::Actions", "Close &game folder"),   {},                 on(&GameOpener::closeFolder),  on(&GameOpener::hasGame)},
    };
    // clang-format on
}

bool GameOpener::hasGame() const
{
    return m_services.session->game();
}

/// The open project of the current row if the tree has the focus, else the current project.
FamilyProject* GameOpener::project() const
{
    if (!m_tree->hasFocus()) {
        return m_services.parts->project();
    }
    const QString path = m_tree->pathOf(m_tree->currentIndex());
    FamilyProject* found = path.isEmpty() ? m_services.parts->project() : nullptr;
    for (FamilyProject* open : m_services.session->projects()) {
        if (path == open->fileName()) {
            return open;
        }
        const QString folder = open->absolutePath();
        if (path.startsWith(folder) && (!found || folder.size() > found->absolutePath().size())) {
            found = open;
        }
    }
    return found;
}

bool GameOpener::hasProject() const
{
    return project();
}

bool GameOpener::hasUnsaved() const
{
    return !m_services.session->modifiedFiles().isEmpty();
}

void GameOpener::chooseFolder()
{
    const QString folder = Zorv::Dialogs::instance()->existingFolder(
        m_services.window, tr("Open game folder"), m_services.session->folder());
    if (!folder.isEmpty()) {
        openPath(folder);
    }
}

void GameOpener::saveAll()
{
    if (saveFiles(m_services.session->modifiedFiles())) {
        m_services.status->showPassing(tr("All files are saved."));
    }
    m_services.parts->gameChanged();
}

void GameOpener::closeProject()
{
    FamilyProject* closing = project();
    if (closing && m_services.jumps->mayClose(closing, {})) {
        m_services.session->closeProject(closing);
    }
}

void GameOpener::closeFolder()
{
    if (m_services.jumps->mayClose(nullptr, [this] { closeFolder(); })) {
        m_services.session->closeFolder();
        m_services.parts->updateSoon();
    }
}

bool GameOpener::openPath(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return openFolder(path);
    }
    const QString root = FamilyParentProject::folderOf(path);
    const bool isRoot = QFileInfo(root) == info;
    const QStringList files = info.isFile() ? QStringList(info.absoluteFilePath())
                              : isRoot      ? QStringList()
                                            : FamilyParentProject::mainFiles(path);
    // A folder with one project stands for that project.
    return openFolder(root) && (files.size() != 1 || openFile(files.first()));
}

bool GameOpener::openFolder(const QString& folder)
{
    if (!m_services.jumps->mayClose(nullptr, [this, folder] { openFolder(folder); })) {
        return false;
    }
    QString error;
    bool isOpen = false;
    {
        const WaitCursor cursor;
        // Before reading: finish or undo what a killed program left half done.
        const QStringList settled = Operations::settleChanges(QFileInfo(folder).absoluteFilePath());
        if (!settled.isEmpty()) {
            Zorv::Dialogs::instance()->warning(tr("Open game folder"),
                                               settled.join(QLatin1Char('\n')));
        }
        isOpen = m_services.session->openFolder(folder, &error);
    }
    if (!isOpen) {
        Zorv::Dialogs::instance()->error(tr("Open game folder"), error);
        return false;
    }
    RecentFolders::add(folder);
    m_tree->setFocus();
    return true;
}

// From cheap to expensive: an open document, a main file, a file that an open project names but has
// not loaded, a file of a closed project, which means reading the files of all projects. Sprites
// have no document and come last.
bool GameOpener::openFile(const QString& fileName)
{
    FamilyDocument* document = m_services.session->document(fileName, m_services.parts->project());
    if (!document && isMainFile(Family::fileKindOf(fileName))) {
        return openProject(fileName);
    }
    if (!document) {
        document = m_services.session->document(fileName, m_services.parts->project(), true);
    }
    if (!document) {
        document = openFileOfClosedProject(fileName);
    }
    if (!document) {
        return showSprites(fileName) || tellWhyNot(fileName);
    }
    m_services.jumps->showDocument(document);
    return true;
}

/// Sprite files have no text: the sprite editor shows them. False if no open project has the file.
bool GameOpener::showSprites(const QString& fileName)
{
    for (FamilyProject* project : m_services.session->projects()) {
        const Zorv::ProjectFile* sprites = project->file(Zorv::FileID::Sprites);
        if (!sprites || sprites->fileName() != fileName) {
            continue;
        }
        if (project != m_services.parts->project()) {
            m_services.jumps->showDocument(project->mainDocument());
            m_services.parts->update();
        }
        m_services.editors->activate(m_services.editors->forFile(Zorv::FileID::Sprites));
        return true;
    }
    return false;
}

FamilyDocument* GameOpener::openFileOfClosedProject(const QString& fileName)
{
    QString mainFile;
    {
        const WaitCursor cursor;
        mainFile = m_services.session->closedProjectOf(fileName);
    }
    return !mainFile.isEmpty() && openProject(mainFile)
               ? m_services.session->document(fileName, m_services.session->projectOf(mainFile))
               : nullptr;
}

bool GameOpener::openProject(const QString& mainFile)
{
    QString error;
    FamilyProject* project = nullptr;
    {
        const WaitCursor cursor;
        project = m_services.session->openProject(mainFile, &error);
    }
    if (!project) {
        Zorv::Dialogs::instance()->error(tr("Open project"), error);
        return false;
    }
    m_services.jumps->showDocument(project->mainDocument());
    m_tree->reveal(project->fileName());
    if (!project->loadErrors().isEmpty()) {
        Zorv::Dialogs::instance()->warning(tr("Open project"),
                                           project->loadErrors().join(QLatin1Char('\n')));
    }
    return true;
}

bool GameOpener::tellWhyNot(const QString& fileName)
{
    const QString shown = m_services.session->shownPath(fileName);
    if (QFileInfo::exists(fileName)) {
        m_services.status->showField(
            0, tr("%1 cannot be shown: no project names it as a code file.").arg(shown));
    } else {
        Zorv::Dialogs::instance()->warning(
            tr("Open file"), tr("There is no file %1. Correct the path in the main file of the "
                                "project, or put the file there.")
                                 .arg(shown));
    }
    return false;
}

}  // namespace App
