#pragma once

#include "family/import/sheetcutter.h"

class QString;

namespace Cli {

/// How pictures are cut.
struct SheetForm
{
    bool hasFile = false;  ///< as the JSON beside each tells
    Family::SheetCut cut;
};

/// Reads "json", "gaps", "cells=32x48" or "grid=8x4", the last two with any of ",edge=N", ",gap=N",
/// ",count=N" and ",down" behind. False for any other text.
bool readSheetForm(const QString& text, SheetForm* form);

}  // namespace Cli
