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

/// A colour transformation for sprites.
struct Dye
{
    Costume costume;
    Tint tint = NoTint;
    int opacity = 100;  ///< percent
    QRgb flat = 0;      ///< if not 0, draws everything opaque in this colour
};

/// A sprite as it is drawn.
struct Picture
{
    QImage image;  ///< null for a missing or broken sprite
    QPoint axis;
};

/// A cache of the sprites of a character or stage, unpacked on first use, with a limit of 256 MiB.
/// Missing and broken sprites are reported once each. Main thread only.
class Pictures
{
    Q_DECLARE_TR_FUNCTIONS(Player::Pictures)

public:
    Pictures();
    ~Pictures();

    /// Opens a sprite file or folder; with an empty path there are no sprites. Errors go to
    /// `notes()`, and the rest is shown.
    void open(const QString& path);

    /// Adds a dye for `find()` and returns its index. Indexes are valid until `clearDyes()`.
    int addDye(const Dye& dye);
    void clearDyes();

    /// Costumes replace the palette of this sprite, in all sprites that use it.
    void setDressed(int group, int number);

    Picture find(int group, int number, int dye);

    /// The size of a sprite, without unpacking it; empty if it is missing.
    QSize sizeOf(int group, int number) const;

    QStringList notes() const { return m_notes; }

private:
    struct Dyed
    {
        Dye dye;
        QVector<QRgb> file;  ///< colours of the costume's file
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
