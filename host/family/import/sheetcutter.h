#pragma once

#include <QSize>
#include <QString>

class QImage;

namespace Family {

struct Sheet;

/// How a sheet is cut that has no file beside it.
struct SheetCut
{
    enum How {
        BySize,   ///< cells of a size
        ByCount,  ///< so many columns and rows
        ByGaps    ///< at empty columns and rows
    };

    How how = BySize;
    QSize cell{32, 32};
    int columns = 1;
    int rows = 1;
    int edge = 0;   ///< around all cells; and this and the next two not by gaps
    int gap = 0;    ///< between two of them
    int count = 0;  ///< of cells; 0 for all up to the last one that is not empty
    bool isColumnsFirst = false;
};

/// Cuts a picture into the frames of a sheet, row by row. Cells are kept though they are empty, so
/// that numbers stay; pixels that no cell has are told. By gaps the pictures of a row keep its
/// height, so that they stand on one ground. Empty is what is transparent or of index 0, or, in a
/// picture without either, of the colour of its corner. False, with `error`, if nothing comes of
/// it. Re-entrant.
bool cutSheet(const QImage& picture, const SheetCut& cut, Sheet* sheet, QString* error);

/// What the name of a picture tells: `_strip8` and `-8x4` columns and rows, `_32x48` a size, if it
/// divides the picture. False, and no change, if it tells nothing.
bool readCut(const QString& name, QSize picture, SheetCut* cut);

}  // namespace Family
