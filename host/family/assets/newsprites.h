#pragma once

#include <QString>

namespace Family {

class SpriteCollection;

/// An empty collection, the caller's, of the kind that a path asks for: a `SpriteFolder` for a
/// folder that is there or a path that ends in "/", else a `SpriteFile`.
SpriteCollection* newSprites(const QString& path);

/// One with the content of a path. Null with `error` if it cannot be read; broken records are in
/// its `loadErrors()`.
SpriteCollection* openSprites(const QString& path, QString* error);

}  // namespace Family
