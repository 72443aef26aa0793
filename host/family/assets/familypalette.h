#pragma once

#include "family/assets/assetid.h"

#include <zorv/cache/palette.h>

#include <QColor>
#include <QVector>
#include <array>
#include <memory>

namespace Family {

class PaletteList;

/// All 256 colours of a palette; those that it lacks are opaque black.
using PaletteColors = std::array<Zorv::RGBA, 256>;

/// One palette of a sprite collection. Every change is a step of undo.
///
/// Its address stays the same as long as the collection or its undo knows it.
class FamilyPalette final : public Zorv::Palette
{
public:
    /// All that can change in a palette.
    struct State
    {
        AssetId id;
        int count = 256;  ///< colours that it has, 0 to 256
        PaletteColors colors{};
        QByteArray record;  ///< as the file has it, if it is broken there
    };

    explicit FamilyPalette(PaletteList* list);
    ~FamilyPalette() override;

    AssetId id() const { return state.id; }

    /// The number of colours that a file tells, 0 to 256; 256 after `setColors()`.
    int colorCount() const { return state.count; }

    /// The colours as a table of 256 for an image.
    QVector<QRgb> colorTable() const;

    /// True if the record of the file is broken; the colours are what could be read. A change
    /// mends it.
    bool isBroken() const { return !state.record.isEmpty(); }

    unsigned index() const override;

    /// Binds the texture to the second unit of the current context, if there is one.
    void reload() override;

    /// The colours that sprites with this palette are shown in: another palette can stand in for
    /// it. They are uploaded when they have changed since. Null where GL does not work.
    Zorv::Texture* texture() const override;
    void toPalette(Zorv::RGBA (&colors)[256]) const override;

    /// With `AdaptPixels` all sprites that use the palette are repainted in the nearest of the new
    /// colours; with any other mode their pixels stay.
    void setColors(const Zorv::RGBA (&colors)[256], int mode) override;
    Zorv::Palettes* owner() const override;

    /// "Identifier", "Group", "Number", "Colors" (the count, which cannot be set).
    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    /// For the list: nothing of a palette that is in no list is kept on the graphics processor.
    void dropTexture();

    State state;   ///< changed by the list alone
    int row = -1;  ///< in the list; -1 outside of it

private:
    PaletteList* m_list;
    mutable std::unique_ptr<Zorv::Texture> m_texture;
    mutable PaletteColors m_uploaded{};
    mutable quint64 m_revision = 0;  // of what is shown, when that was compared
};

/// The table of an image as 256 colours; what it lacks is opaque black, and an image without one
/// has shades of grey. And the other way.
PaletteColors colorsOfTable(const QVector<QRgb>& table);
QVector<QRgb> tableOfColors(const PaletteColors& colors);

/// The shades from opaque black to white, which a sprite without a palette is shown in.
PaletteColors greyColors();

}  // namespace Family
