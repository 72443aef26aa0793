#pragma once

namespace Operations {

/// Installs the English texts that the sources cannot hold: singular and plural forms, and own
/// words for some texts of the library. Call it once per application. Translations to other
/// languages take precedence.
void speakEnglish();

}  // namespace Operations
