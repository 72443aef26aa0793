#pragma once

#include "cache/preparedimage.h"

#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace Zorv {

class Sprite;
class Sprites;

/// An image that was read from a file.
struct ImageRead
{
    QImage image;
    QPoint corner;  ///< what was cut off in front of it
    QString error;
    std::shared_ptr<const PreparedImage> prepared;  ///< the image, ready for a sprite
};

/// Reads an image file, and cuts off what does not show. Re-entrant.
ImageRead loadCroppedImage(const QString& fileName);
ImageRead loadNonCroppedImage(const QString& fileName);

/// Image files on their way into a collection, as one step of undo.
///
/// Files are read, decoded and made ready for sprites on other threads; sprites are made in this
/// one, in the order of the files. Events are processed meanwhile, but the collection does not go:
/// it has an open change.
class SpriteAdding
{
public:
    SpriteAdding(Sprites* sprites, const QStringList& files, const QList<QVariant>& identifiers);

    /// Adds them. With progress, by which the person can give up: nothing comes then.
    void run(bool isCropped);

    /// Why files were left out, a line each for the person.
    QStringList errors() const { return m_errors; }

private:
    void add(int index, const ImageRead& read);
    void setTexts(Sprite* sprite, const ImageRead& read, int paletteCount);
    void removeEmpty(int first);

    QPointer<Sprites> m_sprites;
    QStringList m_files;
    QList<QVariant> m_identifiers;
    QVector<int> m_empty;  ///< of those that came, without the pixels that they were to have
    QStringList m_errors;
    int m_count = 0;
};

}  // namespace Zorv
