#pragma once

#include <functional>

class QString;

namespace Family {
class FamilyDocument;
class FamilyProject;
}  // namespace Family

namespace App {

/// Brings games, files and places to the front. The person is told what does not go.
class Jumps
{
public:
    virtual ~Jumps() = default;

    /// Opens a game folder, or the one around a code file together with the file and its project.
    virtual bool openPath(const QString& path) = 0;

    /// Shows a file of the game, and opens its project if that is closed. False if there is
    /// nothing to show.
    virtual bool openFile(const QString& fileName) = 0;

    /// Brings the text of an open project to the front. A file that would not come back from its
    /// encoding is told when it is shown first.
    virtual void showDocument(Family::FamilyDocument* document) = 0;

    /// The same with a place in it, from 0, of which so many characters are selected.
    virtual void showPlace(Family::FamilyDocument* document, int line, int column, int length) = 0;

    /// Brings a sound of the project in front into the middle.
    virtual void showSound(int row) = 0;

    /// Brings the cursor of the text in front to a line; the keyboard stays where it is.
    virtual void moveCursor(int line) = 0;

    /// Gives the keyboard to what stands in the middle of the window.
    virtual void showMiddle() = 0;

    /// True if a project, or with null all that is open, may be closed: nothing runs on it, and
    /// the person has been asked about unsaved work. `then` is called later if something that
    /// runs comes to its end by that.
    virtual bool mayClose(const Family::FamilyProject* project,
                          const std::function<void()>& then) = 0;
};

}  // namespace App
