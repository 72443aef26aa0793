#pragma once

namespace Family {
class FamilyDocument;
}

namespace Zorv {
class CodeFileEditor;
}

namespace App {

/// A text editor. All of them work on the current text in the shared code workspace; one of them is
/// in front.
class TextEditor
{
public:
    virtual ~TextEditor() = default;

    virtual Zorv::CodeFileEditor* fileEditor() = 0;

    /// True if this editor comes to the front with a text.
    virtual bool wants(const Family::FamilyDocument* document) const = 0;

    /// The current text, or null.
    virtual void setText(Family::FamilyDocument* document) = 0;
};

}  // namespace App
