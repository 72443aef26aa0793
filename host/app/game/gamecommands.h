#pragma once

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

class MainWindow;

/// What is done with a whole game: backups, and saving it under a new place.
class GameCommands : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit GameCommands(MainWindow* window);

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

signals:
    /// The game, or files of it, have other names or other contents.
    void gameChanged();

private:
    QString askForPlace(bool* isFile) const;
    QStringList saveFolderAs(const QString& folder) const;
    bool mayWriteInto(const QString& folder) const;
    bool settleEncodings() const;
    bool settleTwins() const;
    void tell(const QString& title, const QString& done,
              const Operations::BackupResult& result) const;

    MainWindow* m_window;
};

}  // namespace App
