#pragma once

#include <QList>
#include <QString>

namespace Zorv {
class ProjectFile;
}

namespace App {

/// Saves texts, sprites and sounds one after the other, including edits that are still in their
/// editors. Asks for a name for a text without one, and asks what to do with a file that another
/// program changed. Reports all failures together at the end. If several objects of one file
/// differ, the user chooses one and the others reload it. True if everything was saved.
bool saveFiles(QList<Zorv::ProjectFile*> files);

/// Asks before closing what to do with unsaved files and with files that no longer exist on disk:
/// save, discard or cancel. True if they can be closed. Does not ask if the list is empty.
bool askAboutUnsaved(const QList<Zorv::ProjectFile*>& files);

/// Reloads a file and drops its changes, including edits that are still in its editor. False if it
/// cannot be read; nothing changes then.
bool readAgain(Zorv::ProjectFile* file);

/// A file for which several of the objects have different contents; empty if there is none.
QString fileWithTwoContents(const QList<Zorv::ProjectFile*>& files);

}  // namespace App
