#pragma once

#include "family/assets/assetid.h"

#include <QStringList>
#include <QVector>

#include <functional>

namespace Operations {

/// Where a file goes: a sprite or sound, and which one of several with its identifier.
struct ImportTarget
{
    Family::AssetId id;
    int copy = 1;
};

/// What sprites, palettes and sounds are called as files, without a suffix: "GROUP-NUMBER", and
/// "GROUP-NUMBER_2" for the second of one identifier.
QStringList exportNames(const QVector<Family::AssetId>& ids);

/// Reads such a name, with anything that is no digit in front, as in "hero-200-3.png", or one of a
/// folder of sprites, "200_3.png". False for any other.
bool importTarget(const QString& fileName, ImportTarget* target);

/// What PNG files tell of a sprite besides its pixels, under these keys of `QImage::text()`: the
/// axis as "X,Y", and the identifier of the palette.
constexpr char AxisText[] = "axis";
constexpr char PaletteText[] = "palette";

/// Where each of some files goes: by its name or, with a group, to the next free number of that,
/// which `freeId` gives from an identifier on. Empty, with `error`, if a name does not tell it, two
/// files go to the same place, or the group is full.
QVector<ImportTarget> importTargets(const QStringList& files, int group,
                                    const std::function<Family::AssetId(Family::AssetId)>& freeId,
                                    QString* error);

/// An identifier for each file that is about to be added, each another one: what its name tells, or
/// the next one that is free; for a name that tells none the first that is, from `first` on.
/// `freeId` gives the free one at an identifier or behind it.
QVector<Family::AssetId> newIds(const QStringList& files,
                                const std::function<Family::AssetId(Family::AssetId)>& freeId,
                                Family::AssetId first = {});

}  // namespace Operations
