#include "text/zorvtranslator.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace Zorv {

namespace {

struct Row
{
    unsigned int id;
    const char* text;
};

// Do not change these texts, not even the misspellings: translations are keyed by them and users
// know them.
// clang-format off
const Row labels[] = {
    {0, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "No document.")},
    {1, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Code toolbar")},
    {2, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Centralize origin")},
    {3, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Main cross")},
    {4, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Secondary cross")},
    {5, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Extra cross")},
    {6, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Rulers")},
    {7, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Guide lines")},
    {8, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Attack Box")},
    {9, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Collision Box")},
    {10, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Code snippets")},
    {11, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Insert code snippet")},
    {12, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "New code snippet")},
    {13, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Edit code snippet")},
    {14, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Code")},
    {15, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Go to line...")},
    {16, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous syntax error")},
    {17, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next syntax error")},
    {18, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous deprecation")},
    {19, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next deprecation")},
    {20, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Comment/Uncomment selection")},
    {21, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Fold all code blocks")},
    {22, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Unfold all coded blocks")},
    {23, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "New")},
    {24, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Open")},
    {25, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save")},
    {26, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save as...")},
    {27, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Palettes")},
    {28, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Clear")},
    {29, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Clear all unused")},
    {30, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add")},
    {31, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete")},
    {32, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all duplicates")},
    {33, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Change...")},
    {34, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save as...")},
    {35, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remap")},
    {36, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Undo")},
    {37, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Redo")},
    {38, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Exchange position of selected colors")},
    {39, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Sets the color of the selected slots")},
    {40, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Apply to the sprites")},
    {41, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous palette")},
    {42, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next palette")},
    {43, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Open palette")},
    {44, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save current palette")},
    {45, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Animations")},
    {46, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Edit code")},
    {47, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add")},
    {48, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete")},
    {49, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Duplicate")},
    {50, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Edit animation code")},
    {51, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save as animated GIF...")},
    {52, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Play")},
    {53, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Stop")},
    {54, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move 1px to the left")},
    {55, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move 1px up")},
    {56, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move 1px to the right")},
    {57, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move 1px down")},
    {58, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add frame")},
    {59, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete frame")},
    {60, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add Attack box")},
    {61, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add Collision box")},
    {62, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete selected Contact boxes")},
    {63, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete all Contact boxes")},
    {64, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete all Contact boxes of current animation")},
    {65, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Switch Contact box type")},
    {66, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Copy Contact boxes of previous frame")},
    {67, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Use these Contact boxes in all other instances of this frame")},
    {68, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Optimize")},
    {69, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Import from another project...")},
    {70, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Apply time to all next frames")},
    {71, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Apply flip to all next frames")},
    {72, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Apply offset to all next frames")},
    {73, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Apply scale to all next frames")},
    {74, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Alignment Tool")},
    {75, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Frames:")},
    {76, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "X axis:")},
    {77, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Y axis:")},
    {78, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Flip:")},
    {79, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "None")},
    {80, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Vertically")},
    {81, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Horizontally")},
    {82, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Both")},
    {83, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "X scale:")},
    {84, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Y scale:")},
    {85, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Angle:")},
    {86, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Time:")},
    {87, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous animation")},
    {88, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next animation")},
    {89, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous frame")},
    {90, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next frame")},
    {91, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "OnionSkin")},
    {92, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Sprites")},
    {93, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous sprite")},
    {94, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next sprite")},
    {95, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move canvas")},
    {96, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move selection")},
    {97, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Rectangle selection")},
    {98, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Free selection")},
    {99, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Color picker")},
    {100, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Pen")},
    {101, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Eraser")},
    {102, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remap pen")},
    {103, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Paint bucket")},
    {104, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Normal")},
    {106, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Multiply")},
    {107, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Screen")},
    {108, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Overlay")},
    {109, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Darken")},
    {110, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Lighten")},
    {111, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Color Dodge")},
    {112, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Color Burn")},
    {113, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Hard Light")},
    {114, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Soft Light")},
    {115, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Difference")},
    {116, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Exclusion")},
    {117, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Layers")},
    {118, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add")},
    {119, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Delete")},
    {120, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Duplicate")},
    {121, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Merge visible")},
    {122, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Merge all")},
    {124, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Change image...")},
    {125, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save image changes")},
    {126, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save image...")},
    {127, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Crop image")},
    {130, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Switch to the frame's sprite")},
    {131, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Original")},
    {132, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Image")},
    {133, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Properties")},
    {134, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Resize")},
    {135, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Rotation")},
    {136, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Rotate")},
    {137, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Flip horizontally")},
    {138, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Flip vertically")},
    {139, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Split channels")},
    {140, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Select")},
    {141, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "All")},
    {142, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Deselect")},
    {143, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Invert")},
    {144, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Switch to the sprite palette")},
    {145, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Sounds")},
    {148, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Change sound...")},
    {149, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save sound as...")},
    {150, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Resample")},
    {153, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Play with loop")},
    {156, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous sound")},
    {157, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next sound")},
    {158, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Organizer")},
    {159, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move one position up")},
    {160, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move one position down")},
    {161, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move ten positions up")},
    {162, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move ten positions down")},
    {163, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move to the top")},
    {164, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move to the bottom")},
    {165, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Organize automatically")},
    {166, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Thumbnails")},
    {167, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add selected to the current animation")},
    {168, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add all to the current animation")},
    {169, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "New animation with selected")},
    {170, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "New animation with all")},
    {171, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save selected images")},
};

// Numbers that share a label: the same action for another kind of object.
const struct
{
    unsigned int id;
    unsigned int same;
} shared[] = {
    {105, 30}, {123, 31}, {128, 49}, {129, 69}, {146, 105},
    {147, 123}, {151, 128}, {152, 52}, {154, 53}, {155, 129},
};

const Row toolTips[] = {
    {1, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the code toolbar in all code editors")},
    {2, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Place the origin at the center of the workspace")},
    {3, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the main cross")},
    {4, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the secondary cross")},
    {5, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the extra cross")},
    {6, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the Rulers")},
    {7, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the Guide lines")},
    {8, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the Attack contact boxes")},
    {9, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Show/Hide the Collision contact boxes")},
    {11, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Insert the current code snippet")},
    {12, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Create a new code snippet")},
    {13, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Edit the current code snippet")},
    {15, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Go to the specifed line")},
    {16, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Go to the previous syntax error")},
    {17, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Go to the next syntax error")},
    {18, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Go to the previous deprecation")},
    {19, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Go to the next deprecation")},
    {20, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Comment/Uncomment all selected lines")},
    {28, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all palettes")},
    {29, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all unused palettes")},
    {30, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add one or more palettes")},
    {31, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove the current palette")},
    {32, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all duplicate palettes")},
    {33, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Define new colors to the palette from a file...")},
    {34, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save the palette as a file...")},
    {35, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Open the palette Remap tool")},
    {40, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Apply the current palette to the specified sprites")},
    {43, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Open palette from a file...")},
    {44, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save current palette to a new file...")},
    {46, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Edit animation code in code editor")},
    {47, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add a new animation")},
    {48, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove the current animation")},
    {49, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Duplicate the current animation")},
    {50, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Edit the code of current animation")},
    {51, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save the current animation as an animated GIF...")},
    {52, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Play the current animation")},
    {53, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Stop the animation")},
    {54, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move the sprite 1px to the left")},
    {55, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move the sprite 1px up")},
    {56, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move the sprite 1px to the right")},
    {57, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Move the sprite 1px down")},
    {58, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add a new frame in the animation")},
    {59, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove the current frame")},
    {60, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Enable/disable the drawing mode for Attack contact box")},
    {61, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Enable/disable the drawing mode for Collision contact box")},
    {62, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all selected Contact boxes")},
    {63, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all Contact boxes of current frame")},
    {64, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove all Contact boxs of current animation")},
    {65, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Switch type of all selected Contact boxes")},
    {66, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Copy all Contact boxes of previous frame")},
    {68, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Optimize animation code")},
    {69, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Import one or more animations from another opened project...")},
    {91, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Enable OnionSkin")},
    {93, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Previous sprite")},
    {94, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Next sprite")},
    {105, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add one or more sprites")},
    {118, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add a new layer")},
    {119, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove the current layer")},
    {120, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Duplicate the current layer")},
    {121, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Merge all visible layers into one")},
    {122, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Merge all layers into one")},
    {123, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove the current sprite")},
    {124, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Change the image of the sprite from a file...")},
    {125, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save changes on current sprite")},
    {126, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save one or more sprites as image files...")},
    {127, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove free borders from the current sprite")},
    {128, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Duplicate the current sprite")},
    {129, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Import one or more sprites from another opened project...")},
    {130, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Switch to the sprite of the current frame")},
    {131, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Split the viewport with the Original size at left")},
    {133, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Canvas properties (format and size)")},
    {134, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Resize all layers")},
    {136, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Rotate all layers")},
    {137, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Flip all layers horizontally")},
    {138, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Flip all layers vertically")},
    {139, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Split the RGB channels of the current sprite as separate sprites")},
    {141, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Select the entire canvas")},
    {142, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "lear any selection")},
    {143, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Invert the current selection")},
    {144, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Switch the current palette to the palette of the sprite")},
    {146, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Add one or more sounds")},
    {147, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Remove the current sound")},
    {148, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Change the current sound from a file...")},
    {149, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Save the sound as WAV...")},
    {150, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Resample one or more sounds")},
    {151, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Duplicate the current sound")},
    {152, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Play the current sound")},
    {153, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Play the current sound with infinite loop")},
    {154, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Stop the sound")},
    {155, QT_TRANSLATE_NOOP("Zorv::ZorvTranslator", "Import one or more sounds from another opened project...")},
};
// clang-format on

template <typename Table>
auto find(const Table& table, unsigned int id)
{
    const auto* row =
        std::lower_bound(std::begin(table), std::end(table), id,
                         [](const auto& entry, unsigned int wanted) { return entry.id < wanted; });
    return row != std::end(table) && row->id == id ? row : nullptr;
}

QString translated(const Row* row)
{
    return row ? ZorvTranslator::staticMetaObject.tr(row->text, nullptr) : QString();
}

}  // namespace

ZorvTranslator* ZorvTranslator::instance()
{
    static ZorvTranslator translator;
    return &translator;
}

QString ZorvTranslator::trText(unsigned int id) const
{
    const auto* other = find(shared, id);
    return other ? trText(other->same) : translated(find(labels, id));
}

QString ZorvTranslator::trToolTip(unsigned int id) const
{
    return translated(find(toolTips, id));
}

}  // namespace Zorv
