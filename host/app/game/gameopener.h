#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QString>

namespace App {

class GameTree;
struct WindowServices;

/// Opens games, projects and files for the window, tells the person what does not go, saves all
/// of them, and closes them.
class GameOpener : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window. The tree outlives it.
    GameOpener(const WindowServices& services, GameTree* tree);

    /// A game folder, or a code file with the folder around it and its project.
    bool openPath(const QString& path);

    /// A file of the open game; its project too, if that is closed.
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
