#include "app/game/newcommands.h"

#include "app/game/gametree.h"
#include "app/game/newdialog.h"
#include "app/session/gamesession.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/create/namefile.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Operations::NewKind;

NewCommands::NewCommands(const WindowServices& services, GameTree* tree)
    : QObject(services.window), m_services(services), m_tree(tree)
{
}

QVector<ActionRow> NewCommands::actions()
{
    const Members<NewCommands> on(this);
    // clang-format off
    return {
        {"new_game",      "new.all", QT_TRANSLATE_NOOP("App::Actions", "New &game..."),      {},                on(&NewCommands::newGame)},
        {"new_character", "new.all", QT_TRANSLATE_NOOP("App::Actions", "New &character..."), {},                on(&NewCommands::newCharacter), on(&NewCommands::hasGame)},
        {"new_stage",     "new.all", QT_TRANSLATE_NOOP("App::Actions", "New &stage..."),     {},                on(&NewCommands::newStage),     on(&NewCommands::hasGame)},
        {"new_file",      "new.all", QT_TRANSLATE_NOOP("App::Actions", "New &file..."),      QKeySequence::New, on(&NewCommands::newFile),      on(&NewCommands::hasGame)},
    };
    // clang-format on
}

bool NewCommands::hasGame() const
{
    return m_services.session->game();
}

/// Suggests the folder around the open game, or the user's documents.
void NewCommands::newGame()
{
    const QString open = m_services.session->folder();
    const QString folder = open.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : QFileInfo(QDir::cleanPath(open)).absolutePath();
    NewDialog dialog(NewKind::Game, folder, {}, m_services.window);
    if (dialog.exec() == QDialog::Accepted && m_services.jumps->openPath(dialog.path())) {
        m_services.jumps->openFile(
            QStringLiteral("%1/%2.character")
                .arg(Operations::newProjectFolder(dialog.path(), Family::FileKind::Character,
                                                  dialog.character()),
                     dialog.character()));
    }
}

void NewCommands::newCharacter()
{
    newProject(NewKind::Character);
}

void NewCommands::newStage()
{
    newProject(NewKind::Stage);
}

void NewCommands::newProject(NewKind kind)
{
    const QPointer<Family::FamilyParentProject> game = m_services.session->game();
    if (!game) {
        return;
    }
    NewDialog dialog(kind, QDir::cleanPath(game->absolutePath()), {}, m_services.window);
    // The game may have changed while the dialog was open.
    if (dialog.exec() == QDialog::Accepted && game && game == m_services.session->game()) {
        m_services.jumps->openFile(dialog.path());
        m_services.parts->gameChanged();
    }
}

/// The folder of the current row if the tree has the focus; else empty.
QString NewCommands::folderOfTree() const
{
    const QString path = m_tree->hasFocus() ? m_tree->pathOf(m_tree->currentIndex()) : QString();
    return path.isEmpty() || QFileInfo(path).isDir() ? QDir::cleanPath(path)
                                                     : QFileInfo(path).absolutePath();
}

/// The open project whose folder contains this one; null if there is none.
FamilyProject* NewCommands::projectOf(const QString& folder) const
{
    for (FamilyProject* project : m_services.session->projects()) {
        if ((folder + QLatin1Char('/')).startsWith(project->absolutePath())) {
            return project;
        }
    }
    return nullptr;
}

void NewCommands::newFile()
{
    if (!hasGame()) {
        return;
    }
    const QString chosen = folderOfTree();
    FamilyProject* project = chosen.isEmpty() ? m_services.parts->project() : projectOf(chosen);
    QPointer<FamilyDocument> main = project ? project->mainDocument() : nullptr;
    const QString folder = !chosen.isEmpty() ? chosen
                           : project         ? project->absolutePath()
                                             : m_services.session->folder();
    NewDialog dialog(NewKind::File, QDir::cleanPath(folder), main ? main->fileName() : QString(),
                     m_services.window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    m_services.parts->gameChanged();
    const bool isNamed = main && dialog.wantsNaming() && Operations::nameFile(main, dialog.path());
    if (isNamed) {
        m_services.jumps->openFile(dialog.path());
    } else {
        m_services.status->showField(
            0, tr("%1 is made.").arg(m_services.session->shownPath(dialog.path())));
    }
}

}  // namespace App
