#pragma once

#include <QString>

namespace Zorv {

/// Escapes a text for an attribute in double quotes: markup and line ends are escaped,
/// characters that XML does not allow are dropped.
QString xmlAttribute(const QString& text);

/// The same for text between elements: line ends and quotes stay unchanged.
QString xmlText(const QString& text);

}  // namespace Zorv
