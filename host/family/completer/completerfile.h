#pragma once

#include <QByteArray>
#include <QString>

namespace Family {

/// The words of the grammar as a completer file; docs/formats.md describes the format. It offers
/// groups after "[", sub-groups after "[.", and the choices of each key after its "=". Built from
/// the tables of the grammar, with descriptions in the program's language.
QByteArray completerXml();

/// The name of the file in the family's data folder.
QString completerFileName();

/// True if the program may overwrite a completer file with this content, with the words of this
/// version and language. Users who change the file remove its mark "origin".
bool isOwnCompleter(const QByteArray& content);

}  // namespace Family
