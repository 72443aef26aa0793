#include "family/nodes/frameboxes.h"

#include "family/grammar/linereader.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"

#include <zorv/code/codedoc/codedocument.h>

#include <algorithm>

namespace Family {

const QVector<BoxNode*>& FrameBoxes::read() const
{
    if (m_revision == BoxNode::revision()) {
        return m_boxes;
    }
    m_boxes.clear();
    for (Zorv::CodeNode* node = m_frame->previous(); node; node = node->previous()) {
        auto* box = dynamic_cast<BoxNode*>(node);
        if (!box && node->hasLine()) {
            break;
        }
        if (box && box->hasLine() && box->isAttack() == m_attack) {
            m_boxes.append(box);
        }
    }
    std::reverse(m_boxes.begin(), m_boxes.end());
    m_revision = BoxNode::revision();
    return m_boxes;
}

int FrameBoxes::count() const
{
    return read().size();
}

Zorv::ContactBoxCode* FrameBoxes::at(int index) const
{
    return index >= 0 && index < read().size() ? m_boxes.at(index) : nullptr;
}

Zorv::ContactBoxCode* FrameBoxes::add(const QRect& rect)
{
    Zorv::CodeDocument* document = m_frame->document();
    for (const int number : {rect.left(), rect.top(), rect.right(), rect.bottom()}) {
        if (!document || number < LeastPlace || number > MostPlace) {
            return nullptr;
        }
    }
    const auto* last = dynamic_cast<BoxNode*>(m_frame->previous());
    const Zorv::CodeNode* neighbour = last ? static_cast<const Zorv::CodeNode*>(last) : m_frame;
    const QString beside = neighbour->block().text();
    const auto isCode = [](QChar character) { return !character.isSpace(); };
    const auto indent = std::find_if(beside.begin(), beside.end(), isCode) - beside.begin();
    const QString text = beside.left(int(indent)) +
                         QStringLiteral("%1 %2,%3, %4,%5")
                             .arg(m_attack ? QLatin1String("attack") : QLatin1String("body"),
                                  QString::number(rect.left()), QString::number(rect.top()),
                                  QString::number(rect.right()), QString::number(rect.bottom()));
    // The edit may parse the frame again, but the lines around the new one keep their numbers.
    const int line = last ? last->firstLine() + 1 : m_frame->block().blockNumber();
    document->beginChange(QString());
    if (last) {
        document->insertAfter(last, text, true);
    } else {
        document->insertBefore(m_frame, text, true);
    }
    document->endChange();
    return dynamic_cast<BoxNode*>(document->nodeInBlock(document->findBlockByNumber(line)));
}

void FrameBoxes::remove(int index)
{
    if (Zorv::ContactBoxCode* box = at(index)) {
        static_cast<BoxNode*>(box)->CodeNode::remove(false);
        BoxNode::raiseRevision();
    }
}

Zorv::ContactBoxCode::BoxType FrameBoxes::type() const
{
    return m_attack ? Zorv::ContactBoxCode::Attack : Zorv::ContactBoxCode::Collision;
}

Zorv::FrameCode* FrameBoxes::frame() const
{
    return m_frame;
}

Zorv::CodeDocument* FrameBoxes::document() const
{
    return m_frame->document();
}

}  // namespace Family
