#pragma once

#include <zorv/animation/import/assetrequest.h>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// What to do with the other sprites if some of them are broken.
enum class BrokenSprites { KeepAll, AreLeft };

/// Copies sprites of one collection, with their palettes, into another, as one undo step named
/// `title`.
///
/// A sprite keeps its number if that is free, or if the sprite there is equal: same picture,
/// colours and axis. Otherwise it takes the number of an equal sprite, or the next free number. So
/// a repeated import finds what an earlier one added. Equal pixels are stored once; compressed
/// pixels are copied as they are. A palette with equal colours is shared. Any other palette keeps
/// its number or takes the next free one. If several sprites have the same number, the first one
/// counts, as it does for a frame. Remaps are not copied.
Zorv::AssetResult importAssets(const Family::SpriteCollection* source,
                               Family::SpriteCollection* destination,
                               const QVector<Zorv::SpriteNumber>& sprites, const QString& title,
                               BrokenSprites broken = BrokenSprites::KeepAll);

/// The same between two projects of the family. If one of them has no readable sprites, nothing is
/// done and `error` says so.
Zorv::AssetResult importAssets(const Zorv::AssetRequest& request);

}  // namespace Operations
