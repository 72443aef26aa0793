// Replacing the ticked places.

#include "app/find/findfield.h"
#include "app/search/findinfiles.h"
#include "app/search/hitmodel.h"
#include "app/search/opentexts.h"
#include "app/session/gamesession.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/find/findreplace.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/progress.h>

#include <QLabel>

namespace App {

using Family::FamilyDocument;
using Operations::FileHits;
using Zorv::Dialogs;

namespace {

constexpr int MostTold = 10;

/// The document where the user would look for the change: the modified one, if several projects
/// have a document of this file.
FamilyDocument* documentOf(const GameSession* session, const QString& path)
{
    FamilyDocument* first = session->document(path);
    const QList<FamilyDocument*> unsaved = session->modifiedDocuments();
    for (FamilyDocument* document : unsaved) {
        if (first && document->isModified() && document->fileName() == first->fileName()) {
            return document;
        }
    }
    return first;
}

}  // namespace

bool FindInFiles::mayReplace(const QVector<FileHits>& chosen) const
{
    int count = 0;
    int closed = 0;
    for (const FileHits& file : chosen) {
        count += file.hits.size();
        closed += m_services.session->document(file.path) ? 0 : 1;
    }
    QString text = tr("Replace %n place(s)", nullptr, count) + QLatin1Char(' ') +
                   tr("in %n file(s)?", nullptr, chosen.size());
    if (closed > 0) {
        text += QLatin1String("\n\n") +
                tr("%n file(s) of these are not open. They are written at once, and no undo takes "
                   "that back.",
                   nullptr, closed);
    }
    return Dialogs::instance()->question(tr("Replace in files"), text, Dialogs::Yes | Dialogs::No,
                                         Dialogs::Yes) == Dialogs::Yes;
}

/// Dialogs run an event loop in which files can be opened and closed. So each file is looked up
/// only when it is its turn, and is skipped if it has changed.
void FindInFiles::replaceChosen()
{
    m_open->watchAll();
    const QVector<FileHits> chosen = m_model->chosen();
    const Operations::FindPattern pattern = m_pattern;
    const QString with = m_with->text();
    const QPointer<FindInFiles> self(this);
    m_with->remember();
    if (chosen.isEmpty() || !mayReplace(chosen) || !self) {
        return;
    }
    QStringList errors;
    int files = 0;
    int places = 0;
    {
        Zorv::Progress progress(tr("Replace in files"), chosen.size());
        for (const FileHits& file : chosen) {
            QString error;
            FamilyDocument* document = documentOf(m_services.session, file.path);
            const Operations::Replacing replacing{pattern, with, &file.hits};
            const int count = document ? Operations::replaceInDocument(document, replacing, &error)
                                       : Operations::replaceInFile(file.path, replacing, &error);
            if (count < 0) {
                errors.append(
                    QStringLiteral("%1: %2").arg(m_services.session->shownPath(file.path), error));
            } else {
                files += count > 0 ? 1 : 0;
                places += count;
            }
            if (!progress.step() || !self) {
                break;
            }
        }
    }
    if (!self) {
        return;
    }
    m_texts.look();
    if (!errors.isEmpty()) {
        if (errors.size() > MostTold) {
            const int more = errors.size() - MostTold;
            errors = errors.mid(0, MostTold) << tr("and %n more", nullptr, more);
        }
        Dialogs::instance()->warning(
            tr("Replace in files"),
            tr("%n place(s) replaced", nullptr, places) + QLatin1Char(' ') +
                tr("in %n file(s). These stay as they are:", nullptr, files) +
                QLatin1String("\n\n") + errors.join(QLatin1Char('\n')));
    }
}

}  // namespace App
