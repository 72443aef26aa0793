#pragma once

namespace Operations {

/// Gives the English texts of the program what the sources cannot: one form for one and another
/// for many, and words of its own for what the library says. Once for an application; what another
/// language says comes before it.
void speakEnglish();

}  // namespace Operations
