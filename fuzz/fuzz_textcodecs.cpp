#include "code/codecs/textcodecs.h"

#include <cstdint>
#include <cstdlib>

using Zorv::TextCodecs;

static void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

/// Bytes of any kind are decoded by detection, and by a codec that gives them back.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const auto data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), int(size));

    int detected = -1;
    TextCodecs::stringFromData(data, &detected);
    require(detected >= 0 && detected < TextCodecs::count());

    const int faithful = TextCodecs::faithfulCodec(data);
    require(TextCodecs::isFaithful(data, faithful));

    int codec = faithful;
    const QString text = TextCodecs::stringFromData(data, &codec);
    require(codec == faithful);
    require(TextCodecs::firstUnencodable(text, faithful) == -1);
    return 0;
}
