#pragma once

#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"
#include "family/nodes/framenode.h"
#include "family/stage/framepose.h"

#include <zorv/cache/spriteprovider.h>

/// The sprite of one frame as it stands when it is shown, on the secondary cross of a stage.
class StillFrame : public Zorv::SpriteProvider
{
public:
    /// Both may be null. The frame is read at once.
    void show(const Family::FrameNode* frame, Family::SpriteCollection* sprites)
    {
        const Family::FrameData data = frame ? frame->data() : Family::FrameData();
        sprite =
            frame && sprites ? sprites->byId({quint16(data.group), quint16(data.number)}) : nullptr;
        pose = Family::poseOf(data, sprite ? sprite->size() : QSize(0, 0),
                              sprite ? sprite->axis() : QPoint());
        emit changed();
    }

    unsigned count() const override { return sprite ? 1 : 0; }
    Zorv::Sprite* at(unsigned index) const override { return index == 0 ? sprite : nullptr; }
    QVariant property(unsigned, unsigned key) const override
    {
        const QVariant values[] = {pose.position, 2, 1, pose.size, pose.scale, int(pose.flip),
                                   pose.rotation};
        return key < 7 ? values[key] : QVariant(0);
    }

    Family::FamilySprite* sprite = nullptr;
    Family::FramePose pose;
};
