#include "app/assets/thumbnails.h"

#include <zorv/cache/sprite.h>
#include <zorv/cache/sprites.h>

#include <QElapsedTimer>
#include <QImage>
#include <algorithm>

namespace App {

namespace {

constexpr int KeptPictures = 4000;
constexpr int Slice = 8;  // milliseconds between two events of the person

/// Crisp where it is enlarged, smooth where it is not.
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

Thumbnails::Thumbnails(int side, QObject* parent)
    : QObject(parent), m_side(side), m_pictures(KeptPictures)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Thumbnails::makeSome);
}

void Thumbnails::setSprites(Zorv::Sprites* sprites)
{
    m_sprites = sprites;
    forgetAll();
}

const QPixmap* Thumbnails::picture(int row)
{
    const QPixmap* found = m_pictures.object(row);
    if (!found && !m_wanted.contains(row)) {
        m_wanted.append(row);
        m_timer.start(0);
    }
    return found;
}

void Thumbnails::startPage()
{
    m_wanted.clear();
}

void Thumbnails::forgetAll()
{
    m_pictures.clear();
    m_wanted.clear();
}

void Thumbnails::makeSome()
{
    QElapsedTimer clock;
    clock.start();
    while (!m_wanted.isEmpty() && clock.elapsed() < Slice) {
        const int row = m_wanted.takeFirst();
        m_pictures.insert(row, new QPixmap(make(row)));
    }
    if (!m_wanted.isEmpty()) {
        m_timer.start(0);
    }
    emit made();
}

QPixmap Thumbnails::make(int row) const
{
    const Zorv::Sprite* sprite = m_sprites ? m_sprites->sprite(row) : nullptr;
    const QImage image = sprite ? sprite->image() : QImage();
    return image.isNull() ? QPixmap() : QPixmap::fromImage(fitted(image, m_side));
}

}  // namespace App
