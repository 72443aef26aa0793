#include "graphics/texture.h"

#include <QImage>

#include <utility>

namespace Zorv {

Texture::Texture() = default;

Texture::Texture(const QImage& image)
{
    fromImage(image);
}

Texture::Texture(const RGBA* palette)
{
    fromPalette(palette);
}

Texture::Texture(const ImageData& data)
{
    fromData(data);
}

Texture::~Texture() = default;

void Texture::fromImage(const QImage& image)
{
    ImageData data;
    dataFromImage(image, data);
    fromData(data);
}

void Texture::fromPalette(const RGBA*) {}

void Texture::fromData(const ImageData&) {}

void Texture::dataFromImage(const QImage&, ImageData&) {}

void Texture::reset() {}

void Texture::swap(Texture& other)
{
    std::swap(id, other.id);
    std::swap(m_isStale, other.m_isStale);
}

}  // namespace Zorv
