#include "cache/paletteuses.h"

#include "cache/palette.h"
#include "cache/palettes.h"
#include "cache/sprite.h"
#include "cache/sprites.h"

#include <QHash>

namespace Zorv {

QVector<int> paletteUses(const Palettes& palettes)
{
    QVector<int> uses(palettes.count());
    QHash<const Palette*, int> rows;
    for (int row = 0; row < uses.size(); ++row) {
        rows.insert(palettes.palette(row), row);
    }
    const Sprites* sprites = palettes.sprites();
    for (unsigned i = 0; sprites && i < sprites->count(); ++i) {
        const Sprite* sprite = sprites->sprite(int(i));
        const Palette* palette = sprite ? sprite->palette() : nullptr;
        const int row = palette ? rows.value(palette, -1) : -1;
        if (row >= 0) {
            ++uses[row];
        }
    }
    return uses;
}

}  // namespace Zorv
