#include "family/stage/frameprovider.h"

#include "family/nodes/framenode.h"

namespace Family {

FrameProvider::FrameProvider(QObject* parent) : SpriteProvider(parent) {}

void FrameProvider::setAnimation(Zorv::FollowedAnimation* animation)
{
    if (m_animation) {
        m_animation->disconnect(this);
    }
    m_animation = animation;
    if (animation) {
        connect(animation, &Zorv::FollowedAnimation::changed, this, &FrameProvider::follow);
        connect(animation, &QObject::destroyed, this, &FrameProvider::follow);
    }
    update(true);
}

void FrameProvider::setSprites(SpriteCollection* sprites)
{
    if (sprites == m_sprites) {
        return;
    }
    if (m_sprites) {
        m_sprites->disconnect(this);
    }
    m_sprites = sprites;
    m_isReset = false;
    if (sprites) {
        connect(sprites, &QAbstractItemModel::rowsAboutToBeRemoved, this, &FrameProvider::rowsGo);
        connect(sprites, &QAbstractItemModel::modelAboutToBeReset, this, &FrameProvider::resetGo);
        connect(sprites, &QAbstractItemModel::modelReset, this, [this] { m_isReset = false; });
        connect(sprites, &SpriteCollection::closing, this, &FrameProvider::close);
        connect(sprites, &SpriteCollection::changed, this, &FrameProvider::spritesChanged);
    }
    update(true);
}

void FrameProvider::setFrame(int index)
{
    if (index != m_index) {
        m_index = index;
        update(true);
    }
}

FrameNode* FrameProvider::frame() const
{
    return m_animation ? static_cast<FrameNode*>(m_animation->frame(m_index)) : nullptr;
}

QPoint FrameProvider::onionOffset() const
{
    return m_sprite ? m_sprite->axis() - m_pose.axis : QPoint();
}

Zorv::Sprite* FrameProvider::at(unsigned index) const
{
    return index == 0 ? m_sprite : nullptr;
}

QVariant FrameProvider::property(unsigned index, unsigned key) const
{
    if (index > 0) {
        return {};
    }
    switch (key) {
    case 0:
        return m_pose.position;
    case 1:
        return SpriteMode;
    case 2:
        return SpriteParent;
    case 3:
        return m_pose.size;
    case 4:
        return m_pose.scale;
    case 5:
        return int(m_pose.flip);
    case 6:
        return m_pose.rotation;
    case 7:
        return 0;
    default:
        return {};
    }
}

void FrameProvider::follow()
{
    update(false);
}

void FrameProvider::spritesChanged()
{
    update(true);
}

void FrameProvider::update(bool always)
{
    const FrameNode* node = frame();
    const FrameData data = node ? node->data() : FrameData();
    FamilySprite* sprite = node && m_sprites && !m_isReset
                               ? m_sprites->byId({quint16(data.group), quint16(data.number)})
                               : nullptr;
    const FramePose pose =
        poseOf(data, sprite ? sprite->size() : QSize(0, 0), sprite ? sprite->axis() : QPoint());
    if (always || sprite != m_sprite || pose != m_pose) {
        m_sprite = sprite;
        m_pose = pose;
        emit changed();
    }
}

// The sprite dies, or goes into the collection's undo. What stands in its place is known when the
// collection tells that it has changed.
void FrameProvider::drop()
{
    if (m_sprite) {
        m_sprite = nullptr;
        emit changed();
    }
}

void FrameProvider::close()
{
    m_sprites = nullptr;
    drop();
}

void FrameProvider::resetGo()
{
    m_isReset = true;
    drop();
}

void FrameProvider::rowsGo(const QModelIndex&, int first, int last)
{
    if (m_sprite && m_sprite->row >= first && m_sprite->row <= last) {
        drop();
    }
}

}  // namespace Family
