#include "app/actions/windowactions.h"
#include "app/code/codeview.h"
#include "app/controls/controlplacer.h"
#include "app/look/look.h"
#include "app/main/mainwindow.h"
#include "app/session/gamesession.h"
#include "app/stage/stagecommands.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/editors/framework/editor.h>
#include <zorv/editors/framework/extraeditor.h>
#include <zorv/editors/framework/workspace.h>

#include <QAbstractButton>
#include <QDockWidget>
#include <QEvent>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;

namespace {

/// What editors and panels of the library are, and the window's, are its children.
template <class Part>
void tellAll(MainWindow* window, void (Part::*what)())
{
    const QList<Part*> parts = window->findChildren<Part*>();
    for (Part* part : parts) {
        (part->*what)();
    }
}

struct PanelTitle
{
    const char* name;
    const char* title;
};

const PanelTitle panelTitles[] = {
    {"projects", QT_TRANSLATE_NOOP("App::MainWindow", "Projects")},
    {"sprites", QT_TRANSLATE_NOOP("App::MainWindow", "Sprites")},
    {"sounds", QT_TRANSLATE_NOOP("App::MainWindow", "Sounds")},
    {"messages", QT_TRANSLATE_NOOP("App::MainWindow", "Messages")},
    {"output", QT_TRANSLATE_NOOP("App::MainWindow", "Engine output")},
};

/// Qt names these buttons once, all alike, in the language of the moment.
void nameButton(const QDockWidget* dock, const char* button, const QString& name)
{
    if (auto* found = dock->findChild<QAbstractButton*>(QLatin1String(button))) {
        found->setAccessibleName(name);
    }
}

}  // namespace

void MainWindow::retranslate()
{
    for (const PanelTitle& row : panelTitles) {
        if (auto* dock = findChild<QDockWidget*>(QLatin1String(row.name))) {
            dock->setWindowTitle(tr(row.title));
        }
    }
    updateHint();
    m_actions->retranslate();
    m_controls->retranslate();
    for (const QDockWidget* dock : findChildren<QDockWidget*>()) {
        nameButton(dock, "qt_dockwidget_closebutton",
                   tr("Close panel %1").arg(dock->windowTitle()));
        nameButton(dock, "qt_dockwidget_floatbutton",
                   tr("Detach panel %1").arg(dock->windowTitle()));
    }
    tellAll(this, &Zorv::Editor::retranslate);
    tellAll(this, &Zorv::ExtraEditor::retranslate);
    tellAll(this, &Zorv::Workspace::retranslate);
    updateTitle();
}

/// Texts keep the colours that they were given, and their messages the language.
void MainWindow::parseAgain()
{
    for (const FamilyProject* project : m_session->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            document->rehighlight();
        }
    }
}

void MainWindow::reconfig()
{
    applyLook();
    m_controls->updateVisibility();
    parseAgain();
    tellAll(this, &Zorv::Editor::reconfig);
    tellAll(this, &Zorv::ExtraEditor::reconfig);
    tellAll(this, &Zorv::Workspace::reconfig);
    m_code->reconfig();
    m_stage->reconfig();
    emit reconfigured();
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        parseAgain();
    }
}

}  // namespace App
