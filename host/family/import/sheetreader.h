#pragma once

class QByteArray;
class QString;

namespace Family {

struct Sheet;

/// Reads the JSON that lies beside a sheet, of whichever program: frames as an object or as an
/// array, by themselves, or in several `textures`. False, with `error` for the person, for anything
/// else, such as a map or an animation of bones; a text that is wrong in one place is told with it.
/// What can be left out without harm is in `warnings`. Re-entrant.
bool readSheet(const QByteArray& bytes, Sheet* sheet, QString* error);

}  // namespace Family
