#pragma once

#include "family/assets/assetlist.h"
#include "family/assets/assetsnapshot.h"
#include "family/assets/familysprite.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritefiledata.h"

#include <zorv/cache/sprites.h>

#include <QStringList>

namespace Family {

class PixelStore;
struct RemapItem;

using SpriteListBase = AssetList<Zorv::Sprites, FamilySprite>;

/// The sprites of a game with their palettes, independent of how they are stored.
///
/// A row shows "GROUP,NUMBER". Pixels are unpacked on demand, and equal ones are stored once.
/// Everything can be undone: sprites, their order, palettes and remaps share one history.
/// `modified()`, `changed()` and `palChanged()` are emitted once per step, when everything is
/// consistent. Destroy it by `release()`. Main thread only; `forEachImage()` unpacks on several
/// threads.
class SpriteCollection : public SpriteListBase
{
    Q_OBJECT

public:
    ~SpriteCollection() override;

    /// The broken things found when the file was read, one line each for the user.
    QStringList loadErrors() const { return m_loadErrors; }

    /// The number of sprites, palettes, remaps and pixels kept as broken records of the file. They
    /// are written back unchanged.
    int brokenCount() const;

    /// Removes all of them as one undo step.
    void removeBroken();

    /// True if a sprite has that identifier. Takes constant time.
    bool contains(AssetId id) const;

    /// Takes constant time when searching from row 0.
    int find(int from, const QVariant& id) const override;
    bool canName(const QVariant& id) const override;

    /// The first sprite with that identifier; null if there is none.
    FamilySprite* byId(AssetId id) const;

    /// The first identifier in the group that no sprite has, from a number on; moves to another
    /// group if it is full.
    AssetId freeId(AssetId from) const;

    /// Adds a sprite after a row (-1: as first) with an image as for `Zorv::Sprite::setImage()`.
    /// One undo step. Null for an image without pixels.
    FamilySprite* insertSprite(int row, AssetId id, QPoint axis, const QImage& image);

    PaletteList* palettes() const override { return m_palettes.get(); }

    /// Adds the sprites of `addSprite()` to the list, as one undo step.
    void refresh() override;
    void removeSprite(int index) override;

    /// Removes several sprites in one undo step.
    void removeSprites(QVector<int> rows);
    void setCurrent(int index) override;
    unsigned count() const override { return unsigned(items().size()); }
    FamilySprite* sprite(int index) const override { return item(index); }

    /// Gets the next free number after the last sprite. Until `refresh()` it is in no list, and its
    /// changes are not recorded for undo.
    FamilySprite* addSprite() override;

    /// Packs pixels.
    Zorv::ImagePreparer imagePreparer() const override;

    void beginChange(const QString& title) override;
    void endChange() override;
    void undo() override;
    void redo() override;
    bool canUndo() const override { return m_history.canUndo(); }
    bool canRedo() const override { return m_history.canRedo(); }
    QString undoTitle() const override { return m_history.undoTitle(); }
    QString redoTitle() const override { return m_history.redoTitle(); }

    /// The undo history, for the state and titles of its steps.
    const AssetHistory& steps() const { return m_history; }

    void move(unsigned from, unsigned to) override;
    void remove(unsigned index) override;

    /// Sorts sprites by group and number, and palettes likewise.
    void autoOrganize() override;

    int checkErrors() override { return m_loadErrors.size(); }
    bool isModified() const override { return !m_history.isClean(); }
    bool isEmpty() const override;
    void reset() override;
    QString fileName() const override { return m_fileName; }
    void release() override { delete this; }

    /// The current content in the format of a sprite file.
    std::shared_ptr<AssetSnapshot> snapshot();

    /// Restores what a snapshot has written, as one undo step; `images` comes from that snapshot.
    /// False, with `error` and without a change, if it is not a sprite file.
    bool restore(QIODevice* device, const QStringList& images, QString* error);

    /// True if the sprites are loose images in a folder.
    virtual bool isFolder() const { return false; }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// For sprites and palettes: the store of pixels, and changes with undo.
    PixelStore* store() const { return m_store.get(); }
    AssetHistory& editHistory() { return m_history; }
    void change(FamilySprite* sprite, const FamilySprite::State& state);
    void insertBehind(const FamilySprite* sprite, const QVector<ItemPtr>& items);
    void append(const QVector<ItemPtr>& sprites);

    /// For palettes: colours or remaps have changed, and therefore the look of sprites.
    void shownChanged();

signals:
    /// There are unsaved changes, or no longer.
    void modificationChanged(bool isModified);

    /// The content was just read from or written to its file.
    void synchronized();

protected:
    /// The content of a file after reading, before it replaces the old content.
    struct Content
    {
        Content();
        ~Content();
        std::unique_ptr<PixelStore> store;
        QVector<ItemPtr> sprites;
        QVector<PaletteList::ItemPtr> palettes;
        QVector<std::shared_ptr<RemapItem>> remaps;
        QVector<PixelRef> unshown;  ///< pixels in the file that no sprite shows
        QVector<PixelRef> all;      ///< all pixels, if broken sprite records may use any of them
        QStringList errors;
    };

    SpriteCollection();

    /// A function that stores the pixels of a file.
    using Adopt = std::function<PixelRef(const SpriteFileData::Stream& stream, const QByteArray&)>;
    static PixelRef adopted(PixelStore* store, const SpriteFileData::Stream& stream,
                            const QByteArray& bytes);

    /// Reads a sprite file. False, with `error`, if it is not one.
    bool readContent(QIODevice* device, const Adopt& adopt, Content* content, QString* error);

    /// Replaces the old content without undo; with `asCopy` the new content counts as modified.
    void take(Content&& content, bool asCopy);
    void setFileName(const QString& fileName) { m_fileName = fileName; }
    void setClean();

    /// Pixels that must stay in the file even if no sprite shows them.
    const QVector<PixelRef>& keptPixels() const;

private:
    int firstRow(AssetId id) const;
    void listChanged(bool count) override;
    void stateCame(const FamilySprite::State& state) override;
    void stateWent(const FamilySprite::State& state) override;
    void stepDone();
    void letGo();
    void tellModified();
    void takeSprites(const SpriteFileData& data, const QVector<PixelRef>& pixels, Content* content);

    // Order matters: records must die before the store of their pixels, and undo steps hold
    // records.
    std::unique_ptr<PixelStore> m_store;
    AssetHistory m_history;
    std::unique_ptr<PaletteList> m_palettes;
    AssetSnapshots m_snapshots;
    QVector<ItemPtr> m_pending;
    QVector<PixelRef> m_unshown;
    QVector<PixelRef> m_all;
    mutable QHash<quint32, int> m_rowOfId;  // the first with each identifier
    mutable bool m_rowsKnown = false;
    QHash<quint32, int> m_ids;  // how many sprites have each, pending ones included
    QStringList m_loadErrors;
    QString m_fileName;
    FamilySprite* m_current = nullptr;  // follows currentIndex
    bool m_changed = false;
    bool m_countChanged = false;
};

}  // namespace Family
