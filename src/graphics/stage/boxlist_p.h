#pragma once

#include "code/codedoc/contactboxcode.h"

#include <QPointer>

namespace Zorv {

class CodeDocument;
class ContactBoxesCode;
class FrameCode;

/// A list of boxes in a text, of which it is known whether it is still there.
///
/// The list goes with its frame, and a frame is read anew, or goes with its document, at any edit.
class BoxList
{
public:
    BoxList() = default;
    BoxList(ContactBoxesCode* code);  // NOLINT: it stands for the list

    /// Null once the frame has gone.
    ContactBoxesCode* get() const;

    /// The box at a place if it still is the one at this address, which is not followed.
    ContactBoxCode* box(int index, const ContactBoxCode* known) const;

private:
    ContactBoxesCode* m_code = nullptr;
    QPointer<CodeDocument> m_document;  // null for a list outside of any text
    FrameCode* m_frame = nullptr;
};

}  // namespace Zorv
