#pragma once

namespace Zorv {

/// How `Editor::find()` and `Editor::replace()` search; bits of their `flags`. With no
/// bits set the text is taken literally, case is ignored, and the search goes forward.
enum FindFlag : unsigned {
    FindRegularExpression = 1,  ///< the text is a `QRegularExpression`
    FindCaseSensitive = 2,
    FindBackward = 4,
    FindWrap = 8  ///< continue at the other end; code always does
};

}  // namespace Zorv
