#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/progresshost.h"
#include "cli/results.h"
#include "cli/spriteediting.h"
#include "cli/spriteopening.h"
#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "operations/media/filepatterns.h"
#include "operations/media/imagefiles.h"
#include "operations/media/spriteexport.h"
#include "operations/media/spriteimport.h"
#include "operations/media/spritesheet.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/imagetransfer.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>

namespace Cli {

namespace {

using Family::FamilySprite;
using Family::PaletteColors;
using Family::SpriteCollection;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

QString paletteOf(const FamilySprite& sprite)
{
    return sprite.property(QStringLiteral("Palette")).toString();
}

QStringList columnsOf(const FamilySprite& sprite)
{
    return {QString::number(sprite.row),
            sprite.id().text(),
            QStringLiteral("%1x%2").arg(QString::number(sprite.size().width()),
                                        QString::number(sprite.size().height())),
            QStringLiteral("%1,%2").arg(QString::number(sprite.axis().x()),
                                        QString::number(sprite.axis().y())),
            paletteOf(sprite).isEmpty() ? QStringLiteral("-") : paletteOf(sprite),
            Family::codecName(sprite.codec()),
            sprite.fault()};
}

QJsonObject objectOf(const FamilySprite& sprite)
{
    QJsonObject object{{QStringLiteral("index"), sprite.row},
                       {QStringLiteral("group"), sprite.id().group},
                       {QStringLiteral("number"), sprite.id().number},
                       {QStringLiteral("width"), sprite.size().width()},
                       {QStringLiteral("height"), sprite.size().height()},
                       {QStringLiteral("axisX"), sprite.axis().x()},
                       {QStringLiteral("axisY"), sprite.axis().y()},
                       {QStringLiteral("bits"), sprite.bits()},
                       {QStringLiteral("codec"), Family::codecName(sprite.codec())}};
    if (!paletteOf(sprite).isEmpty()) {
        object.insert(QStringLiteral("palette"), paletteOf(sprite));
    }
    if (!sprite.fault().isEmpty()) {
        object.insert(QStringLiteral("fault"), sprite.fault());
    }
    return object;
}

/// The colours of `--palette`; `given` is null if the option is missing. False if there is no such
/// palette.
bool givenColors(const Invocation& invocation, const SpriteCollection& sprites,
                 PaletteColors* colors, const PaletteColors** given)
{
    *given = invocation.palette.isNull() ? nullptr : colors;
    QString error;
    if (!*given || Operations::findPalette(sprites, invocation.palette, colors, &error)) {
        return true;
    }
    complain(error);
    return false;
}

void writePlaces(const Operations::SpriteSheet& sheet, const SpriteCollection& sprites,
                 Output& output)
{
    JsonList list(output);
    for (const Operations::SpriteSheet::Place& place : sheet.places) {
        QJsonObject object = objectOf(*sprites.sprite(place.row));
        object.insert(QStringLiteral("x"), place.rect.x());
        object.insert(QStringLiteral("y"), place.rect.y());
        list.add(object);
    }
}

Operations::ImportRequest importRequest(const Invocation& invocation)
{
    Operations::ImportRequest request;
    const bool hasNames = !invocation.pattern.isNull() || invocation.group < 0;
    request.numbering.group = invocation.group;
    request.numbering.pattern = !hasNames                      ? QString()
                                : !invocation.pattern.isNull() ? invocation.pattern
                                                               : request.numbering.pattern;
    request.numbering.whenTaken =
        invocation.output.force ? Operations::WhenTaken::Replace : Operations::WhenTaken::Refuse;
    request.axis = invocation.axis;
    request.axisBase = invocation.axisBase;
    request.hasAxis = invocation.hasAxis;
    request.colors = invocation.colors;
    request.crops = invocation.crops;
    request.palette = invocation.palette;
    request.recolors = invocation.recolors;
    request.reverses = invocation.reverses;
    request.codec = Family::codecByName(invocation.coding);
    return request;
}

/// What is wrong with the options of an import; empty if they are valid.
QString importFault(const Invocation& invocation)
{
    using Family::PixelCodec;
    const PixelCodec codec = Family::codecByName(invocation.coding);
    if (!invocation.coding.isNull() && (codec == PixelCodec::None || codec == PixelCodec::Gif)) {
        return Text::tr("Expected lz5, rle8, pcx or png; found '%1'.").arg(invocation.coding);
    }
    if (invocation.recolors && invocation.palette.isNull()) {
        return Text::tr("Expected which palette takes the colours: '--palette'.");
    }
    if (invocation.colors > 0 && !invocation.palette.isNull()) {
        return Text::tr("Expected '--palette' or '--colours', not both.");
    }
    return {};
}

using Operations::SheetImages;

SheetImages cutFile(const QString& file, const SheetForm& form)
{
    SheetImages cut;
    if (form.hasFile) {
        const QString json = Operations::sheetFileBeside(file);
        cut.error = Text::tr("There is no JSON beside '%1'.").arg(file);
        return json.isEmpty() ? cut : Operations::readSheetFile(json);
    }
    const QImage picture = Zorv::readImageFile(file, &cut.error);
    return picture.isNull() ? cut : Operations::cutPicture(file, picture, form.cut);
}

/// Reads images from files, some of which are sheets. On failure returns false with the error in
/// `result`, which also receives warnings.
bool readImages(const Invocation& invocation, const QStringList& files,
                QVector<Operations::ImportImage>* images, Operations::MediaResult* result)
{
    for (const QString& file : files) {
        const bool isJson = QFileInfo(file).suffix().toLower() == QLatin1String("json");
        if (!isJson && !invocation.isSheet) {
            *images += Operations::imagesOfFiles({file});
            continue;
        }
        const SheetImages sheet =
            isJson ? Operations::readSheetFile(file) : cutFile(file, invocation.sheet);
        result->warnings += sheet.warnings;
        result->errors += sheet.error.isEmpty() ? QStringList() : QStringList(sheet.error);
        *images += sheet.images;
    }
    return result->errors.isEmpty();
}

}  // namespace

int listSprites(const Invocation& invocation, Output& output)
{
    const OpenSprites sprites(invocation.operands.first());
    if (!sprites) {
        return NotDone;
    }
    if (!invocation.json) {
        for (const auto& sprite : sprites->items()) {
            output.writeLine(columnsOf(*sprite));
        }
        return Fine;
    }
    JsonList list(output);
    for (const auto& sprite : sprites->items()) {
        list.add(objectOf(*sprite));
    }
    return Fine;
}

int exportSprites(const Invocation& invocation, Output&)
{
    ProgressHost host;
    const OpenSprites sprites(invocation.operands.first());
    PaletteColors colors;
    const PaletteColors* given = nullptr;
    if (!sprites || !givenColors(invocation, *sprites, &colors, &given)) {
        return NotDone;
    }
    Operations::OutputRequest request = invocation.output;
    request.place = invocation.operands.at(1);
    return tell(Operations::exportSprites(*sprites, invocation.selection, request, given));
}

int importSprites(const Invocation& invocation, Output&)
{
    QString error = importFault(invocation);
    if (!error.isEmpty()) {
        return wrongUsage(error);
    }
    const QString fileName = invocation.operands.first();
    const QStringList files = Operations::expandPatterns(invocation.operands.mid(1), &error);
    if (!error.isEmpty()) {
        return notDone(error);
    }
    return editSpriteFile(fileName, OpenSprites::OrNew, [&](auto* sprites) {
        QVector<Operations::ImportImage> images;
        Operations::MediaResult read;
        if (!readImages(invocation, files, &images, &read)) {
            return tell(read);
        }
        Operations::MediaResult result =
            Operations::importSprites(sprites, images, importRequest(invocation));
        result.warnings = read.warnings + result.warnings;
        return tell(result);
    });
}

int makeSheet(const Invocation& invocation, Output& output)
{
    ProgressHost host;
    const OpenSprites sprites(invocation.operands.first());
    PaletteColors colors;
    const PaletteColors* given = nullptr;
    if (!sprites || !givenColors(invocation, *sprites, &colors, &given)) {
        return NotDone;
    }
    Operations::OutputRequest request = invocation.output;
    request.place = invocation.operands.at(1);
    Operations::OutputFiles outputs;
    Operations::MediaResult refusal;
    if (!outputs.plan({QFileInfo(invocation.operands.first()).completeBaseName()}, request,
                      QByteArrayLiteral("PNG"), &refusal)) {
        return tell(refusal);
    }
    const Operations::SpriteSheet sheet =
        Operations::makeSpriteSheet(*sprites, invocation.selection, invocation.columns, given);
    Operations::MediaResult result;
    result.errors = sheet.broken;
    result.isCanceled = sheet.isCanceled;
    if (!sheet.isCanceled) {
        result.note(sheet.error.isEmpty() ? Operations::writeImage(sheet.image, outputs, 0)
                                          : Operations::Outcome(sheet.error));
    }
    if (invocation.json && result.done > 0) {
        writePlaces(sheet, *sprites, output);
    }
    return tell(result);
}

}  // namespace Cli
