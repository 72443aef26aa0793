#pragma once

#include "graphics/stage/stageitems_p.h"

#include <QRect>
#include <QVector>

#include <array>
#include <optional>

class QString;

namespace Zorv {

class CodeDocument;

/// What becomes of a box of a list; without a rectangle it goes.
struct BoxEdit
{
    int index;
    std::optional<QRect> rect;
};

/// Edits of every list, each in the order in which they are done.
using BoxEdits = std::array<QVector<BoxEdit>, BoxTypes>;

/// Does the edits; with a document as one step of undo with that title. Every edit may have boxes,
/// lists and frames made anew, and the stage with them.
void applyBoxEdits(const BoxEdits& edits, const std::array<ContactBoxes, BoxTypes>& boxes,
                   CodeDocument* document, const QString& title);

}  // namespace Zorv
