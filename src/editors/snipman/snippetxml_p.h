#pragma once

#include <QString>

namespace Zorv {

/// A text as it stands in an attribute, between double quotes: markup and line ends are
/// escaped, characters that XML has no place for are left out.
QString xmlAttribute(const QString& text);

/// The same for text between elements, where line ends and quotes stay as they are.
QString xmlText(const QString& text);

}  // namespace Zorv
