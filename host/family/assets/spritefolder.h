#pragma once

#include "family/assets/folderlist.h"
#include "family/assets/spritecollection.h"

namespace Family {

/// A collection of loose images in a folder, one per sprite (see docs/formats.md).
///
/// Images are PNG, PCX and GIF; the list "sprites.txt" stores what they cannot hold. Pixels stay in
/// their files until they are shown. Saving writes changed files, each completely or not at all,
/// and at last deletes the files of removed sprites. Palettes that no sprite uses are not saved.
class SpriteFolder final : public SpriteCollection
{
    Q_OBJECT

public:
    SpriteFolder();
    ~SpriteFolder() override;

    /// `fileName` is the folder. Images that cannot be read are listed in `loadErrors()` and stay
    /// untouched.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;

    void reset() override;
    bool isFolder() const override { return true; }

private:
    /// The content of a file in the folder.
    struct Written
    {
        PixelRef pixels;
        PaletteColors colors;
    };

    void readContent(Zorv::Archive& archive, const QString& folder, Content* content);
    bool isWritten(const FamilySprite* sprite) const;
    void noteWritten(const FamilySprite* sprite);
    bool writeImage(Zorv::Archive& archive, const QString& folder, FamilySprite* sprite);
    bool writeList(Zorv::Archive& archive, const QString& folder);
    QString newName(const FamilySprite* sprite, const QString& folder) const;
    void removeOld(const QString& folder);

    QHash<QString, Written> m_written;  // by file name
    QVector<FolderList::Image> m_lost;  // entries of the list to keep
    QStringList m_unknown;
};

}  // namespace Family
