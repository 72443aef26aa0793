#include "animation/thumbnails/thumbnails.h"

#include "cache/sprite.h"
#include "cache/sprites.h"

#include <QCache>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <algorithm>

// Pictures are decoded in the main thread, because sprites belong to it. To keep the window
// responsive, a zero timer decodes for a few milliseconds and then returns to the event loop. A new
// page clears the queue, so that scrolling does not wait for pictures that are no longer visible.

namespace Zorv {

namespace {

constexpr int KeptPictures = 4000;
constexpr int Slice = 5;  // milliseconds of work before events are handled again

/// Scales up without smoothing to keep pixels crisp, and down with smoothing.
QImage fitted(const QImage& image, int side)
{
    const int longest = std::max(image.width(), image.height());
    const QImage::Format format = QImage::Format_ARGB32_Premultiplied;
    if (longest > side) {
        return image.convertToFormat(format).scaled(side, side, Qt::KeepAspectRatio,
                                                    Qt::SmoothTransformation);
    }
    return image.scaled(image.size() * std::max(side / std::max(longest, 1), 1))
        .convertToFormat(format);
}

}  // namespace

class ThumbnailsPrivate
{
public:
    explicit ThumbnailsPrivate(int pictureSide) : side(pictureSide), pictures(KeptPictures) {}

    void makeSome();
    QPixmap make(int row) const;

    int side;
    ColorSight sight;
    QPointer<Sprites> sprites;
    QCache<int, QPixmap> pictures;
    QVector<int> wanted;
    QTimer timer;
};

void ThumbnailsPrivate::makeSome()
{
    QElapsedTimer clock;
    clock.start();
    while (!wanted.isEmpty() && clock.elapsed() < Slice) {
        const int row = wanted.takeFirst();
        pictures.insert(row, new QPixmap(make(row)));
    }
    if (!wanted.isEmpty()) {
        timer.start(0);
    }
}

QPixmap ThumbnailsPrivate::make(int row) const
{
    const Sprite* sprite = sprites ? sprites->sprite(row) : nullptr;
    const QImage image = sprite ? sprite->image() : QImage();
    return image.isNull() ? QPixmap() : QPixmap::fromImage(seenWith(sight, fitted(image, side)));
}

Thumbnails::Thumbnails(int side, QObject* parent)
    : QObject(parent), d(std::make_unique<ThumbnailsPrivate>(side))
{
    d->timer.setSingleShot(true);
    connect(&d->timer, &QTimer::timeout, this, [this] {
        d->makeSome();
        emit made();
    });
}

Thumbnails::~Thumbnails() = default;

void Thumbnails::setSprites(Sprites* sprites)
{
    d->sprites = sprites;
    forgetAll();
}

const QPixmap* Thumbnails::picture(int row)
{
    const QPixmap* found = d->pictures.object(row);
    if (!found && !d->wanted.contains(row)) {
        d->wanted.append(row);
        d->timer.start(0);
    }
    return found;
}

void Thumbnails::startPage()
{
    d->wanted.clear();
}

void Thumbnails::forgetAll()
{
    d->pictures.clear();
    d->wanted.clear();
}

void Thumbnails::setColorSight(const ColorSight& sight)
{
    if (d->sight != sight) {
        d->sight = sight;
        forgetAll();
    }
}

int Thumbnails::side() const
{
    return d->side;
}

}  // namespace Zorv
