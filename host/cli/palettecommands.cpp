#include "cli/changing.h"
#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/progresshost.h"
#include "cli/results.h"
#include "cli/spriteopening.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"
#include "operations/media/filepatterns.h"
#include "operations/media/palettework.h"
#include "operations/media/spriteexport.h"

#include <QColor>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QJsonObject>

#include <algorithm>

namespace Cli {

namespace {

using Family::FamilyPalette;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

bool isSpriteFile(const QString& path)
{
    return QFileInfo(path).suffix() == QLatin1String("sprites") || QFileInfo(path).isDir();
}

void listColors(const Zorv::RGBA (&colors)[256], bool json, Output& output)
{
    const auto form = [](const Zorv::RGBA& color) {
        return QColor(color.r, color.g, color.b).name();
    };
    if (!json) {
        for (int i = 0; i < 256; ++i) {
            output.writeLine({QString::number(i), form(colors[i]), QString::number(colors[i].a)});
        }
        return;
    }
    JsonList list(output);
    for (int i = 0; i < 256; ++i) {
        list.add({{QStringLiteral("index"), i},
                  {QStringLiteral("colour"), form(colors[i])},
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

/// The palettes that a selection means; all others are left as they are.
QVector<FamilyPalette*> selectedPalettes(const Family::SpriteCollection& sprites,
                                         const Operations::Selection& selection)
{
    QVector<FamilyPalette*> selected;
    for (const auto& palette : sprites.palettes()->items()) {
        if (selection.contains(palette->id().group, palette->id().number)) {
            selected.append(palette.get());
        }
    }
    return selected;
}

/// Gives palettes of a sprite file other colours.
int applyToSprites(const Invocation& invocation, const Zorv::RGBA (&colors)[256])
{
    const QString fileName = invocation.operands.at(1);
    const OpenSprites sprites(fileName);
    if (!sprites) {
        return NotDone;
    }
    const QVector<FamilyPalette*> palettes = selectedPalettes(*sprites, invocation.selection);
    if (palettes.isEmpty() || (palettes.size() > 1 && invocation.selection.isAll())) {
        return notDone(palettes.isEmpty()
                           ? Text::tr("There is no such palette.")
                           : Text::tr("'%1' has %2 palettes. Tell which one is meant, as in "
                                      "'--select 1,1'.")
                                 .arg(fileName, QString::number(palettes.size())));
    }
    Operations::OutputFiles outputs;
    Operations::MediaResult refusal;
    if (!outputs.plan({fileName}, invocation.output, {}, &refusal)) {
        return tell(refusal);
    }
    sprites->beginChange(Text::tr("Apply palette"));
    for (FamilyPalette* palette : palettes) {
        palette->setColors(colors, invocation.adapts ? int(Zorv::Palette::AdaptPixels)
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
    if (!Operations::readPalette(fileName, colors, &error)) {
        return notDone(error);
    }
    listColors(colors, invocation.json, output);
    return Fine;
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
    if (!Operations::readPalette(invocation.operands.first(), colors, &error)) {
        return notDone(error);
    }
    ProgressHost host;
    const QStringList names = invocation.operands.mid(1);
    if (std::any_of(names.begin(), names.end(), isSpriteFile)) {
        // What is written elsewhere takes the lock of that place.
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
