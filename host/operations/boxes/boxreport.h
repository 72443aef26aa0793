#pragma once

#include <QRect>
#include <QVector>

namespace Family {
class AnimationNode;
}  // namespace Family

namespace Operations {

/// A contact box and what comes of it while the animation plays. Areas are in pixels of the game.
struct BoxInFrame
{
    QRect rect;          ///< from the axis, upright; right and bottom belong to it
    int line;            ///< block number
    bool stays = false;  ///< a box of the same kind and place is in the next frame

    // Of attack boxes; -1 of others, and in a frame with very many boxes.
    qint64 inBody = -1;      ///< the part that body boxes of the frame cover
    qint64 inNextBody = -1;  ///< the part that those of the next frame cover
};

/// The boxes of one kind of a frame. What several of them cover counts once in areas.
struct BoxesInFrame
{
    QVector<BoxInFrame> boxes;
    qint64 area = 0;
    qint64 kept = 0;  ///< the part that boxes of the same kind in the next frame cover
};

struct FrameBoxReport
{
    int line;  ///< block number
    int group;
    int number;
    int delay;
    int tick;              ///< at which it begins
    bool isShown = false;  ///< false for a delay of 0, and behind a frame that stays for ever
    int next = -1;         ///< what is shown behind it; -1 if nothing else is
    BoxesInFrame attack;
    BoxesInFrame body;
    qint64 attackInBody = 0;      ///< attack area that body boxes of the frame cover
    qint64 attackInNextBody = 0;  ///< and those of the next frame
};

/// Frames shown one behind the other, all of which have attack boxes.
struct ActiveTime
{
    int firstFrame;
    int lastFrame;
    int tick;
    int ticks;  ///< -1 if it never ends
    int reach;  ///< the greatest right side of their attack boxes
};

/// The contact boxes of an animation, frame by frame, with what changes from one to the next.
struct AnimationBoxReport
{
    /// Of the animation as it stands in the text. Takes n log n for n boxes of a frame.
    explicit AnimationBoxReport(const Family::AnimationNode& animation);

    bool hasBoxes() const;

    /// Of all attack boxes that are shown; 0 without one.
    int reach() const;

    QVector<FrameBoxReport> frames;
    QVector<ActiveTime> active;
    int ticks;         ///< of one pass; -1 if it never ends
    int recovery = 0;  ///< from the last attack box to the end, or to the frame that stays

    QVector<int> withoutBox;   ///< frames that are shown and have none of either kind
    QVector<int> withoutBody;  ///< frames that are shown and cannot be hit
};

}  // namespace Operations
