#include "animation/edits/boxedits.h"

#include "animation/edits/frameboxes_p.h"

#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"

#include <algorithm>

namespace Zorv {

namespace {

QVector<QRect> rectsOf(const ContactBoxesCode* boxes)
{
    QVector<QRect> result;
    for (int i = 0; boxes && i < boxes->count(); ++i) {
        result.append(boxes->at(i)->rect());
    }
    return result;
}

/// The indexes of the boxes of one type, ascending, without duplicates.
QVector<int> indexesOf(const QVector<BoxPlace>& boxes, ContactBoxCode::BoxType type, int count)
{
    QVector<int> result;
    for (const BoxPlace& box : boxes) {
        if ((box.type & 1) == (type & 1)) {
            result.append(box.index);
        }
    }
    return validPlaces(result, count);
}

/// Calls `edit(FollowedBoxes, indexes)` for each box type of a frame.
template <class Edit>
EditCount editBoxes(Animations* animations, const FramePlace& place, const QString& title,
                    const QVector<BoxPlace>& boxes, const Edit& edit)
{
    const QVector<int> lines = linesOf(animations, {place});
    if (lines.isEmpty()) {
        return {};
    }
    const EditStep step(animations, title);
    return editFrames(animations, lines, [&](const FollowedFrame& frame, int) {
        EditCount count;
        QVector<int> indexes[2];
        for (const auto type : EditedBoxTypes) {
            const int present = FollowedBoxes(frame, type).rects().size();
            indexes[type & 1] = indexesOf(boxes, type, present);
        }
        for (const auto type : EditedBoxTypes) {
            count += edit(frame, type, indexes[type & 1]);
        }
        return count;
    });
}

/// From last to first, so that the remaining indexes stay valid.
EditCount removeFrom(const FollowedBoxes& boxes, const QVector<int>& indexes)
{
    EditCount count;
    for (int i = indexes.size() - 1; i >= 0; --i) {
        count += boxes.remove(indexes.at(i));
    }
    return count;
}

EditCount removeSome(const FollowedFrame& frame, ContactBoxCode::BoxType type,
                     const QVector<int>& indexes)
{
    return removeFrom(FollowedBoxes(frame, type), indexes);
}

/// A box that the other list rejects stays in its own list.
EditCount switchSome(const FollowedFrame& frame, ContactBoxCode::BoxType type,
                     const QVector<int>& indexes)
{
    const bool isAttack = type == ContactBoxCode::Attack;
    const FollowedBoxes from(frame, type);
    const FollowedBoxes to(frame, isAttack ? ContactBoxCode::Collision : ContactBoxCode::Attack);
    const QVector<QRect> rects = from.rects();
    QVector<int> taken;
    EditCount count;
    for (const int index : indexes) {
        const EditCount added = to.add(rects.at(index));
        count += added;
        if (added.changed > 0) {
            taken.append(index);
        }
    }
    removeFrom(from, taken);
    return count;
}

/// Flipping a picture about its axis maps column x to -1 - x.
EditCount mirrorSome(const FollowedFrame& frame, ContactBoxCode::BoxType type,
                     const QVector<int>& indexes)
{
    const FollowedBoxes boxes(frame, type);
    const QVector<QRect> rects = boxes.rects();
    EditCount count;
    for (const int index : indexes) {
        QRect rect = rects.at(index);
        rect.setCoords(-1 - rect.right(), rect.top(), -1 - rect.left(), rect.bottom());
        count += boxes.setRect(index, rect);
    }
    return count;
}

EditCount removeAllFrom(const FollowedFrame& frame, int)
{
    EditCount count;
    for (const auto type : EditedBoxTypes) {
        const FollowedBoxes boxes(frame, type);
        for (int i = boxes.rects().size() - 1; i >= 0; --i) {
            count += boxes.remove(i);
        }
    }
    return count;
}

EditCount addTo(const FollowedFrame& frame, const BoxRects& added)
{
    EditCount count;
    for (const QRect& rect : added.attack) {
        count += FollowedBoxes(frame, ContactBoxCode::Attack).add(rect);
    }
    for (const QRect& rect : added.collision) {
        count += FollowedBoxes(frame, ContactBoxCode::Collision).add(rect);
    }
    return count;
}

void copyTo(const FollowedFrame& frame, const BoxRects& boxes)
{
    FollowedBoxes(frame, ContactBoxCode::Attack).setRects(boxes.attack);
    FollowedBoxes(frame, ContactBoxCode::Collision).setRects(boxes.collision);
}

void copyWithTitle(Animations* animations, const FramePlace& source,
                   const QVector<FramePlace>& targets, const BoxCopier& copier,
                   const QString& title)
{
    const FrameCode* code = frameAt(animations, source);
    if (!code || !animations->document()) {
        return;
    }
    QVector<int> lines = linesOf(animations, targets);
    const int line = code->block().blockNumber();
    lines.removeOne(line);
    const BoxRects boxes = boxesOf(code);
    const FollowedFrame shown(animations->document(), line);
    const EditStep step(animations, title.arg(source.frame + 1));
    editFrames(animations, lines, [&](const FollowedFrame& frame, int) {
        if (!copier) {
            copyTo(frame, boxes);
        } else if (FrameCode* present = shown.get()) {
            copier(present, frame.get());
        }
        return EditCount();
    });
}

}  // namespace

BoxRects boxesOf(const FrameCode* frame)
{
    if (!frame) {
        return {};
    }
    return {rectsOf(frame->contactBoxes(ContactBoxCode::Attack)),
            rectsOf(frame->contactBoxes(ContactBoxCode::Collision))};
}

QVector<BoxPlace> placesOf(const FrameCode* frame)
{
    QVector<BoxPlace> result;
    for (const auto type : EditedBoxTypes) {
        const ContactBoxesCode* boxes = frame ? frame->contactBoxes(type) : nullptr;
        for (int i = 0; boxes && i < boxes->count(); ++i) {
            result.append({type, i});
        }
    }
    return result;
}

QVector<BoxPlace> placesOf(const FrameCode* frame, const QList<ContactBoxCode*>& boxes)
{
    QVector<BoxPlace> result = placesOf(frame);
    const auto isOther = [&](const BoxPlace& place) {
        return !boxes.contains(frame->contactBoxes(place.type)->at(place.index));
    };
    result.erase(std::remove_if(result.begin(), result.end(), isOther), result.end());
    return result;
}

void copyBoxes(const FrameCode* source, FrameCode* target)
{
    if (source && target && source != target && target->document()) {
        const FollowedFrame frame(target->document(), target->block().blockNumber());
        copyTo(frame, boxesOf(source));
    }
}

void copyBoxes(Animations* animations, const FramePlace& source, const QVector<FramePlace>& targets,
               const BoxCopier& copier)
{
    copyWithTitle(animations, source, targets, copier,
                  EditText::tr("Copy contact boxes of frame #%1"));
}

void copyBoxesToInstances(Animations* animations, const FramePlace& source, const BoxCopier& copier)
{
    copyWithTitle(animations, source, instancesOf(animations, source), copier,
                  EditText::tr("Contact boxes of frame #%1 in all its instances"));
}

int countBoxes(const Animations* animations, const QVector<FramePlace>& places)
{
    int count = 0;
    const QVector<int> lines = linesOf(animations, places);
    for (const int line : lines) {
        const FollowedFrame frame(animations->document(), line);
        count += boxesOf(frame.get()).count();
    }
    return count;
}

EditCount addBoxes(Animations* animations, const QVector<FramePlace>& places, const BoxRects& boxes)
{
    const QVector<int> lines = linesOf(animations, places);
    if (lines.isEmpty()) {
        return {};
    }
    const EditStep step(animations, EditText::tr("Paste contact boxes"));
    return editFrames(animations, lines,
                      [&](const FollowedFrame& frame, int) { return addTo(frame, boxes); });
}

EditCount removeBoxes(Animations* animations, const FramePlace& place,
                      const QVector<BoxPlace>& boxes)
{
    return editBoxes(animations, place, EditText::tr("Remove selected contact boxes"), boxes,
                     removeSome);
}

EditCount removeAllBoxes(Animations* animations, const FramePlace& place)
{
    const QVector<int> lines = linesOf(animations, {place});
    if (lines.isEmpty()) {
        return {};
    }
    const EditStep step(animations,
                        EditText::tr("Remove all contact boxes of frame #%1").arg(place.frame + 1));
    return editFrames(animations, lines, removeAllFrom);
}

EditCount removeAllBoxes(Animations* animations, int animation)
{
    const QVector<int> lines = linesOf(animations, framesOf(animations, animation));
    if (lines.isEmpty()) {
        return {};
    }
    const EditStep step(
        animations, EditText::tr("Remove all contact boxes of animation #%1").arg(animation + 1));
    return editFrames(animations, lines, removeAllFrom);
}

EditCount switchBoxTypes(Animations* animations, const FramePlace& place,
                         const QVector<BoxPlace>& boxes)
{
    return editBoxes(animations, place, EditText::tr("Switch contact box type"), boxes, switchSome);
}

EditCount mirrorBoxes(Animations* animations, const FramePlace& place,
                      const QVector<BoxPlace>& boxes)
{
    return editBoxes(animations, place, EditText::tr("Mirror contact boxes"), boxes, mirrorSome);
}

}  // namespace Zorv
