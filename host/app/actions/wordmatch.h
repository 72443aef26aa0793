#pragma once

class QString;

namespace App {

/// Scores how well a typed text matches an action: higher is better, negative means no match.
///
/// Matching ignores case. Each typed word must begin a word of the label or path, or occur inside
/// one, or its letters must occur there in the same order: "sall" finds "Save all". A match in the
/// label scores higher than one in the path.
int matchWords(const QString& typed, const QString& label, const QString& path);

}  // namespace App
