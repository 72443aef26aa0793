#include "app/mainwindow.h"

#include "app/animationcommands.h"
#include "app/codeedit.h"
#include "app/documenttabs.h"
#include "app/encodingchoice.h"
#include "app/gamesession.h"
#include "app/gametree.h"
#include "app/linebar.h"
#include "app/messagepanel.h"
#include "app/nodepanel.h"
#include "app/run/runcommands.h"
#include "app/statusfields.h"
#include "app/unsavedwork.h"
#include "core/dialogs/dialogs.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/documentfile.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileInfo>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Zorv::Dialogs;

void MainWindow::showDocument(FamilyDocument* document)
{
    const bool isNew = !m_tabs->editOf(document);
    m_tabs->showDocument(document);
    if (isNew) {
        Family::ensureFaithful(document);
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
    if (CodeEdit* edit = m_tabs->editOf(shown)) {
        edit->goTo(line, column, length);
    }
}

/// What is discarded leaves the memory too: the project of the text stays open.
void MainWindow::closeDocument(FamilyDocument* document)
{
    if (document->isModified() && !askAboutUnsaved({document})) {
        return;
    }
    m_tabs->closeDocument(document);
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
    if (FamilyDocument* document = m_tabs->currentDocument()) {
        if (saveDocuments({document})) {
            statusBarText(tr("%1 is saved.").arg(m_session->shownPath(document->fileName())));
        }
        m_tabs->updateTabs();
        m_status->updateFile();
    }
}

void MainWindow::saveAll()
{
    if (saveDocuments(m_session->modifiedDocuments())) {
        statusBarText(tr("All files are saved."));
    }
    m_tabs->updateTabs();
    m_status->updateFile();
}

void MainWindow::statusBarText(const QString& text)
{
    m_status->showField(0, text);
}

void MainWindow::closeText()
{
    if (FamilyDocument* document = m_tabs->currentDocument()) {
        closeDocument(document);
    }
}

void MainWindow::closeProject()
{
    FamilyProject* project = currentProject();
    if (project && askAboutUnsaved(m_session->modifiedDocuments(project))) {
        m_session->closeProject(project);
    }
}

void MainWindow::closeFolder()
{
    if (m_runCommands->mayClose([this] { closeFolder(); }) &&
        askAboutUnsaved(m_session->modifiedDocuments())) {
        m_session->closeFolder();
        updateSoon();
    }
}

void MainWindow::quit()
{
    close();
}

void MainWindow::askForLine()
{
    if (const CodeEdit* edit = m_tabs->currentEdit()) {
        m_lineBar->ask(edit->place().line, edit->document()->blockCount());
    }
}

void MainWindow::changeEncoding()
{
    if (FamilyDocument* document = m_tabs->currentDocument()) {
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
    const QList<QWidget*> all{m_gameTree, m_tabs->currentEdit(), m_nodePanel, m_animations->list(),
                              m_messagePanel};
    QList<QWidget*> panels;
    for (QWidget* panel : all) {
        if (panel && panel->isVisible()) {
            panels.append(panel);
        }
    }
    if (!panels.isEmpty()) {
        const int current = panels.indexOf(QApplication::focusWidget());
        const int from = current < 0 && step < 0 ? 0 : current;
        panels[(from + step + panels.size()) % panels.size()]->setFocus(Qt::ShortcutFocusReason);
    }
}

void MainWindow::showNextText()
{
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + 1) % m_tabs->count());
}

void MainWindow::showPreviousText()
{
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + m_tabs->count() - 1) % m_tabs->count());
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
