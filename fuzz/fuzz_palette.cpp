#include "media/palettefiles.h"
#include "media/paletteobject.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

using Zorv::PaletteObject;
using Zorv::RGBA;

namespace {

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

void read(QByteArray bytes, const char* format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    RGBA palette[256] = {};
    PaletteObject object(palette);
    int changes = 0;
    QObject::connect(&object, &PaletteObject::changed, [&changes] { ++changes; });
    const bool isRead = object.fromFile(&buffer, format);
    require(changes == int(isRead) && palette[0].a == 0);
    if (isRead) {
        // A colour of a file is found at an entry that equals it.
        for (int i = 0; i < 256; i += 51) {
            const RGBA color = palette[i];
            const RGBA found = palette[object.index(color)];
            require(found.r == color.r && found.g == color.g && found.b == color.b);
        }
    }
}

}  // namespace

/// Any bytes are read as a palette file of each kind: those that are told by their first
/// bytes, then those that a name tells.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    for (const char* format : {"PAL", "ACO", "ACT"}) {
        read(bytes, format);
    }
    return 0;
}
