#pragma once

#include "assets/spritecollection.h"

namespace Family {

/// A collection of loose images in a folder, a sprite each (see docs/formats.md).
///
/// Saving writes what has changed, each file whole or not at all; files of sprites that were
/// removed are deleted last. Pixels stay in their files until they are shown.
class SpriteFolder final : public SpriteCollection
{
    Q_OBJECT

public:
    SpriteFolder();
    ~SpriteFolder() override;

    /// `fileName` is the folder. An image that cannot be read is told in `loadErrors()`.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
};

}  // namespace Family
