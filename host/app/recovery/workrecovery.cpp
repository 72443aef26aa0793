#include "app/recovery/workrecovery.h"

#include "app/recovery/canvasinput.h"
#include "app/recovery/recoverydialog.h"
#include "app/session/gamesession.h"
#include "app/window/editorregistry.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/recovery/abandonedwork.h"
#include "operations/recovery/canvascopy.h"
#include "operations/recovery/recoverykeeper.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/image/spriteeditor.h>

#include <QDir>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

// Offering goes in four steps. The dialog returns a decision per copy. Discarded copies are
// deleted. The copies to restore are loaded into their files, opening game and projects as needed;
// canvases come last. When the restored work has been stored in new copies, the old ones are
// deleted, so that another crash at any point loses nothing.
//
// Work of other games is not restored: it is offered again when that game is opened. `m_offers`
// guards against re-entrance, because restoring can open a game.

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Operations::AbandonedWork;

namespace {

Zorv::FileID::Type typeOf(const Operations::RecoveryCopy& copy)
{
    switch (copy.content) {
    case Operations::RecoveryCopy::Sprites:
    case Operations::RecoveryCopy::Canvas:
        return Zorv::FileID::Sprites;
    case Operations::RecoveryCopy::Sounds:
        return Zorv::FileID::Sounds;
    default:
        return Family::fileType(copy.kind);
    }
}

/// The sprite or sound file of a project; null if it has no such file.
Zorv::ProjectFile* assetsOf(FamilyProject* project, Zorv::FileID::Type type,
                            const QString& fileName)
{
    project->loadFiles();
    const QList<Zorv::ProjectFile*> files = project->filesByType(type);
    const auto found = std::find_if(files.begin(), files.end(), [&fileName](const auto* file) {
        return QDir::cleanPath(file->fileName()) == QDir::cleanPath(fileName);
    });
    return found == files.end() ? nullptr : *found;
}

}  // namespace

WorkRecovery::WorkRecovery(const WindowServices& services, const QString& root)
    : m_services(services), m_keeper(new Operations::RecoveryKeeper(root, this)), m_root(root)
{
    const GameSession* session = services.session;
    connect(session, &GameSession::projectOpened, this, &WorkRecovery::watchAll);
    connect(session, &GameSession::folderOpened, this, [this] {
        m_isOfferPending = m_offers == 0;
        QTimer::singleShot(0, this, &WorkRecovery::offerForGame);
    });
    connect(m_keeper, &Operations::RecoveryKeeper::failed, services.status,
            [status = services.status](const QString& reason) { status->showField(0, reason); });
    watchAll();
    auto* sprites =
        qobject_cast<Zorv::SpriteEditor*>(services.editors->forFile(Zorv::FileID::Sprites));
    if (sprites) {
        m_canvas = new CanvasInput(sprites, this);
        m_keeper->watchInput(m_canvas);
        connect(m_canvas, &CanvasInput::changed, m_keeper,
                [this] { m_keeper->inputChanged(m_canvas); });
    }
}

void WorkRecovery::watchAll()
{
    for (const FamilyProject* project : m_services.session->projects()) {
        connect(project, &FamilyProject::filesChanged, this, &WorkRecovery::watchAll,
                Qt::UniqueConnection);
        const QList<Zorv::ProjectFile*> files = project->files();
        for (Zorv::ProjectFile* file : files) {
            m_keeper->watch(file);
        }
    }
}

void WorkRecovery::offerAll()
{
    offer(QString());
}

void WorkRecovery::offerForGame()
{
    if (m_isOfferPending && m_services.session->game()) {
        offer(m_services.session->folder());
    }
}

void WorkRecovery::offer(const QString& gameFolder)
{
    if (m_offers > 0) {
        return;
    }
    const QScopedValueRollback<int> guard(m_offers, m_offers + 1);
    m_isOfferPending = false;
    const Operations::AbandonedWorks found(m_root, gameFolder);
    if (found.all().isEmpty()) {
        return;
    }
    RecoveryDialog dialog(m_services.window, found.all());
    dialog.exec();
    const QVector<RecoveryDialog::Decision> decisions = dialog.decisions();
    QList<AbandonedWork> restored;
    for (int i = 0; i < decisions.size(); ++i) {
        if (decisions.at(i) == RecoveryDialog::Restore) {
            restored.append(found.all().at(i));
        } else if (decisions.at(i) == RecoveryDialog::Discard) {
            found.all().at(i).discard();
        }
    }
    // Canvases come last: their sprite may be in another copy restored here.
    std::stable_partition(restored.begin(), restored.end(), [](const AbandonedWork& work) {
        return work.copy.content != Operations::RecoveryCopy::Canvas;
    });
    if (!restored.isEmpty()) {
        restore(restored);
    }
}

/// Only one game can be open: the current one if it contains some of the work, else the game of the
/// first work. True if a game is open afterwards.
bool WorkRecovery::openGame(const QList<AbandonedWork>& works)
{
    const QString open = m_services.session->folder();
    const bool isOfOpen = std::any_of(works.begin(), works.end(), [&open](const auto& work) {
        return work.copy.gameFolder == open;
    });
    return (isOfOpen && !open.isEmpty()) ||
           m_services.jumps->openPath(works.first().copy.gameFolder);
}

void WorkRecovery::restore(const QList<AbandonedWork>& works)
{
    if (!openGame(works)) {
        return;
    }
    QStringList errors;
    QList<AbandonedWork> done;
    for (const AbandonedWork& work : works) {
        QString error;
        if (Zorv::ProjectFile* file = bringBack(work, &error)) {
            show(file);
            if (work.copy.content == Operations::RecoveryCopy::Canvas) {
                m_services.parts->update();
                m_services.editors->activate(m_canvas->editor());
            }
            done.append(work);
        } else {
            errors.append(error);
        }
    }
    // Remove the old copies only after the new ones are stored.
    if (m_keeper->flush()) {
        for (const AbandonedWork& work : qAsConst(done)) {
            work.discard();
        }
    }
    if (!errors.isEmpty()) {
        Zorv::Dialogs::instance()->warning(tr("Unsaved work"), errors.join(QLatin1Char('\n')));
    }
}

/// Returns the file that contains the restored work; null, with `error`, on failure.
Zorv::ProjectFile* WorkRecovery::bringBack(const AbandonedWork& work, QString* error)
{
    Zorv::ProjectFile* file = fileOf(work, error);
    if (!file) {
        return nullptr;
    }
    m_keeper->watch(file);
    return apply(work, file, error) ? file : nullptr;
}

bool WorkRecovery::apply(const AbandonedWork& work, Zorv::ProjectFile* file, QString* error)
{
    if (work.copy.content != Operations::RecoveryCopy::Canvas) {
        return work.restore(file, error);
    }
    Operations::CanvasCopy canvas;
    return m_canvas && work.readCanvas(&canvas, error) && m_canvas->restore(file, canvas, error);
}

/// Sprites and sounds are shown with a text of their project.
void WorkRecovery::show(Zorv::ProjectFile* file)
{
    auto* document = dynamic_cast<FamilyDocument*>(file);
    if (document) {
        m_services.jumps->showDocument(document);
    } else if (m_services.parts->project() != file->project() || !m_services.parts->document()) {
        m_services.jumps->showDocument(
            static_cast<FamilyProject*>(file->project())->mainDocument());
    }
}

Zorv::ProjectFile* WorkRecovery::fileOf(const AbandonedWork& work, QString* error)
{
    GameSession* session = m_services.session;
    const Operations::RecoveryCopy& copy = work.copy;
    const QString shown = QDir::toNativeSeparators(copy.fileName);
    if (copy.gameFolder != session->folder()) {
        *error = tr("%1 belongs to the game %2. It is offered again when that is opened.")
                     .arg(shown, QDir::toNativeSeparators(copy.gameFolder));
        return nullptr;
    }
    if (!work.isStillApplicable()) {
        *error = tr("%1 was changed meanwhile. The copy is kept.").arg(shown);
        return nullptr;
    }
    const bool isText = copy.content == Operations::RecoveryCopy::Document;
    if (copy.mainFile.isEmpty() && isText) {
        FamilyProject* project = session->newProject(copy.kind);
        return project ? project->mainDocument() : nullptr;
    }
    FamilyProject* project = session->openProject(copy.mainFile, error);
    if (!project) {
        return nullptr;
    }
    if (copy.fileName.isEmpty()) {
        return project->newFile(typeOf(copy));
    }
    Zorv::ProjectFile* file = isText ? session->document(copy.fileName, project, true)
                                     : assetsOf(project, typeOf(copy), copy.fileName);
    if (!file) {
        *error = tr("%1 is no longer named by its project. The copy is kept.").arg(shown);
    }
    return file;
}

}  // namespace App
