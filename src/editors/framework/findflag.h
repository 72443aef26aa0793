#pragma once

namespace Zorv {

/// How `Editor::find()` and `Editor::replace()` look for a text; bits of their
/// `flags`. Without any, the text is taken as it stands, upper and lower case
/// are the same, and the search goes forward.
enum FindFlag : unsigned {
    FindRegularExpression = 1,  ///< the text is one, as `QRegularExpression` knows them
    FindCaseSensitive = 2,
    FindBackward = 4,
    FindWrap = 8  ///< goes on at the other end; a text does so in any case
};

}  // namespace Zorv
