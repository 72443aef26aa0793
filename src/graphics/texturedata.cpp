#include "graphics/glcontext.h"
#include "graphics/texture.h"

#include <QImage>

#include <algorithm>
#include <cstring>

namespace Zorv {

namespace {

constexpr qint64 MaxBytes = 1 << 30;  // RGBA of 16,384 by 16,384

int powerOfTwo(int side)
{
    int power = 1;
    while (power < side && power < (1 << 30)) {
        power *= 2;
    }
    return power;
}

void writeIndices(const QImage& image, int step, char* out)
{
    for (int y = image.height() - 1; y >= 0; --y, out += step) {
        std::memcpy(out, image.constScanLine(y), size_t(image.width()));
    }
}

/// `step` is the number of bytes per source row. Only images of 32 bits per pixel come out right.
/// Other steps can run past the end; zeros are written there.
void writeColors(const QImage& image, qint64 step, char* out)
{
    const auto row = size_t(image.width()) * 4;
    const auto* const pixels = reinterpret_cast<const char*>(image.constBits());
    for (qint64 y = image.height() - 1; y >= 0; --y, out += row) {
        const qint64 left = std::max<qint64>(image.sizeInBytes() - y * step, 0);
        const size_t count = std::min(row, size_t(left)) / 4;
        for (size_t i = 0; i < count; ++i) {
            QRgb pixel;
            std::memcpy(&pixel, pixels + y * step + qint64(i) * 4, 4);
            const RGBA bytes = {quint8(qRed(pixel)), quint8(qGreen(pixel)), quint8(qBlue(pixel)),
                                quint8(qAlpha(pixel))};
            std::memcpy(out + i * 4, &bytes, 4);
        }
    }
}

}  // namespace

void Texture::dataFromImage(const QImage& image, ImageData& data)
{
    data.indexed = image.format() == QImage::Format_Indexed8;
    data.size = data.textureSize = image.size();
    data.bytes.clear();
    if (image.isNull()) {
        return;
    }
    if (!s_hasNPOT) {
        data.textureSize = QSize(powerOfTwo(image.width()), powerOfTwo(image.height()));
    }
    const qint64 bytes =
        qint64(data.textureSize.width()) * data.textureSize.height() * (data.indexed ? 1 : 4);
    if (bytes > MaxBytes) {
        return;
    }
    if (data.indexed) {
        data.bytes.fill(0, int(bytes));
        writeIndices(image, data.textureSize.width(), data.bytes.data());
        return;
    }
    const QImage colors = image.convertToFormat(QImage::Format_ARGB32);
    if (!colors.isNull()) {
        data.bytes.fill(0, int(bytes));
        writeColors(colors, image.bytesPerLine(), data.bytes.data());
    }
}

}  // namespace Zorv
