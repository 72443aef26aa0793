#pragma once

#include "family/assets/folderlist.h"
#include "family/assets/spritecollection.h"

namespace Family {

/// A collection of loose images in a folder, a sprite each (see docs/formats.md).
///
/// Images are PNG, PCX and GIF; a list beside them, "sprites.txt", has what they cannot hold.
/// Pixels stay in their files until they are shown. Saving writes what has changed, each file whole
/// or not at all; last, the files of sprites that were removed are deleted. Palettes that no sprite
/// uses are not kept.
class SpriteFolder final : public SpriteCollection
{
    Q_OBJECT

public:
    SpriteFolder();
    ~SpriteFolder() override;

    /// `fileName` is the folder. An image that cannot be read is told in `loadErrors()`, and its
    /// file is left alone.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;

    void reset() override;
    bool isFolder() const override { return true; }

private:
    /// What a file of the folder holds.
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

    QHash<QString, Written> m_written;  // by the name of the file
    QVector<FolderList::Image> m_lost;  // lines of the list that stay
    QStringList m_unknown;
};

}  // namespace Family
