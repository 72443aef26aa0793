#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Operations {
enum class NewKind;
}

namespace App {

class GameTree;
struct WindowServices;

/// Creates new games, characters, stages and files: asks for a name, creates them, opens them.
class NewCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window. The tree outlives it.
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
