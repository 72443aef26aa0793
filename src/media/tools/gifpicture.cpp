// Makes the indices of a frame's pixels and chooses its colour table.
//
// A changed pixel must have its colour in the table. An unchanged one can be transparent instead;
// if the table has its colour too, it is marked so that GIFPacker can choose. The global table is
// tried first. If it lacks a colour, the frame gets a table of its own.

#include "media/tools/gifpicture_p.h"

#include "media/tools/gifpacker_p.h"
#include "media/tools/gifwriter_p.h"

#include <gif_lib.h>

#include <algorithm>

namespace Zorv {

namespace {

const quint16 Missing = 0x8000;

/// Fills the pixels. False if the table lacks a colour.
bool fill(GIFPicture& picture, const GIFComposite& base, const GIFComposite& shown,
          const QRect& rect, const GIFTable& table)
{
    const int count = table.numberCount();
    const int transparent = table.transparent();
    QVector<quint16> changed(count);
    QVector<quint16> same(count);
    for (int i = 0; i < count; ++i) {
        const int index = table.indices()[i];
        changed[i] = index < 0 ? Missing : quint16(index);
        same[i] = changed[i];
        if (transparent >= 0 && index != transparent) {
            same[i] = quint16(index < 0 ? transparent : index | GIFPacker::Either);
        }
    }
    picture.transparent = transparent;
    picture.bits = qMax(2, GifBitSize(table.colors().size()));
    picture.pixels.resize(rect.width() * rect.height());
    const int width = rect.width();
    quint16* to = picture.pixels.data();
    quint16 all = 0;
    const quint16* const tables[] = {changed.constData(), same.constData()};
    GIFRows baseRows(base, rect);
    GIFRows shownRows(shown, rect);
    for (int y = rect.top(); y <= rect.bottom() && (all & Missing) == 0; ++y) {
        const GIFColorNumber* const a = baseRows.row(y);
        const GIFColorNumber* const b = shownRows.row(y);
        for (int x = 0; x < width; ++x) {
            to[x] = tables[a[x] == b[x]][b[x]];
            all |= to[x];
        }
        to += width;
    }
    return (all & Missing) == 0;
}

/// Collects the colour numbers of changed and of unchanged pixels.
void collect(const GIFComposite& base, const GIFComposite& shown, const QRect& rect,
             QVector<bool>& changed, QVector<bool>& same)
{
    const int width = rect.width();
    bool* const marks[] = {changed.data(), same.data()};
    GIFRows baseRows(base, rect);
    GIFRows shownRows(shown, rect);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const GIFColorNumber* const a = baseRows.row(y);
        const GIFColorNumber* const b = shownRows.row(y);
        for (int x = 0; x < width; ++x) {
            marks[a[x] == b[x]][b[x]] = true;
        }
    }
}

/// A local table with the colours of changed pixels and a transparent entry for unchanged ones.
/// Colours of unchanged pixels are added only as far as they fit without enlarging the table, or if
/// there is no room for a transparent entry.
GIFTable ownTable(const GIFComposite& base, const GIFComposite& shown, const QRect& rect,
                  const GIFAnimation& animation)
{
    QVector<bool> changed(animation.numberCount());
    QVector<bool> same(animation.numberCount());
    collect(base, shown, rect, changed, same);
    GIFTable table(animation.numberCount());
    const auto insert = [&table, &animation](const QVector<bool>& numbers, int limit) {
        for (int i = 0; i < numbers.size() && table.colors().size() < limit; ++i) {
            if (numbers[i]) {
                table.insert(GIFColorNumber(i), animation.color(GIFColorNumber(i)));
            }
        }
    };
    insert(changed, 256);
    if (same.contains(true)) {
        table.insert(0, 0);
        insert(same, table.transparent() < 0 ? 256 : paddedColors(table.colors(), 0).size());
    }
    return table;
}

}  // namespace

GIFPicture makePicture(const GIFComposite& base, const GIFComposite& shown, const QRect& rect,
                       const GIFTable& global, const GIFAnimation& animation)
{
    GIFPicture picture;
    if (!fill(picture, base, shown, rect, global)) {
        const GIFTable own = ownTable(base, shown, rect, animation);
        fill(picture, base, shown, rect, own);
        picture.colors = paddedColors(own.colors(), 0);
    }
    return picture;
}

}  // namespace Zorv
