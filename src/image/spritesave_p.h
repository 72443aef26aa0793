#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QVector>

class QImage;

namespace Zorv {

class Project;
class Sprites;

/// Saves sprites of a collection to image files. The user chooses where: a file for one sprite; for
/// several a folder, or a common beginning of all names. PNG files store axis and palette as texts.
///
/// The collection may change or be closed during a dialog; sprites that are gone are reported.
class SpriteSave
{
public:
    /// How several files are named: by the numbers of the sprites, or like one chosen name,
    /// "DIR/NAME" followed by the identifier of the sprite.
    enum Naming { IntoFolder, LikeOneFile };

    struct Way
    {
        QString title;
        Naming naming;
    };

    /// The rows to save. The folder is remembered in the project, which may be null.
    SpriteSave(Sprites* sprites, const QVector<int>& rows, Project* project, const Way& way);

    /// Asks, writes, and reports the result.
    void run();

private:
    bool ask();
    bool askForFile();
    bool askForFolder();
    bool askForName();
    bool mayReplace() const;
    QString startFolder() const;
    void keepFolder(const QString& folder);
    void write();
    QString write(int index);
    void warnOfLoss(const QString& path, const QImage& image);
    void tellResult(int written);

    Way m_way;
    QPointer<Sprites> m_sprites;
    QPointer<Project> m_project;
    QVector<QPersistentModelIndex> m_rows;
    QStringList m_names;  ///< file names without suffix
    QStringList m_paths;
    QStringList m_errors;
    QStringList m_warnings;
};

}  // namespace Zorv
