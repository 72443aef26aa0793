#pragma once

#include "family/assets/spritecollection.h"
#include "family/nodes/framedata.h"
#include "family/stage/framepose.h"

#include <zorv/animation/followedanimation.h>
#include <zorv/cache/spriteprovider.h>

#include <QPointer>

namespace Family {

class FrameNode;

/// The sprite of one frame of an animation, for the stage.
///
/// The frame is told by its place in the animation. `changed()` comes at once when the frame, its
/// text, its sprite, palettes or the collection change or go, so that a stage never holds a sprite
/// that has died. The sprite hangs on the secondary cross (parent 1), which stands at the frame's
/// offset and is for the stage's owner to move there. Main thread only.
class FrameProvider final : public Zorv::SpriteProvider
{
    Q_OBJECT

public:
    /// How the sprite stands: relative to a cross, not to be moved by itself.
    static constexpr int SpriteMode = 2;
    static constexpr int SpriteParent = 1;

    explicit FrameProvider(QObject* parent = nullptr);

    /// Null for none; not owned. Keeps the place of the frame.
    void setAnimation(Zorv::FollowedAnimation* animation);

    /// Null for none; not owned.
    void setSprites(SpriteCollection* sprites);

    /// The place among the frames; one outside shows nothing.
    void setFrame(int index);
    int frameIndex() const { return m_index; }

    /// Null if there is none at that place. Good until the next edit.
    FrameNode* frame() const;

    /// Null if the frame or its sprite is absent.
    FamilySprite* sprite() const { return m_sprite; }

    /// How the sprite stands, and the frame's offset also without a sprite.
    const FramePose& pose() const { return m_pose; }

    /// For `Zorv::GraphicsRenderer::replaceOnionSkinSprite()`.
    QPoint onionOffset() const;

    unsigned count() const override { return m_sprite ? 1 : 0; }
    Zorv::Sprite* at(unsigned index) const override;
    QVariant property(unsigned index, unsigned key) const override;

private:
    void update(bool always);
    void follow();
    void spritesChanged();
    void drop();
    void close();
    void resetGo();
    void rowsGo(const QModelIndex& parent, int first, int last);

    QPointer<Zorv::FollowedAnimation> m_animation;
    QPointer<SpriteCollection> m_sprites;
    FamilySprite* m_sprite = nullptr;
    FramePose m_pose;
    int m_index = 0;
    bool m_isReset = false;  // the collection is being replaced
};

}  // namespace Family
