#pragma once

class QByteArray;
class QString;

namespace Family {

struct Sheet;

/// Reads the JSON description of a sheet, as written by common programs: frames as an object or an
/// array, at the top level or in several `textures`. False, with `error` for the user, for anything
/// else, such as a map or a bone animation; an error in a text names its place. Things that can
/// safely be ignored become `warnings`. Re-entrant.
bool readSheet(const QByteArray& bytes, Sheet* sheet, QString* error);

}  // namespace Family
