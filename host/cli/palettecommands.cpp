#include "cli/changing.h"
#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/paletteselection.h"
#include "cli/progresshost.h"
#include "cli/results.h"
#include "cli/spriteopening.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"
#include "operations/media/filepatterns.h"
#include "operations/media/paletteuses.h"
#include "operations/media/palettework.h"
#include "operations/media/spriteexport.h"

#include <zorv/media/palettefile.h>

#include <QColor>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QJsonObject>

#include <algorithm>
#include <memory>

namespace Cli {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

bool isSpriteFile(const QString& path)
{
    return QFileInfo(path).suffix() == QLatin1String("sprites") || QFileInfo(path).isDir();
}

QString nameOf(const Zorv::RGBA& color)
{
    return QColor(color.r, color.g, color.b).name();
}

void listColors(const Zorv::RGBA (&colors)[256], bool json, Output& output)
{
    if (!json) {
        for (int i = 0; i < 256; ++i) {
            output.writeLine({QString::number(i), nameOf(colors[i]), QString::number(colors[i].a)});
        }
        return;
    }
    JsonList list(output);
    for (int i = 0; i < 256; ++i) {
        list.add({{QStringLiteral("index"), i},
                  {QStringLiteral("colour"), nameOf(colors[i])},
                  {QStringLiteral("alpha"), colors[i].a}});
    }
}

int listOfSprites(const Invocation& invocation, Output& output)
{
    const OpenSprites sprites(invocation.operands.first());
    if (!sprites) {
        return NotDone;
    }
    QHash<const Zorv::Palette*, int> uses;
    for (const auto& sprite : sprites->items()) {
        ++uses[sprite->palette()];
    }
    const auto& palettes = sprites->palettes()->items();
    if (!invocation.json) {
        for (const auto& palette : palettes) {
            output.writeLine({QString::number(palette->row), palette->id().text(),
                              QString::number(palette->colorCount()),
                              QString::number(uses.value(palette.get()))});
        }
        return Fine;
    }
    JsonList list(output);
    for (const auto& palette : palettes) {
        list.add({{QStringLiteral("index"), palette->row},
                  {QStringLiteral("group"), palette->id().group},
                  {QStringLiteral("number"), palette->id().number},
                  {QStringLiteral("colours"), palette->colorCount()},
                  {QStringLiteral("sprites"), uses.value(palette.get())}});
    }
    return Fine;
}

void writeUses(const Family::SpriteCollection& sprites, const Operations::PaletteUseCount& count,
               const Invocation& invocation, Output& output)
{
    std::unique_ptr<JsonList> list(invocation.json ? new JsonList(output) : nullptr);
    for (const auto& palette : sprites.palettes()->items()) {
        const Family::AssetId id = palette->id();
        for (int i = 0; i < 256 && invocation.selection.contains(id.group, id.number); ++i) {
            const auto& uses = count.palettes[palette->row].entries[size_t(i)];
            const QString color = nameOf(palette->state.colors[size_t(i)]);
            if (uses.sprites > 0 && list) {
                list->add({{QStringLiteral("palette"), id.text()},
                           {QStringLiteral("slot"), i},
                           {QStringLiteral("colour"), color},
                           {QStringLiteral("sprites"), uses.sprites},
                           {QStringLiteral("pixels"), uses.pixels}});
            } else if (uses.sprites > 0) {
                output.writeLine({id.text(), QString::number(i), color,
                                  QString::number(uses.sprites), QString::number(uses.pixels)});
            }
        }
    }
}

/// Replaces the colours of palettes in a sprite file.
int applyToSprites(const Invocation& invocation, const Zorv::RGBA (&colors)[256])
{
    const QString fileName = invocation.operands.at(1);
    const OpenSprites sprites(fileName);
    if (!sprites) {
        return NotDone;
    }
    const QVector<int> rows = chosenPalettes(*sprites, invocation);
    if (rows.isEmpty()) {
        return NotDone;
    }
    Operations::OutputFiles outputs;
    Operations::MediaResult refusal;
    if (!outputs.plan({fileName}, invocation.output, {}, &refusal)) {
        return tell(refusal);
    }
    sprites->beginChange(Text::tr("Apply palette"));
    for (const int row : rows) {
        sprites->palettes()->palette(row)->setColors(colors, invocation.adapts
                                                                 ? int(Zorv::Palette::AdaptPixels)
                                                                 : int(Zorv::Palette::KeepPixels));
    }
    sprites->endChange();
    return sprites.save(outputs.path(0));
}

}  // namespace

int listPalettes(const Invocation& invocation, Output& output)
{
    const QString fileName = invocation.operands.first();
    if (isSpriteFile(fileName)) {
        return listOfSprites(invocation, output);
    }
    Zorv::RGBA colors[256];
    QString error;
    if (!Zorv::loadPaletteFile(fileName, colors, &error)) {
        return notDone(error);
    }
    listColors(colors, invocation.json, output);
    return Fine;
}

int listUses(const Invocation& invocation, Output& output)
{
    ProgressHost host;
    const OpenSprites sprites(invocation.operands.first());
    if (!sprites) {
        return NotDone;
    }
    const Operations::PaletteUseCount count = Operations::countUses(*sprites);
    Operations::MediaResult result;
    for (const int row : count.broken) {
        const auto* sprite = sprites->sprite(row);
        result.errors.append(Text::tr("Sprite %1 is not counted: %2.")
                                 .arg(sprite->id().text(), sprite->pixelFault()));
    }
    result.isCanceled = count.isCanceled;
    if (!count.isCanceled) {
        writeUses(*sprites, count, invocation, output);
    }
    return tell(result);
}

int exportPalettes(const Invocation& invocation, Output&)
{
    const OpenSprites sprites(invocation.operands.first());
    if (!sprites) {
        return NotDone;
    }
    Operations::OutputRequest request = invocation.output;
    request.place = invocation.operands.at(1);
    return tell(Operations::exportPalettes(*sprites, invocation.selection, request));
}

int applyPalette(const Invocation& invocation, Output&)
{
    Zorv::RGBA colors[256];
    QString error;
    if (!Zorv::loadPaletteFile(invocation.operands.first(), colors, &error)) {
        return notDone(error);
    }
    ProgressHost host;
    const QStringList names = invocation.operands.mid(1);
    if (std::any_of(names.begin(), names.end(), isSpriteFile)) {
        // If the result goes elsewhere, only that place is locked.
        const auto others = invocation.output.place.isEmpty() ? Operations::Others::Wait
                                                              : Operations::Others::GoAhead;
        return names.size() == 1
                   ? changeFile(
                         names.first(), [&] { return applyToSprites(invocation, colors); }, others)
                   : wrongUsage(Text::tr("Expected one sprite file, or images alone."));
    }
    const QStringList files = Operations::expandPatterns(names, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    const QVector<Zorv::RGBA> given(std::begin(colors), std::end(colors));
    return tell(Operations::editImages(files, invocation.output,
                                       invocation.adapts ? Operations::adaptingImage(given)
                                                         : Operations::recoloringImage(given)));
}

int convertPalettes(const Invocation& invocation, Output&)
{
    QString error;
    const QStringList files = Operations::expandPatterns(invocation.operands, &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    ProgressHost host;
    return tell(Operations::convertPalettes(files, invocation.output));
}

}  // namespace Cli
