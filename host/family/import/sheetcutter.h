#pragma once

#include <QSize>
#include <QString>

class QImage;

namespace Family {

struct Sheet;

/// How to cut a sheet that has no description file.
struct SheetCut
{
    enum How {
        BySize,   ///< cells of a given size
        ByCount,  ///< a given number of columns and rows
        ByGaps    ///< at empty columns and rows
    };

    How how = BySize;
    QSize cell{32, 32};
    int columns = 1;
    int rows = 1;
    int edge = 0;   ///< margin around all cells; this and the next two not for `ByGaps`
    int gap = 0;    ///< between two cells
    int count = 0;  ///< of cells; 0: all up to the last non-empty one
    bool isColumnsFirst = false;
};

/// Cuts a picture into frames, row by row. Empty cells are kept so that numbers stay stable; pixels
/// outside of all cells cause a warning. `ByGaps` gives all pictures of a row the height of the
/// row, so that they share a ground line. Empty pixels are transparent ones, those with index 0,
/// or, if the picture has neither, those with the colour of its corner. False, with `error`, if
/// there is no frame. Re-entrant.
bool cutSheet(const QImage& picture, const SheetCut& cut, Sheet* sheet, QString* error);

/// Reads the layout from a file name: `_strip8` and `-8x4` give columns and rows, `_32x48` a cell
/// size if it divides the picture. False, without a change, if the name says nothing.
bool readCut(const QString& name, QSize picture, SheetCut* cut);

}  // namespace Family
