#pragma once

#include "app/window/part.h"

#include <QList>
#include <QObject>
#include <QString>

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {
struct BackupResult;
}  // namespace Operations

namespace App {

class GameTree;
struct WindowServices;

/// Commands for a whole game: backups, and saving it in a new place.
class GameCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window. The tree outlives it.
    GameCommands(const WindowServices& services, GameTree* tree);

    QVector<ActionRow> actions() override;

    /// Asks for a name and creates a backup.
    void makeBackup();

    /// Lets the user choose a backup and restores it. Asks about unsaved work first.
    void restoreBackup();

    /// Asks for a new place, saves there and continues there.
    void saveAllAs();

    /// Updates the window after files were reloaded: loads files that they name by now.
    void refresh();

private:
    bool hasGame() const;
    QString askForPlace(bool* isFile) const;
    QStringList saveFolderAs(const QString& folder) const;
    bool mayWriteInto(const QString& folder) const;
    bool settleEncodings() const;
    bool settleTwins() const;
    void tell(const QString& title, const QString& done,
              const Operations::BackupResult& result) const;

    const WindowServices& m_services;
    GameTree* m_tree;
};

}  // namespace App
