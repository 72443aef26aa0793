#include "operations/diff/redrawnsprites.h"

#include "family/assets/spritecollection.h"

#include <QHash>
#include <QImage>

namespace Operations {

using Family::AssetId;
using Family::FamilySprite;
using Family::FrameData;
using Family::SpriteCollection;

namespace {

bool isRedrawn(AssetId id, const SpriteCollection& oldSprites, const SpriteCollection& newSprites)
{
    const FamilySprite* before = oldSprites.byId(id);
    const FamilySprite* after = newSprites.byId(id);
    if (!before || !after) {
        return false;
    }
    if (before->axis() != after->axis() || before->size() != after->size()) {
        return true;
    }
    return before->image().convertToFormat(QImage::Format_ARGB32) !=
           after->image().convertToFormat(QImage::Format_ARGB32);
}

}  // namespace

void markRedrawn(const QVector<FrameRecord>& oldFrames, const SpriteCollection& oldSprites,
                 const QVector<FrameRecord>& newFrames, const SpriteCollection& newSprites,
                 QVector<FrameDiff>* diffs)
{
    QHash<quint32, bool> known;
    for (FrameDiff& diff : *diffs) {
        if (diff.oldFrame < 0 || diff.newFrame < 0) {
            continue;
        }
        const FrameData& before = oldFrames[diff.oldFrame].data;
        const FrameData& after = newFrames[diff.newFrame].data;
        if (before.group != after.group || before.number != after.number) {
            continue;
        }
        const AssetId id{quint16(after.group), quint16(after.number)};
        auto found = known.find(id.key());
        if (found == known.end()) {
            found = known.insert(id.key(), isRedrawn(id, oldSprites, newSprites));
        }
        diff.isRedrawn = *found;
        diff.kind = diff.isRedrawn ? DiffKind::Changed : diff.kind;
    }
}

}  // namespace Operations
