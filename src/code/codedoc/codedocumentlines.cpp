#include "code/codedoc/codedocument.h"

#include "code/codedoc/codedocument_p.h"
#include "code/codedoc/folding_p.h"

namespace Zorv {

namespace {

using Data = CodeBlockDataPrivate;

quint16 traitOfMessage(int type)
{
    switch (type) {
    case CodeBlockData::SyntaxMessage::Error:
        return Data::HasError;
    case CodeBlockData::SyntaxMessage::Warning:
        return Data::HasWarning;
    default:
        return Data::HasDeprecation;
    }
}

quint16 traitsOfUnpaired(int lacking)
{
    const quint16 closing = (lacking & CodeDocument::LacksClosing) ? Data::LacksClosing : 0;
    const quint16 opening = (lacking & CodeDocument::LacksOpening) ? Data::LacksOpening : 0;
    return closing | opening;
}

/// The data of a line if it is in an index, otherwise null.
CodeBlockData* indexed(const QTextBlock& block)
{
    CodeBlockData* data = CodeBlockData::testBlockData(block);
    return data && Data::of(data)->owner ? data : nullptr;
}

QTextBlock blockOf(const CodeBlockData* line)
{
    return line ? Data::of(const_cast<CodeBlockData*>(line))->block() : QTextBlock();
}

QTextBlock nextWith(const QTextBlock& block, quint16 traits)
{
    const CodeBlockData* line = indexed(block);
    return line ? blockOf(LineIndex::forward(line, traits)) : QTextBlock();
}

QTextBlock previousWith(const QTextBlock& block, quint16 traits)
{
    const CodeBlockData* line = indexed(block);
    return line ? blockOf(LineIndex::backward(line, traits)) : QTextBlock();
}

}  // namespace

QTextBlock CodeDocument::nextBlockWithMessage(const QTextBlock& block, int type) const
{
    return nextWith(block, traitOfMessage(type));
}

QTextBlock CodeDocument::previousBlockWithMessage(const QTextBlock& block, int type) const
{
    return previousWith(block, traitOfMessage(type));
}

QTextBlock CodeDocument::nextUnpairedBlock(const QTextBlock& block, int lacking) const
{
    return nextWith(block, traitsOfUnpaired(lacking));
}

QTextBlock CodeDocument::previousUnpairedBlock(const QTextBlock& block, int lacking) const
{
    return previousWith(block, traitsOfUnpaired(lacking));
}

/// Lines that were never parsed are in no index and have level 0.
QTextBlock CodeDocument::lowerBlockAtOrAbove(const QTextBlock& block, int level) const
{
    QTextBlock above = block;
    while (above.isValid() && !indexed(above) && level <= 0) {
        above = above.previous();
    }
    const CodeBlockData* line = indexed(above);
    return line ? blockOf(Folding::lowerAtOrAbove(line, level)) : above;
}

QTextBlock CodeDocument::lowerBlockBelow(const QTextBlock& block, int level) const
{
    QTextBlock above = block;
    while (above.isValid() && !indexed(above)) {
        above = above.next();
        const CodeBlockData* line = indexed(above);
        if ((line ? line->foldingIndent() : 0) < level) {
            return above;
        }
    }
    const CodeBlockData* line = indexed(above);
    return line ? blockOf(Folding::lowerBelow(line, level)) : QTextBlock();
}

}  // namespace Zorv
