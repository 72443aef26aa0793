#pragma once

namespace Family {
class FamilyDocument;
}

namespace Zorv {
class CodeFileEditor;
}

namespace App {

/// An editor of texts. All of them work on the text in front, in the one code workspace, and one
/// is in front itself.
class TextEditor
{
public:
    virtual ~TextEditor() = default;

    virtual Zorv::CodeFileEditor* fileEditor() = 0;

    /// True if it comes forward with a text.
    virtual bool wants(const Family::FamilyDocument* document) const = 0;

    /// The text in front; null for none.
    virtual void setText(Family::FamilyDocument* document) = 0;
};

}  // namespace App
