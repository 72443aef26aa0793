#pragma once

#include <QList>
#include <QString>

namespace Family {
class FamilyDocument;
}

namespace App {

/// Saves documents, one after the other; one without a name is asked for it; failures are told at
/// the end, all at once. Of several documents of one file with different texts the
/// person chooses one, and the others read it. True if all is done.
bool saveDocuments(QList<Family::FamilyDocument*> documents);

/// Asks what becomes of unsaved documents before they are closed: saved,
/// discarded, or neither. True if they can be closed. Nothing is asked for an
/// empty list.
bool askAboutUnsaved(const QList<Family::FamilyDocument*>& documents);

/// A file that several of the documents have, with different texts; empty if
/// there is none.
QString fileWithTwoTexts(const QList<Family::FamilyDocument*>& documents);

}  // namespace App
