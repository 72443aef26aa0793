#pragma once

#include <QString>

namespace Family {

class SpriteCollection;

/// A new empty collection of the kind that fits the path: a `SpriteFolder` for an existing folder
/// or a path that ends in "/", otherwise a `SpriteFile`. The caller owns it.
SpriteCollection* newSprites(const QString& path);

/// A new collection with the content of a path. Null, with `error`, if it cannot be read; broken
/// records are listed in its `loadErrors()`.
SpriteCollection* openSprites(const QString& path, QString* error);

}  // namespace Family
