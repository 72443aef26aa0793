#pragma once

class QString;

namespace Family {
class SpriteCollection;
}

namespace Cli {

/// The sprites of a file or folder, open while a command works on them. Prints what is wrong with
/// them.
class OpenSprites
{
public:
    enum Kind { There, OrNew };

    /// With `OrNew`, a missing file counts as an empty one.
    explicit OpenSprites(const QString& path, Kind kind = There);
    ~OpenSprites();

    explicit operator bool() const { return m_sprites; }
    Family::SpriteCollection* get() const { return m_sprites; }
    Family::SpriteCollection* operator->() const { return m_sprites; }
    Family::SpriteCollection& operator*() const { return *m_sprites; }

    /// Saves the sprites if anything has changed; returns the status.
    int save(const QString& path) const;

private:
    OpenSprites(const OpenSprites&) = delete;
    OpenSprites& operator=(const OpenSprites&) = delete;

    Family::SpriteCollection* m_sprites = nullptr;
};

}  // namespace Cli
