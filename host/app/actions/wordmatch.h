#pragma once

class QString;

namespace App {

/// How well what a person typed fits an action; negative if not at all, and more is better.
///
/// Each word that was typed, whatever its case, has to begin a word of the label or of the path,
/// or to stand in them, or else its letters have to follow each other in them: "sall" finds
/// "Save all". The label counts for more than the path.
int matchWords(const QString& typed, const QString& label, const QString& path);

}  // namespace App
