#pragma once

#include <QByteArray>
#include <QString>

namespace Family {

/// The words of the grammar as a completer file, which docs/formats.md tells:
/// groups behind "[", sub-groups behind "[.", the choices of each key behind its
/// "=". It is made from the tables of the grammar, with their descriptions in the
/// language of the program.
QByteArray completerXml();

/// The name of the file in the family's folder of data.
QString completerFileName();

/// True for the content of a completer file that is still the program's own: it may be
/// written anew, with the words of this version and language. A person who changes the
/// file takes the mark "origin" away.
bool isOwnCompleter(const QByteArray& content);

}  // namespace Family
