#pragma once

#include "family/import/sheetcutter.h"

class QString;

namespace Cli {

/// How to cut pictures into sprites.
struct SheetForm
{
    bool hasFile = false;  ///< use the JSON file beside each picture
    Family::SheetCut cut;
};

/// Parses "json", "gaps", "cells=32x48" or "grid=8x4". The last two may be followed by any of
/// ",edge=N", ",gap=N", ",count=N" and ",down". False for any other text.
bool readSheetForm(const QString& text, SheetForm* form);

}  // namespace Cli
