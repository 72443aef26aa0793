#pragma once

#include "picture/look.h"

#include <QCache>
#include <QCoreApplication>
#include <QImage>
#include <QSet>

#include <memory>

namespace Family {
class FamilySprite;
class SpriteCollection;
}  // namespace Family

namespace Player {

/// What is done to the colours of sprites before they are shown.
struct Dye
{
    Costume costume;
    Tint tint = NoTint;
    int opacity = 100;  ///< percent
    QRgb flat = 0;      ///< all that is not transparent in this colour, if it is not 0
};

/// A sprite as it is shown.
struct Picture
{
    QImage image;  ///< null for a sprite that is missing or broken
    QPoint axis;
};

/// The sprites of a character or stage, unpacked when they are first seen and kept, up to 256 MiB.
/// Missing and broken ones are told once each. Main thread only.
class Pictures
{
    Q_DECLARE_TR_FUNCTIONS(Player::Pictures)

public:
    Pictures();
    ~Pictures();

    /// Opens a sprite file or folder; an empty path has no sprites. What is wrong is told in
    /// `notes()`, and the rest is shown.
    void open(const QString& path);

    /// A way to show sprites, for `find()`; replaced as a whole by `clearDyes()`.
    int addDye(const Dye& dye);
    void clearDyes();

    /// Costumes change the palette of this sprite, in all sprites that have it.
    void setDressed(int group, int number);

    Picture find(int group, int number, int dye);

    /// The size of a sprite without unpacking it; empty for a missing one.
    QSize sizeOf(int group, int number) const;

    QStringList notes() const { return m_notes; }

private:
    struct Dyed
    {
        Dye dye;
        QVector<QRgb> file;  ///< the colours of the costume's file
    };

    const Family::FamilySprite* sprite(int group, int number) const;
    Picture made(const Family::FamilySprite& sprite, const Dyed& dyed);

    std::unique_ptr<Family::SpriteCollection> m_sprites;
    QVector<Dyed> m_dyes;
    QCache<quint64, Picture> m_known;
    QSet<quint32> m_missing;
    const void* m_dressed = nullptr;  // the palette that costumes replace
    QStringList m_notes;
};

}  // namespace Player
