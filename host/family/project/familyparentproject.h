#pragma once

#include "core/parentproject.h"

namespace Family {

/// A game folder. Projects lie in its folders: the tree lists the main files of
/// each folder below "characters" and "stages", and of the root.
class FamilyParentProject final : public Zorv::ParentProject
{
    Q_OBJECT

public:
    /// `rootPath` is the game folder; the files are read through `FileSystemArchive`.
    explicit FamilyParentProject(const QString& rootPath);

    /// The main files below a folder, as absolute paths in order. Hidden
    /// folders, those of backups and copies for an engine are left out, links
    /// are not followed.
    static QStringList mainFiles(const QString& folder);

    /// True if projects are looked for in a folder of this name that is not hidden; `depth` is 0
    /// for those of the game folder itself.
    static bool isProjectFolder(const QString& name, int depth);

    Zorv::EngineModel* engineModel() const override;
    void projectFiles(const QString& path, QStringList& files) override;

    /// "--character %0" or "--stage %0".
    QString runParameters(int kind) const override;

    /// A folder beside the engine with a name that no other has, temporary as a whole.
    QString runPath(int kind, const QString& name, bool* wholeFolder) const override;
    void lastReferenceGone() override;

signals:
    /// The last project has gone; the host may delete this object later.
    void unused();

private:
    void addLooseFolder(const QString& folder);
};

}  // namespace Family
