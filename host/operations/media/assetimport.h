#pragma once

#include <zorv/animation/import/assetrequest.h>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// Whether sprites come if others among them are broken.
enum class BrokenSprites { KeepAll, AreLeft };

/// Brings sprites of one collection with their palettes into another, as one step of undo with a
/// title.
///
/// A sprite keeps its number if that is free, or if the one there is the same: picture, colours and
/// axis. Otherwise it takes the number of one that is the same, or the next free number. So what
/// was brought before is found again. Equal pixels are stored once; packed ones go over as they
/// are. A palette with the same colours is shared; another one keeps its number or takes the next
/// free one. Of several sprites with a number the first counts, as for a frame. Remaps stay where
/// they are.
Zorv::AssetResult importAssets(const Family::SpriteCollection* source,
                               Family::SpriteCollection* destination,
                               const QVector<Zorv::SpriteNumber>& sprites, const QString& title,
                               BrokenSprites broken = BrokenSprites::KeepAll);

/// The same between two projects of the family. If one of them has no sprites that could be read,
/// nothing is done, and `error` says so.
Zorv::AssetResult importAssets(const Zorv::AssetRequest& request);

}  // namespace Operations
