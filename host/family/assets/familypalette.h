#pragma once

#include "family/assets/assetid.h"

#include <zorv/cache/palette.h>

#include <QColor>
#include <QVector>
#include <array>
#include <memory>

namespace Family {

class PaletteList;

/// All 256 colours of a palette; missing ones are opaque black.
using PaletteColors = std::array<Zorv::RGBA, 256>;

/// One palette of a sprite collection. Every change is an undo step.
///
/// Its address is stable as long as the collection or its undo history knows it.
class FamilyPalette final : public Zorv::Palette
{
public:
    /// Everything in a palette that can change.
    struct State
    {
        AssetId id;
        int count = 256;  ///< number of its colours, 0 to 256
        PaletteColors colors{};
        QByteArray record;  ///< original bytes, if broken in the file
    };

    explicit FamilyPalette(PaletteList* list);
    ~FamilyPalette() override;

    AssetId id() const { return state.id; }

    /// The number of colours according to the file, 0 to 256; 256 after `setColors()`.
    int colorCount() const { return state.count; }

    /// The colours as a colour table with 256 entries.
    QVector<QRgb> colorTable() const;

    /// True if the record in the file is broken; the colours are as far as readable. A change
    /// repairs it.
    bool isBroken() const { return !state.record.isEmpty(); }

    unsigned index() const override;

    /// Binds the texture to the second texture unit of the current context, if there is one.
    void reload() override;

    /// The colours in which sprites with this palette are shown; a remap can substitute another
    /// palette. Uploads them if they have changed. Null if GL does not work.
    Zorv::Texture* texture() const override;
    void toPalette(Zorv::RGBA (&colors)[256]) const override;

    /// With `AdaptPixels`, all sprites that use the palette are converted to the nearest new
    /// colours; with any other mode their pixels stay.
    void setColors(const Zorv::RGBA (&colors)[256], int mode) override;
    Zorv::Palettes* owner() const override;

    /// "Identifier", "Group", "Number", "Colors" (the count, read-only).
    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    /// For the list: a palette outside of it keeps nothing on the graphics processor.
    void dropTexture();

    State state;   ///< changed only by the list
    int row = -1;  ///< in the list; -1 outside of it

private:
    PaletteList* m_list;
    mutable std::unique_ptr<Zorv::Texture> m_texture;
    mutable PaletteColors m_uploaded{};
    mutable quint64 m_revision = 0;  // of the shown colours at the last comparison
};

/// Convert a colour table to 256 colours and back. Missing entries are opaque black; an empty table
/// means shades of grey.
PaletteColors colorsOfTable(const QVector<QRgb>& table);
QVector<QRgb> tableOfColors(const PaletteColors& colors);

/// Shades from opaque black to white, for sprites without a palette.
PaletteColors greyColors();

}  // namespace Family
