#pragma once

#include "graphics/stage/stageitems_p.h"

#include <QRect>
#include <QVector>

#include <array>
#include <optional>

class QString;

namespace Zorv {

class CodeDocument;

/// One change of a box: its new rectangle, or its removal if there is none.
struct BoxEdit
{
    int index;
    std::optional<QRect> rect;
};

/// The edits of every list, in the order in which they are applied.
using BoxEdits = std::array<QVector<BoxEdit>, BoxTypes>;

/// Applies the edits; with a document, as one undo step with that title. Every edit may recreate
/// boxes, lists and frames, and refill the stage.
void applyBoxEdits(const BoxEdits& edits, const std::array<ContactBoxes, BoxTypes>& boxes,
                   CodeDocument* document, const QString& title);

}  // namespace Zorv
