#pragma once

class QPoint;

namespace Zorv {
class CodeEditor;
}

namespace Family {
class FamilyDocument;
}

namespace App {

/// A character position in a text. Both values count from 0.
struct TextPosition
{
    int line = -1;
    int column = -1;

    bool isValid() const { return line >= 0; }
};

/// The character at a point of the editor's viewport; invalid if there is no text at the point.
TextPosition characterAt(const Zorv::CodeEditor* editor, const QPoint& point);

/// The document that the editor shows, or null.
Family::FamilyDocument* documentIn(const Zorv::CodeEditor* editor);

}  // namespace App
