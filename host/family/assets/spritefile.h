#pragma once

#include "family/assets/spritecollection.h"

#include <zorv/core/filewatchobject.h>

namespace Family {

/// A collection in a sprite file (`.sprites`, see docs/formats.md).
///
/// Opening reads tables and takes packed pixels over; none is unpacked. A file that was not changed
/// is written back byte by byte the same.
class SpriteFile final : public SpriteCollection, public Zorv::FileWatchObject
{
    Q_OBJECT

public:
    SpriteFile();
    ~SpriteFile() override;

    /// Fails for what is no sprite file, or is cut off in its tables. Broken records are no
    /// failure, but `loadErrors()`.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override { return SpriteCollection::fileName(); }

    /// The file has changed on disk, and the person wants it: reads it, without undo. If that
    /// fails, the person is told, and all stays as it is.
    bool reload() override;
};

}  // namespace Family
