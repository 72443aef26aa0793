#pragma once

#include <QString>

/// Texts in the grammar of the reference family, of any length.
namespace CodeText {

enum class Form {
    Mixed,     ///< groups, values, animations with boxes, comments, some faults
    Comments,  ///< comments alone, not one node
    OneHead,   ///< one group head and values below it
    Bad        ///< a fault on every line
};

QString make(Form form, int lines);

/// The same form of text in plain groups, keys and comments, which a grammar of
/// INI files understands as well.
QString makeIni(int lines);

}  // namespace CodeText
