#include "app/recovery/workrecovery.h"

#include "app/code/documenttabs.h"
#include "app/gamesession.h"
#include "app/mainwindow.h"
#include "app/recovery/recoverydialog.h"
#include "app/statusfields.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/recovery/abandonedtexts.h"
#include "operations/recovery/recoverykeeper.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QDir>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Operations::AbandonedText;

WorkRecovery::WorkRecovery(MainWindow* window, const QString& root)
    : m_window(window), m_keeper(new Operations::RecoveryKeeper(root, this)), m_root(root)
{
    const GameSession* session = window->session();
    connect(session, &GameSession::projectOpened, this, &WorkRecovery::watchAll);
    // Documents that a project loads later come to the window before they change.
    connect(window->tabs(), &DocumentTabs::currentDocumentChanged, this, &WorkRecovery::watchAll);
    connect(session, &GameSession::folderOpened, this, [this] {
        m_isOfferPending = m_offers == 0;
        QTimer::singleShot(0, this, &WorkRecovery::offerForGame);
    });
    connect(m_keeper, &Operations::RecoveryKeeper::failed, window->status(),
            [window](const QString& reason) { window->status()->showField(0, reason); });
    watchAll();
}

void WorkRecovery::watchAll()
{
    for (const FamilyProject* project : m_window->session()->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            m_keeper->watch(document);
        }
    }
}

void WorkRecovery::offerAll()
{
    offer(QString());
}

void WorkRecovery::offerForGame()
{
    if (m_isOfferPending && m_window->session()->game()) {
        offer(m_window->session()->folder());
    }
}

void WorkRecovery::offer(const QString& gameFolder)
{
    if (m_offers > 0) {
        return;
    }
    const QScopedValueRollback<int> guard(m_offers, m_offers + 1);
    m_isOfferPending = false;
    const Operations::AbandonedTexts found(m_root, gameFolder);
    if (found.all().isEmpty()) {
        return;
    }
    RecoveryDialog dialog(m_window, found.all());
    dialog.exec();
    const QVector<RecoveryDialog::Decision> decisions = dialog.decisions();
    QList<AbandonedText> restored;
    for (int i = 0; i < decisions.size(); ++i) {
        if (decisions.at(i) == RecoveryDialog::Restore) {
            restored.append(found.all().at(i));
        } else if (decisions.at(i) == RecoveryDialog::Discard) {
            found.all().at(i).discard();
        }
    }
    if (!restored.isEmpty()) {
        restore(restored);
    }
}

/// One game is open at a time: that in front if a text is of it, else that of the
/// first text. True if a game is open then.
bool WorkRecovery::openGame(const QList<AbandonedText>& texts)
{
    const QString open = m_window->session()->folder();
    const bool isOfOpen = std::any_of(texts.begin(), texts.end(), [&open](const auto& text) {
        return text.copy.gameFolder == open;
    });
    return (isOfOpen && !open.isEmpty()) || m_window->openPath(texts.first().copy.gameFolder);
}

void WorkRecovery::restore(const QList<AbandonedText>& texts)
{
    if (!openGame(texts)) {
        return;
    }
    QStringList errors;
    QList<AbandonedText> done;
    for (const AbandonedText& text : texts) {
        QString error;
        FamilyDocument* document = documentOf(text, &error);
        if (!document) {
            errors.append(error);
            continue;
        }
        m_keeper->watch(document);
        Operations::applyText(document, text.copy.text, text.copy.codec);
        m_window->showDocument(document);
        done.append(text);
    }
    // The old copies go when the new ones are there.
    if (m_keeper->flush()) {
        for (const AbandonedText& text : qAsConst(done)) {
            text.discard();
        }
    }
    if (!errors.isEmpty()) {
        Zorv::Dialogs::instance()->warning(tr("Unsaved texts"), errors.join(QLatin1Char('\n')));
    }
}

FamilyDocument* WorkRecovery::documentOf(const AbandonedText& text, QString* error)
{
    GameSession* session = m_window->session();
    const Operations::RecoveryCopy& copy = text.copy;
    const QString shown = QDir::toNativeSeparators(copy.fileName);
    if (copy.gameFolder != session->folder()) {
        *error = tr("%1 belongs to the game %2. It is offered again when that is opened.")
                     .arg(shown, QDir::toNativeSeparators(copy.gameFolder));
        return nullptr;
    }
    if (!text.isStillApplicable()) {
        *error = tr("%1 was changed meanwhile. The copy is kept.").arg(shown);
        return nullptr;
    }
    if (copy.mainFile.isEmpty()) {
        FamilyProject* project = session->newProject(copy.kind);
        return project ? project->mainDocument() : nullptr;
    }
    FamilyProject* project = session->openProject(copy.mainFile, error);
    if (!project) {
        return nullptr;
    }
    if (copy.fileName.isEmpty()) {
        return dynamic_cast<FamilyDocument*>(project->newFile(Family::fileType(copy.kind)));
    }
    FamilyDocument* document = session->document(copy.fileName, project, true);
    if (!document) {
        *error = tr("%1 is no longer named by its project. The copy is kept.").arg(shown);
    }
    return document;
}

}  // namespace App
