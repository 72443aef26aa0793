#include "app/game/gameopener.h"

#include "app/game/gametree.h"
#include "app/main/mainwindow.h"
#include "app/run/runcommands.h"
#include "app/session/gamesession.h"
#include "app/session/recentfolders.h"
#include "app/session/unsavedwork.h"
#include "app/window/statusfields.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>

namespace App {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;

namespace {

/// The pointer that tells to wait, as long as the object lives. A folder may be
/// large, and far away.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }

private:
    Q_DISABLE_COPY(WaitCursor)
};

}  // namespace

GameOpener::GameOpener(MainWindow* window) : QObject(window), m_window(window) {}

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
    // The folder of one project stands for it.
    return openFolder(root) && (files.size() != 1 || openFile(files.first()));
}

bool GameOpener::openFolder(const QString& folder)
{
    if (!m_window->runCommands()->mayClose([this, folder] { openFolder(folder); }) ||
        !askAboutUnsaved(m_window->session()->modifiedFiles())) {
        return false;
    }
    QString error;
    bool isOpen = false;
    {
        const WaitCursor cursor;
        isOpen = m_window->session()->openFolder(folder, &error);
    }
    if (!isOpen) {
        Zorv::Dialogs::instance()->error(MainWindow::tr("Open game folder"), error);
        return false;
    }
    RecentFolders::add(folder);
    m_window->gameTree()->setFocus();
    return true;
}

bool GameOpener::openFile(const QString& fileName)
{
    FamilyDocument* document = m_window->session()->document(fileName, m_window->currentProject());
    if (!document && isMainFile(Family::fileKindOf(fileName))) {
        return openProject(fileName);
    }
    if (!document) {
        document = m_window->session()->document(fileName, m_window->currentProject(), true);
    }
    if (!document) {
        document = openFileOfClosedProject(fileName);
    }
    if (!document) {
        return tellWhyNot(fileName);
    }
    m_window->showDocument(document);
    return true;
}

FamilyDocument* GameOpener::openFileOfClosedProject(const QString& fileName)
{
    QString mainFile;
    {
        const WaitCursor cursor;
        mainFile = m_window->session()->closedProjectOf(fileName);
    }
    return !mainFile.isEmpty() && openProject(mainFile)
               ? m_window->session()->document(fileName, m_window->session()->projectOf(mainFile))
               : nullptr;
}

bool GameOpener::openProject(const QString& mainFile)
{
    QString error;
    FamilyProject* project = nullptr;
    {
        const WaitCursor cursor;
        project = m_window->session()->openProject(mainFile, &error);
    }
    if (!project) {
        Zorv::Dialogs::instance()->error(MainWindow::tr("Open project"), error);
        return false;
    }
    m_window->showDocument(project->mainDocument());
    m_window->gameTree()->reveal(project->fileName());
    if (!project->loadErrors().isEmpty()) {
        Zorv::Dialogs::instance()->warning(MainWindow::tr("Open project"),
                                           project->loadErrors().join(QLatin1Char('\n')));
    }
    return true;
}

bool GameOpener::tellWhyNot(const QString& fileName)
{
    const QString shown = m_window->session()->shownPath(fileName);
    if (QFileInfo::exists(fileName)) {
        m_window->status()->showField(
            0,
            MainWindow::tr("%1 cannot be shown: no project names it as a code file.").arg(shown));
    } else {
        Zorv::Dialogs::instance()->warning(
            MainWindow::tr("Open file"),
            MainWindow::tr("There is no file %1. Correct the path in the main file of the "
                           "project, or put the file there.")
                .arg(shown));
    }
    return false;
}

}  // namespace App
