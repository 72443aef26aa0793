#include "animation/animationtexts_p.h"

namespace Zorv {

namespace {

/// In the order of `Id`; null: no tool tip.
const TextTable::Row rows[AnimationTexts::End - AnimationTexts::First] = {
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Animation:"), nullptr},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Animation:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Animation of the onion skin")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Frame:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Frame of the onion skin")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Before:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "How many frames before the shown one the onion skin has, in orange; with 0 "
                       "on both sides it has the chosen one")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "After:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "How many frames after the shown one the onion skin has, in blue; with 0 on "
                       "both sides it has the chosen one")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Box X:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Left edge of the selected contact box")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Box Y:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Upper edge of the selected contact box")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Width:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Width of the selected contact box")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Height:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Height of the selected contact box")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Copy contact boxes"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "Put the selected contact boxes into the clipboard, or all of the frame")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Paste contact boxes"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "Add the contact boxes of the clipboard to the selected frames")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Mirror contact boxes"),
     QT_TRANSLATE_NOOP(
         "Zorv::AnimationTexts",
         "Swap left and right of the selected contact boxes, or of all of the frame")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Contact boxes to the selected frames"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "Give the contact boxes of this frame to those selected on the strip, in "
                       "place of theirs")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Lock contact boxes"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "Leave contact boxes where they are: the mouse takes what lies beneath")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Play from the shown frame"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "Play the animation from the shown frame on; so does Play with Shift")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Half speed"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Play at half speed")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Quarter speed"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Play at a quarter of the speed")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Again from the start"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "An animation that ends is played again from the start")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Reverse frames"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts",
                       "Turn the order of the selected frames around; of all frames if only one is "
                       "selected")},
    {QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Frame data:"),
     QT_TRANSLATE_NOOP("Zorv::AnimationTexts", "Ticks in front of, with, and behind attack boxes, "
                                               "and how far these reach in front of the axis")},
};

}  // namespace

AnimationTexts::AnimationTexts() : TextTable("Zorv::AnimationTexts", First, rows) {}

AnimationTexts* AnimationTexts::instance()
{
    static AnimationTexts translator;
    return &translator;
}

}  // namespace Zorv
