#include "graphics/stage/boxedits_p.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"

#include <QTextCursor>

#include <vector>

namespace Zorv {

namespace {

/// Finds a list of boxes again after every edit, by the line of its frame: an edit may parse the
/// frame again and so replace the list.
class ListInText
{
public:
    explicit ListInText(const BoxList& boxes) : m_boxes(boxes)
    {
        const ContactBoxesCode* code = boxes.get();
        const FrameCode* frame = code ? code->frame() : nullptr;
        if (!frame || !code->document() || frame->contactBoxes(code->type()) != code) {
            return;
        }
        m_type = code->type();
        m_document = code->document();
        m_frameLine = QTextCursor(frame->block());
    }

    ContactBoxesCode* get() const
    {
        if (m_frameLine.isNull()) {
            return m_boxes.get();
        }
        CodeNode* node = m_document ? m_document->nodeInBlock(m_frameLine.block()) : nullptr;
        const auto* frame = dynamic_cast<const FrameCode*>(node);
        return frame ? frame->contactBoxes(m_type) : nullptr;
    }

private:
    BoxList m_boxes;
    QPointer<CodeDocument> m_document;
    QTextCursor m_frameLine;
    ContactBoxCode::BoxType m_type = ContactBoxCode::Attack;
};

void apply(const BoxEdit& edit, const ListInText& list)
{
    ContactBoxesCode* code = list.get();
    ContactBoxCode* box = code ? code->at(edit.index) : nullptr;
    if (box && edit.rect) {
        box->setRect(*edit.rect);
    } else if (box) {
        code->remove(edit.index);
    }
}

}  // namespace

void applyBoxEdits(const BoxEdits& edits, const std::array<ContactBoxes, BoxTypes>& boxes,
                   CodeDocument* document, const QString& title)
{
    std::vector<ListInText> lists;
    for (const ContactBoxes& list : boxes) {
        lists.emplace_back(list.code);
    }
    const QPointer<CodeDocument> changed(document);
    if (changed) {
        changed->beginChange(title);
    }
    for (std::size_t i = 0; i < edits.size(); ++i) {
        for (const BoxEdit& edit : edits[i]) {
            apply(edit, lists[i]);
        }
    }
    if (changed) {
        changed->endChange();
    }
}

}  // namespace Zorv
