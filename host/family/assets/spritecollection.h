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

/// The sprites of a game with their palettes, whatever they are stored in.
///
/// A row shows "GROUP,NUMBER". Pixels are unpacked when they are asked for, and equal ones are
/// stored once. Everything can be undone: sprites, their order, palettes and remaps have one
/// history. `modified()`, `changed()` and `palChanged()` come once a step, when all is true. Ends
/// by `release()`. Main thread only; `forEachImage()` unpacks on several.
class SpriteCollection : public SpriteListBase
{
    Q_OBJECT

public:
    ~SpriteCollection() override;

    /// What was found broken when the file was read, a line each for the person.
    QStringList loadErrors() const { return m_loadErrors; }

    /// How many sprites, palettes, remaps and pixels are kept as the broken records of the file
    /// that they are. They are written back as they are.
    int brokenCount() const;

    /// Removes them all, as one step of undo.
    void removeBroken();

    /// True if a sprite has that identifier. Costs the same for any number of sprites.
    bool contains(AssetId id) const;

    /// Costs the same for any number of sprites, from row 0 on.
    int find(int from, const QVariant& id) const override;
    bool canName(const QVariant& id) const override;

    /// The sprite of that identifier, the first of several; null if there is none.
    FamilySprite* byId(AssetId id) const;

    /// The first identifier of the group that no sprite has, from a number on; the group is left if
    /// it is full.
    AssetId freeId(AssetId from) const;

    /// Adds a sprite behind a row (-1 for the first place) with an image as
    /// `Zorv::Sprite::setImage()` takes it. One step of undo. Null for an image without pixels.
    FamilySprite* insertSprite(int row, AssetId id, QPoint axis, const QImage& image);

    PaletteList* palettes() const override { return m_palettes.get(); }

    /// Shows the sprites of `addSprite()` in the list, as one step of undo.
    void refresh() override;
    void removeSprite(int index) override;

    /// Removes several, in one step of undo.
    void removeSprites(QVector<int> rows);
    void setCurrent(int index) override;
    unsigned count() const override { return unsigned(items().size()); }
    FamilySprite* sprite(int index) const override { return item(index); }

    /// Has the next free number behind the last sprite. It is in no list, and its changes in no
    /// undo, until `refresh()`.
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

    /// Whether there is a step, and its title.
    const AssetHistory& steps() const { return m_history; }

    void move(unsigned from, unsigned to) override;
    void remove(unsigned index) override;

    /// Sorts sprites by group and number, palettes likewise.
    void autoOrganize() override;

    int checkErrors() override { return m_loadErrors.size(); }
    bool isModified() const override { return !m_history.isClean(); }
    bool isEmpty() const override;
    void reset() override;
    QString fileName() const override { return m_fileName; }
    void release() override { delete this; }

    /// What is here now, in the form of a sprite file.
    std::shared_ptr<AssetSnapshot> snapshot();

    /// Brings back what a snapshot has written, `images` being its own: one step of undo. False,
    /// with `error` and all as it was, for what is no sprite file.
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

    /// For palettes: their colours or remaps have changed, and with them what sprites show.
    void shownChanged();

signals:
    /// There is something to save, or no longer.
    void modificationChanged(bool isModified);

    /// What is here has just been read from its file, or written to it.
    void synchronized();

protected:
    /// All that a file holds, read and not yet taken over.
    struct Content
    {
        Content();
        ~Content();
        std::unique_ptr<PixelStore> store;
        QVector<ItemPtr> sprites;
        QVector<PaletteList::ItemPtr> palettes;
        QVector<std::shared_ptr<RemapItem>> remaps;
        QVector<PixelRef> unshown;  ///< pixels of the file that no sprite shows
        QVector<PixelRef> all;      ///< all of it, if broken records of sprites may name any
        QStringList errors;
    };

    SpriteCollection();

    /// Takes pixels of a file up.
    using Adopt = std::function<PixelRef(const SpriteFileData::Stream& stream, const QByteArray&)>;
    static PixelRef adopted(PixelStore* store, const SpriteFileData::Stream& stream,
                            const QByteArray& bytes);

    /// Reads a sprite file. False, with `error`, for what is none.
    bool readContent(QIODevice* device, const Adopt& adopt, Content* content, QString* error);

    /// Takes a content over in place of the old one, without undo; with `asCopy` it counts as
    /// modified.
    void take(Content&& content, bool asCopy);
    void setFileName(const QString& fileName) { m_fileName = fileName; }
    void setClean();

    /// Pixels that must stay in the file though no sprite may show them.
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

    // Records die before the store of their pixels, and steps of undo hold records.
    std::unique_ptr<PixelStore> m_store;
    AssetHistory m_history;
    std::unique_ptr<PaletteList> m_palettes;
    AssetSnapshots m_snapshots;
    QVector<ItemPtr> m_pending;
    QVector<PixelRef> m_unshown;
    QVector<PixelRef> m_all;
    mutable QHash<quint32, int> m_rowOfId;  // the first of each
    mutable bool m_rowsKnown = false;
    QHash<quint32, int> m_ids;  // how many sprites have each, of the list and pending
    QStringList m_loadErrors;
    QString m_fileName;
    FamilySprite* m_current = nullptr;  // that of currentIndex, which follows it
    bool m_changed = false;
    bool m_countChanged = false;
};

}  // namespace Family
