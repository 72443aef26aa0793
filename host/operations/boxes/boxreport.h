#pragma once

#include <QRect>
#include <QVector>

namespace Family {
class AnimationNode;
}  // namespace Family

namespace Operations {

/// A contact box and how it relates to other frames. Areas are in pixels of the game.
struct BoxInFrame
{
    QRect rect;          ///< relative to the axis, normalized; includes its right and bottom edges
    int line;            ///< block number
    bool stays = false;  ///< a box of the same kind and place is in the next frame

    // Attack boxes only; -1 for others, and in frames with very many boxes.
    qint64 inBody = -1;      ///< the part that body boxes of the frame cover
    qint64 inNextBody = -1;  ///< the part that body boxes of the next frame cover
};

/// The boxes of one kind in a frame. Areas count overlapping pixels once.
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
    bool isShown = false;  ///< false for a delay of 0, and after a frame that stays forever
    int next = -1;         ///< the frame shown next; -1 if there is none
    BoxesInFrame attack;
    BoxesInFrame body;
    qint64 attackInBody = 0;      ///< attack area that body boxes of the frame cover
    qint64 attackInNextBody = 0;  ///< the same for body boxes of the next frame
};

/// A run of consecutive shown frames that all have attack boxes.
struct ActiveTime
{
    int firstFrame;
    int lastFrame;
    int tick;
    int ticks;  ///< -1 if it never ends
    int reach;  ///< the rightmost edge of their attack boxes
};

/// The contact boxes of an animation, frame by frame, with the changes from one to the next.
struct AnimationBoxReport
{
    /// Analyses the animation as it is in the text. Takes n log n for n boxes of a frame.
    explicit AnimationBoxReport(const Family::AnimationNode& animation);

    bool hasBoxes() const;

    /// The rightmost edge of all attack boxes that are shown; 0 without one.
    int reach() const;

    QVector<FrameBoxReport> frames;
    QVector<ActiveTime> active;
    int ticks;         ///< of one pass; -1 if it never ends
    int recovery = 0;  ///< from the last attack box to the end, or to the frame that stays

    QVector<int> withoutBox;   ///< shown frames without any box
    QVector<int> withoutBody;  ///< shown frames that cannot be hit
};

}  // namespace Operations
