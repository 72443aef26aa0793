#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Operations {
enum class NewKind;
}

namespace App {

class GameTree;
struct WindowServices;

/// New games, characters, stages and files: asks for the name, makes them, and opens them.
class NewCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window. The tree outlives it.
    NewCommands(const WindowServices& services, GameTree* tree);

    QVector<ActionRow> actions() override;

    void newGame();
    void newCharacter();
    void newStage();
    void newFile();

private:
    bool hasGame() const;
    void newProject(Operations::NewKind kind);
    QString folderOfTree() const;
    Family::FamilyProject* projectOf(const QString& folder) const;

    const WindowServices& m_services;
    GameTree* m_tree;
};

}  // namespace App
