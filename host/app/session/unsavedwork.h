#pragma once

#include <QList>
#include <QString>

namespace Zorv {
class ProjectFile;
}

namespace App {

/// Saves texts, sprites and sounds, one after the other, with what has not gone into them yet; a
/// text without a name is asked for it, and the person is asked about a file that another program
/// has changed; failures are told at the end, all at once. Of several objects of one file with
/// different contents the person chooses one, and the others read it. True if all is done.
bool saveFiles(QList<Zorv::ProjectFile*> files);

/// Asks what becomes of unsaved files, and of those that are no longer on the disk, before they are
/// closed: saved, discarded, or neither. True if they can be closed. Nothing is asked for an empty
/// list.
bool askAboutUnsaved(const QList<Zorv::ProjectFile*>& files);

/// Reads a file again and drops its changes, and what has not gone into it yet. False if it cannot
/// be read; all stays then.
bool readAgain(Zorv::ProjectFile* file);

/// A file that several of the objects have, with different contents; empty if
/// there is none.
QString fileWithTwoContents(const QList<Zorv::ProjectFile*>& files);

}  // namespace App
