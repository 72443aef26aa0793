#pragma once

#include "family/assets/assetid.h"
#include "family/assets/familypalette.h"
#include "family/assets/pixeldata.h"

#include <zorv/cache/sprite.h>

#include <QCoreApplication>
#include <QVector>
#include <memory>

namespace Family {

class PackedImage;
class SpriteCollection;
struct PackedPixels;

/// One sprite of a collection. Every change is a step of undo.
///
/// Its address stays the same as long as the collection or its undo knows it.
class FamilySprite final : public Zorv::Sprite
{
    Q_DECLARE_TR_FUNCTIONS(Family::FamilySprite)

public:
    /// All that can change in a sprite.
    struct State
    {
        AssetId id;
        QPoint axis;
        PixelRef pixels;  ///< null for a sprite without pixels
        std::shared_ptr<FamilyPalette> palette;
        QByteArray record;  ///< as the file has it, if it is broken there
        QString file;       ///< its image in a loose folder; empty if it has none yet
    };

    explicit FamilySprite(SpriteCollection* sprites);
    ~FamilySprite() override;

    AssetId id() const { return state.id; }

    /// How the pixels are stored; `None` without any.
    PixelCodec codec() const;

    /// 8 for indices, 32 for true colour, 0 without pixels.
    int bits() const;

    /// Why the sprite is broken as far as the file's tables tell, in words; empty if it is
    /// not. `pixelFault()` unpacks the pixels too.
    QString fault() const;
    QString pixelFault() const;

    /// The colours that the sprite is shown in: of its palette, or of the one that stands in for
    /// it, or shades of grey without one. 256; empty for true colour.
    QVector<QRgb> shownColors() const;

    /// The unpacked pixels without colours: rows of 1 or 4 bytes a pixel without padding. Empty
    /// without any.
    QByteArray pixelRows() const;

    /// Appends a copy with the next free number of the group.
    void duplicate() override;
    void reload() override;

    /// Binds the texture to the first unit of the current context, if there is one.
    void bindTexture() override;

    /// Indices if the sprite has a palette, and colours if it has none. Null without pixels, for
    /// broken ones, and where GL does not work. Good until the next sprite of the collection is
    /// asked for its own.
    Zorv::Texture* texture() const override;

    /// An image whose colours are those of the palette, or those that it is shown in, or that has
    /// none, replaces the pixels alone. One with others counts as `ImagePalette`; one of true
    /// colour makes the sprite one.
    void setImage(const QImage& image) override;
    void setPrepared(const Zorv::PreparedImage& prepared) override;

    /// With `reversed` colours and indices change places, 0 with 255, so that the picture looks as
    /// before. `ForcePalette` and `ReplacePalette` without any palette are `ImagePalette`; an image
    /// of true colour is brought to 256 colours by both, and stays as it is with `ImagePalette`.
    void setImage(const QImage& image, bool reversed, int mode, Zorv::Palette* palette) override;

    /// The two halves of that call. What becomes of the image, on any thread; `colors` are those of
    /// the palette, null without one.
    static QImage adaptedImage(const QImage& image, bool reversed, int mode,
                               const PaletteColors* colors);
    /// Then the sprite takes what was packed of it.
    void setAdapted(const PackedImage& packed, int mode, Zorv::Palette* palette);

    Zorv::Palette* palette() const override;
    QPoint axis() const override;
    void setAxis(QPoint axis);

    /// Null takes the palette away. Nothing for a sprite of true colour, nor with a palette of
    /// another collection.
    void setPalette(Zorv::Palette* palette) override;

    /// Puts three sprites behind this one, with the levels of red, green and blue of what it
    /// shows as shades of grey. They share one palette of greys, which is added if it is not
    /// there, have the axis of this one, and the next free numbers of its group. Transparent
    /// pixels are black.
    void splitChannels() override;

    /// With the colours that the sprite is shown in.
    QImage image() const override;
    QSize size() const override;

    /// Packed as they are, so they keep their codec. Those of a broken record are broken.
    std::shared_ptr<Zorv::PixelCopy> copyPixels() const override;

    /// For that copy: replaces the pixels by packed ones and what they unpack to, or, with no rows,
    /// by none. The palette stays, unless they are true colour. False, and no change, if they
    /// could not be stored.
    bool takePixels(const PackedPixels& packed, const QByteArray& rows);

    /// "Identifier", "Group", "Number", "Axis" (a point), "Palette" (its identifier; empty for
    /// none), "Width", "Height", "Codec" (its name). Width and height cannot be set; a
    /// codec that would lose something is not taken.
    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    State state;   ///< changed by the collection alone
    int row = -1;  ///< in the list; -1 outside of it

private:
    std::shared_ptr<FamilyPalette> chosenPalette(const Zorv::Palette* palette) const;
    void setPixels(const QImage& image, const PixelRef& stored);
    void setAdapted(const QImage& pixels, const PixelRef& stored, int mode,
                    std::shared_ptr<FamilyPalette> chosen);
    void setPixels(const PixelRef& stored, const std::shared_ptr<FamilyPalette>& palette);
    void putPixels(const PixelRef& pixels, const std::shared_ptr<FamilyPalette>& palette);
    void setId(AssetId id);
    void setCodec(PixelCodec codec);

    SpriteCollection* m_sprites;
};

}  // namespace Family
