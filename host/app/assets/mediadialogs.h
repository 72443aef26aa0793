#pragma once

#include <QStringList>

namespace Operations {
struct MediaResult;
}

namespace App {

/// Asks for sound files to read. The dialog starts where the last one ended in this project. Empty
/// if the person gives up.
QStringList askForFiles(const QString& title);

/// Asks for a file to write, with a proposed name without a folder.
QString askForTarget(const QString& title, const QString& name);

/// Asks for a folder to write several files into.
QString askForFolder(const QString& title);

/// Asks if files that are there already may be replaced, with what tells of them.
bool mayReplace(const QString& title, const QString& text);

/// Tells how a piece of work ended: what was done in the status bar, what was not in a box.
void tellResult(const QString& title, const QString& done, const Operations::MediaResult& result);

}  // namespace App
