#include "app/main/mainwindow.h"

#include "app/animations/animationcommands.h"
#include "app/assets/rowlist.h"
#include "app/assets/soundpanel.h"
#include "app/assets/spritelist.h"
#include "app/assets/spritepanel.h"
#include "app/code/codetexteditor.h"
#include "app/code/codeview.h"
#include "app/code/documenttabs.h"
#include "app/code/encodingchoice.h"
#include "app/find/findbar.h"
#include "app/game/gametree.h"
#include "app/messages/messagepanel.h"
#include "app/run/runcommands.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stageview.h"
#include "app/window/panelplace.h"
#include "app/window/statusfields.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/documentfile.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFileInfo>
#include <QToolBar>
#include <QTreeView>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Zorv::Dialogs;

void MainWindow::showDocument(FamilyDocument* document)
{
    const bool isNew = tabs()->indexOf(document) < 0;
    tabs()->showDocument(document);
    if (isNew) {
        Operations::ensureFaithful(document);
        m_status->updateFile();
    }
}

void MainWindow::showPlace(Zorv::CodeDocument* document, int line, int column, int length)
{
    // Every code document of this program is one of the family.
    auto* shown = static_cast<FamilyDocument*>(document);
    if (!shown) {
        return;
    }
    showDocument(shown);
    textEditor()->goTo(line, column, length);
}

/// What is discarded leaves the memory too: the project of the text stays open.
void MainWindow::closeDocument(FamilyDocument* document)
{
    if (document->isModified() && !askAboutUnsaved({document})) {
        return;
    }
    tabs()->closeDocument(document);
    if (document->isModified() && QFileInfo::exists(document->fileName())) {
        document->reload();
    }
    updateSoon();
}

void MainWindow::openFolderByDialog()
{
    const QString folder =
        Dialogs::instance()->existingFolder(this, tr("Open game folder"), m_session->folder());
    if (!folder.isEmpty()) {
        openPath(folder);
    }
}

void MainWindow::save()
{
    if (FamilyDocument* document = tabs()->currentDocument()) {
        if (saveFiles({document})) {
            statusBarText(tr("%1 is saved.").arg(m_session->shownPath(document->fileName())));
        }
        tabs()->updateTabs();
        m_status->updateFile();
    }
}

void MainWindow::saveAll()
{
    if (saveFiles(m_session->modifiedFiles())) {
        statusBarText(tr("All files are saved."));
    }
    tabs()->updateTabs();
    m_status->updateFile();
}

void MainWindow::statusBarText(const QString& text)
{
    m_status->showPassing(text);
}

void MainWindow::closeText()
{
    if (FamilyDocument* document = tabs()->currentDocument()) {
        closeDocument(document);
    }
}

void MainWindow::closeProject()
{
    FamilyProject* project = currentProject();
    if (project && askAboutUnsaved(m_session->modifiedFiles(project))) {
        m_session->closeProject(project);
    }
}

void MainWindow::closeFolder()
{
    if (m_runCommands->mayClose([this] { closeFolder(); }) &&
        askAboutUnsaved(m_session->modifiedFiles())) {
        m_session->closeFolder();
        updateSoon();
    }
}

void MainWindow::quit()
{
    close();
}

void MainWindow::changeEncoding()
{
    if (FamilyDocument* document = tabs()->currentDocument()) {
        chooseEncoding(document);
        m_status->updateFile();
    }
}

void MainWindow::addAnimation()
{
    m_animations->addNew();
}

void MainWindow::duplicateAnimation()
{
    m_animations->duplicateCurrent();
}

void MainWindow::removeAnimations()
{
    m_animations->removeSelected();
}

void MainWindow::focusNextPanel()
{
    focusPanel(1);
}

void MainWindow::focusPreviousPanel()
{
    focusPanel(-1);
}

void MainWindow::focusPanel(int step)
{
    goToPanel({PanelPlace::of(m_gameTree),
               PanelPlace::of(m_spritePanel->list()),
               PanelPlace::of(m_soundPanel->list()),
               {m_stage->view()->focusTarget(), m_stage->view()},
               PanelPlace::inside(m_code->workspace()->toolBar()),
               PanelPlace::of(currentEdit()),
               PanelPlace::inside(m_code->findBar()),
               PanelPlace::of(textEditor()->tree()),
               PanelPlace::of(m_animations->list()),
               PanelPlace::of(m_messagePanel)},
              step);
}

void MainWindow::showNextText()
{
    tabs()->setCurrentIndex((tabs()->currentIndex() + 1) % tabs()->count());
}

void MainWindow::showPreviousText()
{
    tabs()->setCurrentIndex((tabs()->currentIndex() + tabs()->count() - 1) % tabs()->count());
}

void MainWindow::showAbout()
{
    Dialogs::instance()->information(
        tr("About Zorv"),
        tr("Zorv %1\n\nAn editor for people who make characters and stages for two-dimensional "
           "fighting games. The text is the only truth; trees and lists follow.\n\n"
           "Under the MIT licence. Made with Qt %2.")
            .arg(QStringLiteral(ZORV_VERSION), QLatin1String(qVersion())));
}

}  // namespace App
