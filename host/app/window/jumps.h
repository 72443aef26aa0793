#pragma once

#include <functional>

class QString;

namespace Family {
class FamilyDocument;
class FamilyProject;
}  // namespace Family

namespace App {

/// Brings games, files and places to the front. Shows the user a message if something cannot be
/// opened.
class Jumps
{
public:
    virtual ~Jumps() = default;

    /// Opens a game folder, or a code file together with its project and the game folder around it.
    virtual bool openPath(const QString& path) = 0;

    /// Shows a file of the game, opening its project if necessary. False if there is nothing to
    /// show.
    virtual bool openFile(const QString& fileName) = 0;

    /// Brings the text of an open project to the front. The first time, warns if saving in the
    /// file's encoding would not give the same bytes back.
    virtual void showDocument(Family::FamilyDocument* document) = 0;

    /// The same, and selects `length` characters at a place. Line and column count from 0.
    virtual void showPlace(Family::FamilyDocument* document, int line, int column, int length) = 0;

    /// Shows a sound of the current project in the middle.
    virtual void showSound(int row) = 0;

    /// Moves the cursor of the current text to a line. The keyboard focus does not move.
    virtual void moveCursor(int line) = 0;

    /// Focuses the middle of the window.
    virtual void showMiddle() = 0;

    /// True if a project, or with null everything, may be closed: nothing runs on it, and the user
    /// was asked about unsaved work. If something has to stop running first, `then` is called after
    /// it stopped.
    virtual bool mayClose(const Family::FamilyProject* project,
                          const std::function<void()>& then) = 0;
};

}  // namespace App
