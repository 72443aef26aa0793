#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QVector>

namespace Zorv {

class Project;
class Sprites;

/// Sprites of a collection on their way to image files. The person says where to: a file for one
/// sprite, a folder for several.
///
/// The collection may change or die behind a dialog: what is not there any more is told.
class SpriteSave
{
public:
    /// The rows to save; the folder is remembered with the project, which may be null.
    SpriteSave(Sprites* sprites, const QVector<int>& rows, Project* project);

    /// Asks, writes, and tells how that went.
    void run();

private:
    bool ask();
    bool askForFile();
    bool askForFolder();
    bool mayReplace() const;
    QString startFolder() const;
    void keepFolder(const QString& folder);
    void write();
    QString write(int index) const;
    void tellResult(int written);

    QPointer<Sprites> m_sprites;
    QPointer<Project> m_project;
    QVector<QPersistentModelIndex> m_rows;
    QStringList m_names;  ///< of the files, without a suffix
    QStringList m_paths;
    QStringList m_errors;
};

}  // namespace Zorv
