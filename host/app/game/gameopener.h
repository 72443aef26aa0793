#pragma once

#include <QObject>
#include <QString>

namespace Family {
class FamilyDocument;
}

namespace App {

class MainWindow;

/// Opens games, projects and files for the window, and tells the person what does
/// not go.
class GameOpener : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit GameOpener(MainWindow* window);

    /// A game folder, or a code file with the folder around it and its project.
    bool openPath(const QString& path);

    /// A file of the open game; its project too, if that is closed.
    bool openFile(const QString& fileName);

private:
    bool openFolder(const QString& folder);
    bool openProject(const QString& mainFile);
    Family::FamilyDocument* openFileOfClosedProject(const QString& fileName);
    bool tellWhyNot(const QString& fileName);

    MainWindow* m_window;
};

}  // namespace App
