#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QString>

namespace App {

class GameTree;
struct WindowServices;

/// Opens, saves and closes games, projects and files for the window, and reports what failed.
class GameOpener : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window. The tree outlives it.
    GameOpener(const WindowServices& services, GameTree* tree);

    /// Opens a game folder, or a code file with its project and the folder around it.
    bool openPath(const QString& path);

    /// Opens a file of the open game, and its project if that is closed.
    bool openFile(const QString& fileName);

    QVector<ActionRow> actions() override;

private:
    bool hasGame() const;
    Family::FamilyProject* project() const;
    bool hasProject() const;
    bool hasUnsaved() const;
    void chooseFolder();
    void saveAll();
    void closeProject();
    void closeFolder();
    bool openFolder(const QString& folder);
    bool openProject(const QString& mainFile);
    bool showSprites(const QString& fileName);
    Family::FamilyDocument* openFileOfClosedProject(const QString& fileName);
    bool tellWhyNot(const QString& fileName);

    const WindowServices& m_services;
    GameTree* m_tree;
};

}  // namespace App
