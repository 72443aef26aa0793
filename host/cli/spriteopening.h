#pragma once

class QString;

namespace Family {
class SpriteCollection;
}

namespace Cli {

/// The sprites of a file or folder while a command works on them. What is wrong with them is told.
class OpenSprites
{
public:
    enum Kind { There, OrNew };

    /// With `OrNew` a file that is not there is an empty one.
    explicit OpenSprites(const QString& path, Kind kind = There);
    ~OpenSprites();

    explicit operator bool() const { return m_sprites; }
    Family::SpriteCollection* get() const { return m_sprites; }
    Family::SpriteCollection* operator->() const { return m_sprites; }
    Family::SpriteCollection& operator*() const { return *m_sprites; }

    /// Writes them if anything has changed; gives the status.
    int save(const QString& path) const;

private:
    OpenSprites(const OpenSprites&) = delete;
    OpenSprites& operator=(const OpenSprites&) = delete;

    Family::SpriteCollection* m_sprites = nullptr;
};

}  // namespace Cli
