#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QVector>

class QImage;

namespace Zorv {

class Project;
class Sprites;

/// Sprites of a collection on their way to image files. The person says where to: a file for one
/// sprite; for several a folder, or a name that the names of all begin with. PNG files keep axis
/// and palette as texts.
///
/// The collection may change or die behind a dialog: what is not there any more is told.
class SpriteSave
{
public:
    /// What several files are called: by the numbers of the sprites, or like one name, "DIR/NAME"
    /// and the identifier of the sprite behind it.
    enum Naming { IntoFolder, LikeOneFile };

    struct Way
    {
        QString title;
        Naming naming;
    };

    /// The rows to save; the folder is remembered with the project, which may be null.
    SpriteSave(Sprites* sprites, const QVector<int>& rows, Project* project, const Way& way);

    /// Asks, writes, and tells how that went.
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
    QStringList m_names;  ///< of the files, without a suffix
    QStringList m_paths;
    QStringList m_errors;
    QStringList m_warnings;
};

}  // namespace Zorv
