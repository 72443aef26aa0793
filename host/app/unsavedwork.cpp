#include "app/unsavedwork.h"

#include "core/dialogs/dialogs.h"
#include "family/familydocument.h"
#include "operations/documentfile.h"

#include <QCoreApplication>
#include <QDir>

namespace App {

using Family::FamilyDocument;
using Zorv::Dialogs;

namespace {

enum Answer { Cancel = -1, Save = 0, Discard = 1 };

constexpr int MaxNames = 8;

QString tr(const char* text)
{
    return QCoreApplication::translate("App::UnsavedWork", text);
}

QString namesOf(const QList<FamilyDocument*>& documents)
{
    QStringList names;
    for (const FamilyDocument* document : documents) {
        names.append(QDir::toNativeSeparators(document->fileName()));
    }
    const int more = names.size() - MaxNames;
    if (more > 0) {
        names = names.mid(0, MaxNames);
        names.append(tr("and %1 more").arg(more));
    }
    return names.join(QLatin1Char('\n'));
}

}  // namespace

bool saveDocuments(const QList<FamilyDocument*>& documents)
{
    QStringList errors;
    bool all = true;
    for (FamilyDocument* document : documents) {
        QString error;
        const Family::Saved saved = Family::saveDocument(document, document->fileName(), &error);
        all = all && saved == Family::Saved::Done;
        if (saved == Family::Saved::Failed) {
            errors.append(error);
        }
    }
    if (!errors.isEmpty()) {
        Dialogs::instance()->error(tr("Save"), errors.join(QLatin1Char('\n')));
    }
    return all;
}

bool askAboutUnsaved(const QList<FamilyDocument*>& documents)
{
    if (documents.isEmpty()) {
        return true;
    }
    const bool isOne = documents.size() == 1;
    const QString text =
        isOne ? tr("This file has unsaved changes:") : tr("These files have unsaved changes:");
    const QStringList choices{isOne ? tr("Save") : tr("Save all"), tr("Discard the changes")};
    switch (Dialogs::instance()->choose(
        tr("Unsaved changes"), text + QLatin1String("\n\n") + namesOf(documents), choices, Save)) {
    case Save:
        return saveDocuments(documents);
    case Discard:
        return true;
    default:
        return false;
    }
}

}  // namespace App
