#pragma once

#include "family/assets/assetid.h"

#include <QStringList>
#include <QVector>

#include <functional>

namespace Operations {

/// The target of an import: a sprite or sound, and its index among several with the same
/// identifier.
struct ImportTarget
{
    Family::AssetId id;
    int copy = 1;
};

/// File names for sprites, palettes and sounds, without a suffix: "GROUP-NUMBER", and
/// "GROUP-NUMBER_2" for the second one with the same identifier.
QStringList exportNames(const QVector<Family::AssetId>& ids);

/// Parses such a name. Any prefix that does not end in a digit is allowed, as in "hero-200-3.png".
/// So is a name from a folder of sprites, such as "200_3.png". False for any other name.
bool importTarget(const QString& fileName, ImportTarget* target);

/// Keys of `QImage::text()` for what PNG files store of a sprite besides its pixels: the axis as
/// "X,Y", and the identifier of the palette.
constexpr char AxisText[] = "axis";
constexpr char PaletteText[] = "palette";

/// The target of each file: from its name or, with a group, the next free number of the group,
/// which `freeId` finds starting at an identifier. Empty, with `error`, if a name has no number,
/// two files have the same target, or the group is full.
QVector<ImportTarget> importTargets(const QStringList& files, int group,
                                    const std::function<Family::AssetId(Family::AssetId)>& freeId,
                                    QString* error);

/// A unique identifier for each file to be added: the one in its name if that is free, else the
/// next free one. A file without a number in its name gets the first free one from `first` on.
/// `freeId` returns the first free identifier at or after the given one.
QVector<Family::AssetId> newIds(const QStringList& files,
                                const std::function<Family::AssetId(Family::AssetId)>& freeId,
                                Family::AssetId first = {});

}  // namespace Operations
