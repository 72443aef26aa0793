#pragma once

#include "code/codedoc/contactboxcode.h"

#include <QPointer>

namespace Zorv {

class CodeDocument;
class ContactBoxesCode;
class FrameCode;

/// A pointer to a list of boxes in a text that knows whether the list still exists.
///
/// The list belongs to its frame. Any edit can parse the frame again or destroy its document.
class BoxList
{
public:
    BoxList() = default;
    BoxList(ContactBoxesCode* code);  // NOLINT: implicit, it represents the list

    /// Null once the frame is gone.
    ContactBoxesCode* get() const;

    /// The box at `index` if it is still `known`, else null. `known` may dangle; it is never
    /// dereferenced.
    ContactBoxCode* box(int index, const ContactBoxCode* known) const;

private:
    ContactBoxesCode* m_code = nullptr;
    QPointer<CodeDocument> m_document;  // null for a list that is in no text
    FrameCode* m_frame = nullptr;
};

}  // namespace Zorv
