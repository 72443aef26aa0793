#include "graphics/stage/boxlist_p.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"

namespace Zorv {

BoxList::BoxList(ContactBoxesCode* code) : m_code(code)
{
    if (!code || !code->document() || !code->frame()) {
        return;
    }
    m_document = code->document();
    m_frame = code->frame();
    m_document->trackNode(m_frame);
}

ContactBoxesCode* BoxList::get() const
{
    const bool isGone = m_frame && !(m_document && m_document->isTracked(m_frame));
    return isGone ? nullptr : m_code;
}

ContactBoxCode* BoxList::box(int index, const ContactBoxCode* known) const
{
    const ContactBoxesCode* code = get();
    ContactBoxCode* present = code ? code->at(index) : nullptr;
    return present == known ? present : nullptr;
}

}  // namespace Zorv
