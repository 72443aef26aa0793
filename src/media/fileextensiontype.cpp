#include "media/fileextensiontype.h"

#include <cstddef>
#include <iterator>

namespace Zorv {

// In the order of the enumeration.
static const char* const filters[] = {
    " (*.pcx *.png *.gif *.bmp);;",

    "Personal Computer eXchange (*.pcx);;Portable Network Graphic (*.png);;"
    "Graphics Interchange Format (*.gif);;Bitmap (*.bmp)",

    "Portable Network Graphic (*.png);;Graphics Interchange Format (*.gif);;"
    "Personal Computer eXchange (*.pcx);;Bitmap (*.bmp)",

    " (*.act *.pcx *.png *.gif *.bmp *.pal *.aco *.ase *.txt);;",

    "Adobe Color Table (*.act);;Personal Computer eXchange (*.pcx);;"
    "Portable Network Graphic (*.png);;Graphics Interchange Format (*.gif);;Bitmap (*.bmp);;"
    "RIFF / Jasc Palette (*.pal);;Adobe Color Swatch (*.aco);;Adobe Swatch Exchange (*.ase);;"
    "Corel Painter Swatches (*.txt)",

    "Adobe Color Table (*.act)",
};

const char* fileExtension(FileExtensionType type)
{
    const int index = int(type);
    return index >= 0 && size_t(index) < std::size(filters) ? filters[index] : nullptr;
}

}  // namespace Zorv
