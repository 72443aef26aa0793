#pragma once

namespace App {

/// The user's position in a text. All values count from 0.
struct TextPlace
{
    int line = 0;
    int column = 0;
    int anchorLine = 0;  ///< start of the selection; equals the cursor without one
    int anchorColumn = 0;
    int scroll = 0;  ///< value of the vertical scroll bar
};

}  // namespace App
