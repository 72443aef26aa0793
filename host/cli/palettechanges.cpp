#include "cli/cli.h"
#include "cli/command.h"
#include "cli/paletteselection.h"
#include "cli/results.h"
#include "cli/spriteediting.h"
#include "family/assets/spritecollection.h"
#include "operations/media/paletteedits.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <numeric>

namespace Cli {

namespace {

using Operations::MediaResult;
using Zorv::PaletteKey;
using Zorv::PaletteOrder;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// An edit of the palettes in these rows.
using PaletteEdit = std::function<MediaResult(Family::SpriteCollection*, const QVector<int>& rows)>;

/// Edits the selected palettes of the first operand.
int editPalettes(const Invocation& invocation, const PaletteEdit& edit)
{
    return editSpriteFile(invocation.operands.first(), OpenSprites::There, [&](auto* sprites) {
        const QVector<int> rows = chosenPalettes(*sprites, invocation);
        return rows.isEmpty() ? int(NotDone) : tell(edit(sprites, rows));
    });
}

bool readSlot(const QString& text, quint8* slot)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    *slot = quint8(number);
    return isNumber && number >= 0 && number <= 255;
}

bool readKey(const QString& name, PaletteKey* key)
{
    static const QHash<QString, PaletteKey> keys{
        {QStringLiteral("hue"), PaletteKey::Hue},
        {QStringLiteral("lightness"), PaletteKey::Lightness},
        {QStringLiteral("chroma"), PaletteKey::Chroma},
        {QStringLiteral("red"), PaletteKey::Red},
        {QStringLiteral("green"), PaletteKey::Green},
        {QStringLiteral("blue"), PaletteKey::Blue},
        {QStringLiteral("alpha"), PaletteKey::Alpha}};
    *key = keys.value(name);
    return keys.contains(name);
}

/// Parses slots in their new order, such as "7,3,5". Each slot may occur once. They keep the places
/// that they occupy together.
bool readOrder(const QString& text, PaletteOrder* order)
{
    QVector<quint8> wanted;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        quint8 slot = 0;
        if (!readSlot(part, &slot) || wanted.contains(slot)) {
            return false;
        }
        wanted.append(slot);
    }
    QVector<quint8> places = wanted;
    std::sort(places.begin(), places.end());
    *order = Zorv::sameOrder();
    for (int i = 0; i < wanted.size(); ++i) {
        (*order)[places[i]] = wanted[i];
    }
    return true;
}

/// The order that results from sorting the first palette.
PaletteOrder orderBy(PaletteKey key, const Family::FamilyPalette& palette,
                     const Invocation& invocation)
{
    Zorv::PaletteSorting sorting;
    sorting.setFlag(Zorv::PaletteSort::Descending, invocation.isDescending);
    // Slots named by the user are all sorted, including the ones normally left in place.
    const bool isNamed = invocation.lastSlot >= 0;
    sorting.setFlag(Zorv::PaletteSort::MovesFirst, isNamed);
    sorting.setFlag(Zorv::PaletteSort::MovesTransparent, isNamed);
    bool selection[256];
    for (int i = 0; i < 256; ++i) {
        selection[i] = !isNamed || (i >= invocation.firstSlot && i <= invocation.lastSlot);
    }
    return Zorv::sortedOrder(palette.state.colors.data(), key, sorting, selection);
}

}  // namespace

int reorderPalette(const Invocation& invocation, Output&)
{
    const QString& wanted = invocation.operands.at(1);
    PaletteKey key = PaletteKey::Hue;
    PaletteOrder order{};
    const bool isKey = readKey(wanted, &key);
    if (!isKey && !readOrder(wanted, &order)) {
        return wrongUsage(Text::tr("Expected hue, lightness, chroma, red, green, blue or alpha, or "
                                   "different slots such as 7,3,5; found '%1'.")
                              .arg(wanted));
    }
    return editPalettes(invocation, [&](auto* sprites, QVector<int> rows) {
        const auto* palettes = sprites->palettes();
        const PaletteOrder chosen =
            isKey ? orderBy(key, *palettes->palette(rows.first()), invocation) : order;
        if (invocation.hasCostumes) {
            rows.resize(palettes->count());
            std::iota(rows.begin(), rows.end(), 0);
        }
        return Operations::reorderPalettes(sprites, rows, chosen);
    });
}

int rampPalette(const Invocation& invocation, Output&)
{
    quint8 first = 0;
    quint8 last = 0;
    if (!readSlot(invocation.operands.at(1), &first) ||
        !readSlot(invocation.operands.at(2), &last)) {
        return wrongUsage(Text::tr("Expected two slots from 0 to 255; found '%1' and '%2'.")
                              .arg(invocation.operands.at(1), invocation.operands.at(2)));
    }
    return editPalettes(invocation, [&](auto* sprites, const QVector<int>& rows) {
        return Operations::fillRamp(sprites, rows, first, last, invocation.space);
    });
}

}  // namespace Cli
