#pragma once

namespace Family {
class FamilyDocument;
}

namespace App {

/// Lets the person choose the encoding of a document, and whether its file is
/// read again in it or the text is kept and saved in it. Nothing is lost without
/// a question; giving up at any point changes nothing.
void chooseEncoding(Family::FamilyDocument* document);

}  // namespace App
