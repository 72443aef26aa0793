#pragma once

namespace App {

/// Where the person is in a text; all from 0.
struct TextPlace
{
    int line = 0;
    int column = 0;
    int anchorLine = 0;  ///< where the selection began; the place itself for none
    int anchorColumn = 0;
    int scroll = 0;  ///< value of the vertical scroll bar
};

}  // namespace App
