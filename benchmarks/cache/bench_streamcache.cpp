#include "cache/crc64.h"
#include "cache/memorycache.h"
#include "support/bench.h"

#include <QRandomGenerator>

namespace {

const int Count = 20000;
const int ItemSize = 4096;
const int Rounds = 5;

int found = 0;  // keeps the results in use

QByteArray itemBytes(int number)
{
    QByteArray data(ItemSize, Qt::Uninitialized);
    QRandomGenerator random{quint32(number)};
    random.fillRange(reinterpret_cast<quint32*>(data.data()), ItemSize / 4);
    return data;
}

// Adds what is not there yet, as a collection does; every tenth is.
double addAll(const QVector<QByteArray>& contents, int count)
{
    Zorv::MemoryCache cache;
    const double time = Bench::once([&] {
        for (int i = 0; i < count; ++i) {
            const QByteArray& data = contents[i];
            if (cache.find(data, nullptr)) {
                ++found;
            } else {
                cache.addItem(data, 1, nullptr, 0);
            }
        }
    });
    cache.clear();
    return time;
}

}  // namespace

int main()
{
    QVector<QByteArray> contents;
    for (int i = 0; i < 2 * Count; ++i) {
        contents.append(i % 10 == 9 ? contents[i / 2] : itemBytes(i));
    }
    const double once = Bench::medianOf(Rounds, [&] { return addAll(contents, Count); });
    const double twice = Bench::medianOf(Rounds, [&] { return addAll(contents, 2 * Count); });
    Bench::figure("adding 20000 items of 4 KiB, each searched first", once, "ms");
    Bench::ratio("adding 40000 / 20000", twice, once, 2.2);
    std::printf("(%d found)\n", found);
    return 0;
}
