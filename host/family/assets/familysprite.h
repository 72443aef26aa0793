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

/// One sprite of a collection. Every change is an undo step.
///
/// Its address is stable as long as the collection or its undo history knows it.
class FamilySprite final : public Zorv::Sprite
{
    Q_DECLARE_TR_FUNCTIONS(Family::FamilySprite)

public:
    /// Everything in a sprite that can change.
    struct State
    {
        AssetId id;
        QPoint axis;
        PixelRef pixels;  ///< null if it has none
        std::shared_ptr<FamilyPalette> palette;
        QByteArray record;  ///< original bytes, if broken in the file
        QString file;       ///< image file in a loose folder; empty if none yet
    };

    explicit FamilySprite(SpriteCollection* sprites);
    ~FamilySprite() override;

    AssetId id() const { return state.id; }

    /// How the pixels are stored; `None` if there are none.
    PixelCodec codec() const;

    /// 8 for indices, 32 for true colour, 0 without pixels.
    int bits() const;

    /// Why the sprite is broken, as a text; empty if it is not. `fault()` uses only the tables of
    /// the file; `pixelFault()` also unpacks the pixels.
    QString fault() const;
    QString pixelFault() const;

    /// The 256 colours in which the sprite is shown: of its palette, or of the palette substituted
    /// by a remap, or shades of grey. Empty for true colour.
    QVector<QRgb> shownColors() const;

    /// The unpacked pixels without colours: rows of 1 or 4 bytes per pixel, without padding. Empty
    /// without pixels.
    QByteArray pixelRows() const;

    /// Appends a copy with the next free number in the group.
    void duplicate() override;
    void reload() override;

    /// Binds the texture to the first texture unit of the current context, if there is one.
    void bindTexture() override;

    /// A texture of indices if the sprite has a palette, otherwise of colours. Null without pixels,
    /// for broken ones, and if GL does not work. Valid until another sprite of the collection is
    /// asked for its texture.
    Zorv::Texture* texture() const override;

    /// An image without colours, or with those of the palette, or with those that the sprite is
    /// shown in, replaces only the pixels. An image with other colours counts as `ImagePalette`. A
    /// true-colour image makes the sprite true colour.
    void setImage(const QImage& image) override;
    void setPrepared(const Zorv::PreparedImage& prepared) override;

    /// With `reversed`, colours and indices are reversed, 0 with 255, so the picture looks the
    /// same. `ForcePalette` and `ReplacePalette` without a palette act as `ImagePalette`. Both
    /// convert a true-colour image to 256 colours; `ImagePalette` keeps it.
    void setImage(const QImage& image, bool reversed, int mode, Zorv::Palette* palette) override;

    /// The two halves of that call. This half converts the image, on any thread; `colors` are those
    /// of the palette, null without one.
    static QImage adaptedImage(const QImage& image, bool reversed, int mode,
                               const PaletteColors* colors);
    /// This half stores the packed result in the sprite.
    void setAdapted(const PackedImage& packed, int mode, Zorv::Palette* palette);

    Zorv::Palette* palette() const override;
    QPoint axis() const override;
    void setAxis(QPoint axis);

    /// Null removes the palette. Does nothing for a true-colour sprite or a palette of another
    /// collection.
    void setPalette(Zorv::Palette* palette) override;

    /// Inserts three sprites after this one: the levels of red, green and blue of the shown picture
    /// as shades of grey. They share one grey palette, which is added if missing. They get the axis
    /// of this sprite and the next free numbers in its group. Transparent pixels become black.
    void splitChannels() override;

    /// With the colours in which the sprite is shown.
    QImage image() const override;
    QSize size() const override;

    /// Copies the packed pixels, so they keep their codec. Pixels of a broken record stay broken.
    std::shared_ptr<Zorv::PixelCopy> copyPixels() const override;

    /// For such a copy: replaces the pixels by packed ones and the rows that they unpack to; empty
    /// rows remove the pixels. Keeps the palette except for true colour. False, without a change,
    /// if they could not be stored.
    bool takePixels(const PackedPixels& packed, const QByteArray& rows);

    /// "Identifier", "Group", "Number", "Axis" (a point), "Palette" (its identifier; empty for
    /// none), "Width", "Height", "Codec" (its name). Width and height are read-only; a lossy codec
    /// is rejected.
    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    State state;   ///< changed only by the collection
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
