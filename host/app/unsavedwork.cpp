#include "app/unsavedwork.h"

#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/framework/fileeditor.h"
#include "family/familydocument.h"
#include "operations/documentfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QMap>

#include <algorithm>

namespace App {

using Family::FamilyDocument;
using Zorv::Dialogs;

namespace {

enum Answer { Cancel = -1, Save = 0, Discard = 1 };

constexpr int MaxNames = 8;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::UnsavedWork)
};

QString namesOf(const QList<FamilyDocument*>& documents)
{
    QStringList names;
    for (const FamilyDocument* document : documents) {
        names.append(document->fileName().isEmpty()
                         ? Text::tr("new file")
                         : QDir::toNativeSeparators(document->fileName()));
    }
    const int more = names.size() - MaxNames;
    if (more > 0) {
        names = names.mid(0, MaxNames);
        names.append(Text::tr("and %1 more").arg(more));
    }
    return names.join(QLatin1Char('\n'));
}

QString projectTitle(const FamilyDocument* document)
{
    const Zorv::Project* project = document->project();
    return project ? project->title() : QString();
}

/// Documents of one file in several projects, of which one is saved.
struct Twins
{
    FamilyDocument* chosen;
    QList<FamilyDocument*> others;
};

bool haveOneText(const QList<FamilyDocument*>& documents)
{
    const QString text = documents.first()->text();
    return std::all_of(documents.begin(), documents.end(),
                       [&text](const auto* document) { return document->text() == text; });
}

/// The documents of each file; those without a file are left out.
QMap<QString, QList<FamilyDocument*>> byFileName(const QList<FamilyDocument*>& documents)
{
    QMap<QString, QList<FamilyDocument*>> result;
    for (FamilyDocument* document : documents) {
        result[document->fileName()].append(document);
    }
    result.remove(QString());
    return result;
}

/// The place of the document to save; -1 if the person gives up.
int chooseTwin(const QList<FamilyDocument*>& documents)
{
    QStringList choices;
    for (const FamilyDocument* document : documents) {
        choices.append(Text::tr("Save the text of %1").arg(projectTitle(document)));
    }
    return Dialogs::instance()->choose(
        Text::tr("Save"),
        Text::tr("%1 belongs to several projects, and was changed in them in different ways. The "
                 "changes of one can be saved; the others are lost.")
            .arg(QDir::toNativeSeparators(documents.first()->fileName())),
        choices, 0);
}

/// Takes out of the documents all but one of those that share a file and have
/// different texts, and tells them apart in `twins`. False if the person gives up.
bool settleTwins(QList<FamilyDocument*>* documents, QList<Twins>* twins)
{
    const QMap<QString, QList<FamilyDocument*>> byFile = byFileName(*documents);
    for (QList<FamilyDocument*> sharing : byFile) {
        if (haveOneText(sharing)) {
            continue;
        }
        const int choice = chooseTwin(sharing);
        if (choice < 0) {
            return false;
        }
        FamilyDocument* chosen = sharing.takeAt(choice);
        for (FamilyDocument* other : qAsConst(sharing)) {
            documents->removeOne(other);
        }
        twins->append({chosen, sharing});
    }
    return true;
}

/// What was not chosen reads the saved file; if that was not written, all stays.
bool readSaved(const Twins& twins)
{
    bool all = true;
    for (FamilyDocument* other : twins.others) {
        if (twins.chosen->isModified()) {
            other->pauseWatch(false);
            all = false;
        } else {
            all = other->reload() && all;
        }
    }
    return all;
}

/// Asks for the name of a document that has none.
Family::Saved saveNew(FamilyDocument* document, QString* error)
{
    Zorv::Interface* host = Zorv::Interface::instance();
    auto* editor = qobject_cast<Zorv::FileEditor*>(
        host->fileEditor(document, Family::fileType(document->kind())));
    if (!editor || !Family::settleEncoding(document)) {
        return Family::Saved::GivenUp;
    }
    if (Zorv::FileEditor::saveFileAs(document, editor, host)) {
        return Family::Saved::Done;
    }
    *error = document->errorString();
    return error->isEmpty() ? Family::Saved::GivenUp : Family::Saved::Failed;
}

}  // namespace

bool saveDocuments(QList<FamilyDocument*> documents)
{
    QList<Twins> twins;
    if (!settleTwins(&documents, &twins)) {
        return false;
    }
    for (const Twins& sharing : qAsConst(twins)) {
        for (FamilyDocument* other : sharing.others) {
            // It is told of this save here.
            other->pauseWatch(true);
        }
    }
    QStringList errors;
    bool all = true;
    for (FamilyDocument* document : qAsConst(documents)) {
        QString error;
        const Family::Saved saved =
            document->fileName().isEmpty()
                ? saveNew(document, &error)
                : Family::saveDocument(document, document->fileName(), &error);
        all = all && saved == Family::Saved::Done;
        if (saved == Family::Saved::Failed) {
            errors.append(error);
        }
    }
    for (const Twins& sharing : qAsConst(twins)) {
        all = readSaved(sharing) && all;
    }
    if (!errors.isEmpty()) {
        Dialogs::instance()->error(Text::tr("Save"), errors.join(QLatin1Char('\n')));
    }
    return all;
}

QString fileWithTwoTexts(const QList<FamilyDocument*>& documents)
{
    const QMap<QString, QList<FamilyDocument*>> byFile = byFileName(documents);
    for (auto it = byFile.constBegin(); it != byFile.constEnd(); ++it) {
        if (!haveOneText(it.value())) {
            return it.key();
        }
    }
    return {};
}

bool askAboutUnsaved(const QList<FamilyDocument*>& documents)
{
    if (documents.isEmpty()) {
        return true;
    }
    const bool isOne = documents.size() == 1;
    const QString text = isOne ? Text::tr("This file has unsaved changes:")
                               : Text::tr("These files have unsaved changes:");
    const QStringList choices{isOne ? Text::tr("Save") : Text::tr("Save all"),
                              Text::tr("Discard the changes")};
    switch (Dialogs::instance()->choose(Text::tr("Unsaved changes"),
                                        text + QLatin1String("\n\n") + namesOf(documents), choices,
                                        Save)) {
    case Save:
        return saveDocuments(documents);
    case Discard:
        return true;
    default:
        return false;
    }
}

}  // namespace App
