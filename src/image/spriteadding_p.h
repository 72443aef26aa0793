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

/// An image read from a file.
struct ImageRead
{
    QImage image;
    QPoint corner;  ///< how much was cropped at the left and the top
    QString error;
    std::shared_ptr<const PreparedImage> prepared;  ///< the image, prepared for a sprite
};

/// Reads an image file, with or without cropping transparent edges. Re-entrant.
ImageRead loadCroppedImage(const QString& fileName);
ImageRead loadNonCroppedImage(const QString& fileName);

/// Adds image files to a collection, as one undo step.
///
/// Files are read, decoded and prepared on worker threads; sprites are made on the calling thread,
/// in the order of the files. Events are processed meanwhile. The collection cannot be deleted
/// then, because it has an open change.
class SpriteAdding
{
public:
    SpriteAdding(Sprites* sprites, const QStringList& files, const QList<QVariant>& identifiers);

    /// Adds them, with a progress display. If the user cancels it, nothing is added.
    void run(bool isCropped);

    /// Why files were left out, one line each for the user.
    QStringList errors() const { return m_errors; }

private:
    void add(int index, const ImageRead& read);
    void setTexts(Sprite* sprite, const ImageRead& read, int paletteCount);
    void removeEmpty(int first);

    QPointer<Sprites> m_sprites;
    QStringList m_files;
    QList<QVariant> m_identifiers;
    QVector<int> m_empty;  ///< indices of added sprites that did not get their pixels
    QStringList m_errors;
    int m_count = 0;
};

}  // namespace Zorv
