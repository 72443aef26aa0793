#include "app/mainwindow.h"

#include "app/animationcommands.h"
#include "app/code/codetexteditor.h"
#include "app/code/codeview.h"
#include "app/code/documenttabs.h"
#include "app/encodingchoice.h"
#include "app/gamesession.h"
#include "app/gametree.h"
#include "app/messagepanel.h"
#include "app/run/runcommands.h"
#include "app/statusfields.h"
#include "app/unsavedwork.h"
#include "core/dialogs/dialogs.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/documentfile.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QToolBar>
#include <QTreeView>

#include <algorithm>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Zorv::Dialogs;

namespace {

/// What the tab key reaches first in a bar; null for a bar without fields.
QWidget* firstField(const QWidget* bar)
{
    const QList<QComboBox*> fields = bar->findChildren<QComboBox*>();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [](const QWidget* field) { return field->isEnabled(); });
    return found == fields.end() ? nullptr : *found;
}

/// True for the panel itself, and for the neighbours of a field in its bar.
bool isIn(const QWidget* panel, const QWidget* focus)
{
    const auto* bar = qobject_cast<const QToolBar*>(panel->parentWidget());
    return focus && (panel == focus || (bar && bar->isAncestorOf(focus)));
}

}  // namespace

void MainWindow::showDocument(FamilyDocument* document)
{
    const bool isNew = tabs()->indexOf(document) < 0;
    tabs()->showDocument(document);
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
        if (saveDocuments({document})) {
            statusBarText(tr("%1 is saved.").arg(m_session->shownPath(document->fileName())));
        }
        tabs()->updateTabs();
        m_status->updateFile();
    }
}

void MainWindow::saveAll()
{
    if (saveDocuments(m_session->modifiedDocuments())) {
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
    const QList<QWidget*> all{m_gameTree,           firstField(m_code->workspace()->toolBar()),
                              currentEdit(),        textEditor()->tree(),
                              m_animations->list(), m_messagePanel};
    QList<QWidget*> panels;
    int current = -1;
    for (QWidget* panel : all) {
        if (panel && panel->isVisible()) {
            current = isIn(panel, QApplication::focusWidget()) ? panels.size() : current;
            panels.append(panel);
        }
    }
    if (!panels.isEmpty()) {
        const int from = current < 0 && step < 0 ? 0 : current;
        panels[(from + step + panels.size()) % panels.size()]->setFocus(Qt::ShortcutFocusReason);
    }
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
