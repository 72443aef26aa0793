#pragma once

#include "family/assets/assetlist.h"
#include "family/assets/familypalette.h"
#include "family/assets/indexmapping.h"

#include <zorv/cache/palettes.h>

namespace Family {

class RemapModel;
class SpriteCollection;

using PaletteListBase = AssetList<Zorv::Palettes, FamilyPalette>;

/// The palettes of a sprite collection. A row shows "GROUP,NUMBER". Every change is an undo step in
/// the history of the collection.
class PaletteList final : public PaletteListBase
{
    Q_OBJECT

public:
    explicit PaletteList(SpriteCollection* sprites);
    ~PaletteList() override;

    int count() const override { return items().size(); }
    void setCurrent(int row) override;

    /// Always a `FamilyPalette`.
    FamilyPalette* palette(int row) const override { return item(row); }

    /// `id` is an identifier; any other value, such as 0, takes the first free one from "1,1" on.
    FamilyPalette* insert(int row, const Zorv::RGBA (&colors)[256], const QVariant& id,
                          bool askId) override;
    FamilyPalette* addPalette(const Zorv::RGBA (&colors)[256], const QVariant& id,
                              bool askId) override;

    /// Sprites that use a removed palette have none afterwards and show shades of grey.
    void remove(int row) override;
    void clear() override;
    int find(int from, const QVariant& id) const override;

    /// Removes palettes that no sprite uses and no remap names.
    void removeUnused() override;

    /// Removes palettes with the same 256 colours as an earlier one, except those with a remap.
    /// Sprites and remaps then use the earlier one.
    void removeDuplicates() override;

    void beginUpdate(const QString& title) override;
    void endUpdate() override;

    /// Always a `RemapModel`.
    QAbstractItemModel* remapModel() override;
    RemapModel* remaps() const { return m_remaps.get(); }
    Zorv::Sprites* sprites() const override;

    /// The first palette with that identifier; null if there is none.
    FamilyPalette* byId(AssetId id) const;

    /// The first palette with exactly these colours; otherwise the first that differs only in the
    /// alpha of entry 0, which programs set differently for the same palette. Null if there is
    /// none.
    FamilyPalette* byColors(const PaletteColors& colors) const;

    /// The palette that is shown instead: the target of its remap, or itself. Follows one remap
    /// only.
    const FamilyPalette* shown(const FamilyPalette* palette) const;

    /// Adds a palette with a free identifier, unless `byColors()` finds one.
    FamilyPalette* ensure(const PaletteColors& colors);

    /// For each palette of another collection: the first one here with its colours, or else a copy
    /// with its number or the next free one. `added` receives the number of copies. One undo step.
    QVector<ItemPtr> adopt(const QVector<const FamilyPalette*>& others, int* added);

    /// Sorts by group and number.
    void autoOrganize();

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// For palettes: change one with undo; see `FamilyPalette`.
    void setColors(FamilyPalette* palette, const PaletteColors& colors, int mode);
    void setId(FamilyPalette* palette, AssetId id);

    /// For the collection, while it has no sprite: replaces the palettes with undo.
    void replace(const QVector<ItemPtr>& items);

    /// For the collection: replace everything without undo; remove broken records; report a
    /// finished step.
    void reset(const QVector<ItemPtr>& items);
    void removeBroken();
    void flush();

    /// Changes whenever the result of `shown()` or its colours may have changed.
    quint64 shownRevision() const { return m_shownRevision; }

    /// The shared pointer of the list, or its undo history, to a palette; for sprites to keep. Null
    /// for a palette of another collection.
    ItemPtr share(const Zorv::Palette* palette) const;

private:
    void listChanged(bool count) override;
    void stateCame(const FamilyPalette::State& state) override;
    void stateWent(const FamilyPalette::State& state) override;
    void itemWent(FamilyPalette& palette) override;
    void shownChanged();
    AssetId nextId() const;
    AssetId freeId(AssetId from) const;
    FamilyPalette* place(int row, const PaletteColors& colors, AssetId id);
    void usePalettes(const QHash<const FamilyPalette*, ItemPtr>& others);
    void repaint(const FamilyPalette* palette, const IndexMap& indices);
    void drop(const QVector<int>& rows);

    SpriteCollection* m_sprites;
    std::unique_ptr<RemapModel> m_remaps;
    bool m_changed = false;
    bool m_countChanged = false;
    quint64 m_shownRevision = 0;
    QHash<quint32, int> m_ids;        // the number of palettes with each identifier
    QHash<quint64, int> m_colorSets;  // likewise by checksum of colours, see `byColors()`
};

}  // namespace Family
