#pragma once

namespace Family {
class FamilyDocument;
}

namespace App {

/// Lets the user choose the encoding of a document, and whether to reload the file in it, or to
/// keep the text and save it in it. Asks before anything is lost; cancelling at any point changes
/// nothing.
void chooseEncoding(Family::FamilyDocument* document);

}  // namespace App
