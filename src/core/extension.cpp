#include "core/extension.h"

#include <QByteArray>

namespace Zorv {

Extension::~Extension() = default;

QByteArray Extension::name() const
{
    return {};
}

bool Extension::loadImage(QIODevice*, QImage&)
{
    return false;
}

bool Extension::loadPalette(QIODevice*, RGBA (&)[256])
{
    return false;
}

bool Extension::loadSound(QIODevice*, SoundSample&)
{
    return false;
}

bool Extension::saveImage(QIODevice*, const QImage&)
{
    return false;
}

bool Extension::savePalette(QIODevice*, const RGBA (&)[256])
{
    return false;
}

bool Extension::saveSound(QIODevice*, const SoundSample&)
{
    return false;
}

}  // namespace Zorv
