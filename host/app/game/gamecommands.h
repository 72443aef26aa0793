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

/// What is done with a whole game: backups, and saving it under a new place.
class GameCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window. The tree outlives it.
    GameCommands(const WindowServices& services, GameTree* tree);

    QVector<ActionRow> actions() override;

    /// Asks for a name and makes a backup.
    void makeBackup();

    /// Lets the person choose a backup and puts it back. Unsaved work is asked
    /// about first.
    void restoreBackup();

    /// Asks for a new place, and goes on there.
    void saveAllAs();

    /// Brings the window in line with files that were read again: what they have
    /// come to name is loaded.
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
