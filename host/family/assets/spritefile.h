#pragma once

#include "family/assets/spritecollection.h"

#include <zorv/core/filewatchobject.h>

namespace Family {

/// A collection in a sprite file (`.sprites`, see docs/formats.md).
///
/// Opening reads tables and copies packed pixels without unpacking any. An unchanged file is
/// written back byte for byte.
class SpriteFile final : public SpriteCollection, public Zorv::FileWatchObject
{
    Q_OBJECT

public:
    SpriteFile();
    ~SpriteFile() override;

    /// Fails if it is not a sprite file or its tables are truncated. Broken records are no failure;
    /// see `loadErrors()`.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override { return SpriteCollection::fileName(); }

    /// Reads the file again, without undo, after it has changed on disk and the user agreed. If
    /// that fails, shows a message and changes nothing.
    bool reload() override;
};

}  // namespace Family
