#include "cache/crc64.h"
#include "support/bench.h"

#include <QByteArray>
#include <QRandomGenerator>

#include <array>
#include <cstdio>

#ifdef ZORV_WITH_ISAL
#include <isa-l/crc64.h>
#endif

namespace {

const int Size = 16 * 1024 * 1024;
const int Rounds = 15;

unsigned long long checkSum = 0;  // keeps the results in use

// The form with one table, a byte a step.
unsigned long long byteCrc(const unsigned char* data, unsigned length)
{
    static const auto table = [] {
        std::array<unsigned long long, 256> result{};
        for (unsigned i = 0; i < 256; ++i) {
            unsigned long long value = i;
            for (int bit = 0; bit < 8; ++bit) {
                value = (value >> 1) ^ ((value & 1) ? 0x95AC9329AC4BC9B5ULL : 0);
            }
            result[i] = value;
        }
        return result;
    }();
    unsigned long long result = ~0ULL;
    for (unsigned i = 0; i < length; ++i) {
        result = (result >> 8) ^ table[(result ^ data[i]) & 255];
    }
    return result;
}

}  // namespace

int main()
{
    QByteArray data(Size, Qt::Uninitialized);
    QRandomGenerator random(64);
    random.fillRange(reinterpret_cast<quint32*>(data.data()), Size / 4);
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());

    const double fast = Bench::median(Rounds, [&] { checkSum += Zorv::crc64(bytes, Size); });
    const double slow = Bench::median(Rounds, [&] { checkSum += byteCrc(bytes, Size); });
    Bench::figure("crc64 of 16 MiB", Size / fast / 1e6, "GB/s");
    Bench::ratio("crc64 / its form with one table, a byte a step", fast, slow, 0.2);
#ifdef ZORV_WITH_ISAL
    const double isal = Bench::median(Rounds, [&] { checkSum += crc64_ecma_refl(0, bytes, Size); });
    Bench::ratio("crc64 / libisal's crc64_ecma_refl (another polynomial)", fast, isal);
#else
    std::puts("libisal is not installed: no ratio to it");
#endif
    std::printf("(%llx)\n", checkSum);
    return 0;
}
