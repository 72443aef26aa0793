#include "editors/code/parenthesismatch_p.h"

#include "code/codedoc/codeblockdata.h"
#include "code/codedoc/codedocument.h"

#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace Zorv {

namespace {

using Parenthesis = CodeBlockData::Parenthesis;
using Parentheses = QVector<Parenthesis>;

const Parentheses& parenthesesOf(const QTextBlock& block)
{
    static const Parentheses none;
    const CodeBlockData* data = CodeBlockData::testBlockData(block);
    return data ? data->parenthesis() : none;
}

int indexAt(const Parentheses& parentheses, int position, Parenthesis::Type type)
{
    const auto found = std::find_if(
        parentheses.begin(), parentheses.end(), [position, type](const Parenthesis& parenthesis) {
            return parenthesis.position == position && parenthesis.type == type;
        });
    return found == parentheses.end() ? -1 : int(found - parentheses.begin());
}

/// Walks from `index` in steps of 1 or -1 and counts brackets that need a partner
/// themselves. Returns the index of the first partner that is left over, else -1.
int walk(const Parentheses& parentheses, int index, int step, Parenthesis::Type partner, int* count)
{
    for (; index >= 0 && index < parentheses.size(); index += step) {
        if (parentheses.at(index).type != partner) {
            ++*count;
        } else if (*count == 0) {
            return index;
        } else {
            --*count;
        }
    }
    return -1;
}

}  // namespace

// Skips lines whose brackets are all paired: they do not change the count. If no
// further line has an unpaired bracket of the wanted kind, there is nothing to count at
// all.

ParenthesisMatch::Result ParenthesisMatch::forward(QTextCursor* cursor,
                                                   const CodeDocument& document)
{
    cursor->clearSelection();
    QTextBlock block = cursor->block();
    int start = indexAt(parenthesesOf(block), cursor->positionInBlock(), Parenthesis::Opening);
    if (start < 0) {
        return None;
    }
    ++start;
    for (int count = 0; block.isValid(); start = 0) {
        const Parentheses& parentheses = parenthesesOf(block);
        const int found = walk(parentheses, start, 1, Parenthesis::Closing, &count);
        if (found >= 0) {
            cursor->setPosition(block.position() + parentheses.at(found).position + 1,
                                QTextCursor::KeepAnchor);
            return Match;
        }
        if (!document.nextUnpairedBlock(block, CodeDocument::LacksOpening).isValid()) {
            break;
        }
        block = document.nextUnpairedBlock(block,
                                           CodeDocument::LacksOpening | CodeDocument::LacksClosing);
    }
    return None;
}

ParenthesisMatch::Result ParenthesisMatch::backward(QTextCursor* cursor,
                                                    const CodeDocument& document)
{
    cursor->clearSelection();
    QTextBlock block = cursor->block();
    int start = indexAt(parenthesesOf(block), cursor->positionInBlock() - 1, Parenthesis::Closing);
    if (start < 0) {
        return None;
    }
    --start;
    for (int count = 0; block.isValid(); start = parenthesesOf(block).size() - 1) {
        const Parentheses& parentheses = parenthesesOf(block);
        const int found = walk(parentheses, start, -1, Parenthesis::Opening, &count);
        if (found >= 0) {
            cursor->setPosition(block.position() + parentheses.at(found).position,
                                QTextCursor::KeepAnchor);
            return Match;
        }
        if (!document.previousUnpairedBlock(block, CodeDocument::LacksClosing).isValid()) {
            break;
        }
        block = document.previousUnpairedBlock(block, CodeDocument::LacksOpening |
                                                          CodeDocument::LacksClosing);
    }
    return None;
}

}  // namespace Zorv
