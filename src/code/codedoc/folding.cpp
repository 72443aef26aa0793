#include "code/codedoc/folding_p.h"

#include "code/codedoc/lineindex_p.h"

// How levels are computed:
//
// A body has the level of the line above, or one more directly below a head. A head has the level
// of the line above, or one less directly below a body. An outermost head always has level 0.
//
// The level of a run of lines without a class depends on the lines with a class around it: the run
// belongs to a body below it, has level 0 in front of an outermost head, and otherwise follows the
// line above it (`indentBetween()`). Before the first and behind the last line with a class the
// level is 0.
//
// After an edit, the lines with a class are updated downwards until one does not change. The lines
// below it do not depend on the edit.

namespace Zorv {

using Data = CodeBlockDataPrivate;

namespace {

bool isHead(const Data* line)
{
    return (line->traits & Data::IsHead) != 0;
}

bool isBody(const Data* line)
{
    return (line->traits & Data::IsBody) != 0;
}

const Data* dataOf(const CodeBlockData* line)
{
    return Data::of(const_cast<CodeBlockData*>(line));
}

}  // namespace

quint16 Folding::traitsOfClass(int folding)
{
    switch (folding & ~4) {
    case 1:
        return Data::IsHead;
    case 2:
        return Data::IsBody;
    default:
        return 0;
    }
}

int Folding::indent(const CodeBlockData* line)
{
    const Data* data = dataOf(line);
    if (data->traits & Data::HasClass) {
        return data->foldingIndent;
    }
    const CodeBlockData* above = LineIndex::backward(line, Data::HasClass);
    return above ? indentBetween(above, LineIndex::forward(line, Data::HasClass)) : 0;
}

/// The level of a run of lines without a class, from the lines with a class around it.
int Folding::indentBetween(const CodeBlockData* aboveLine, const CodeBlockData* belowLine)
{
    if (!belowLine) {
        return 0;
    }
    const Data* above = dataOf(aboveLine);
    const Data* below = dataOf(belowLine);
    if (isBody(below)) {
        return above->foldingIndent + (isHead(above) ? 1 : 0);
    }
    if (below->isOutermost) {
        return 0;
    }
    if (isHead(above)) {
        return above->foldingIndent + (above->isOutermost ? 1 : 0);
    }
    switch (above->headAbove) {
    case Data::OutermostHead:
        return above->foldingIndent;
    case Data::InnerHead:
        return above->foldingIndent - 1;
    default:
        return 0;
    }
}

quint8 Folding::headAtOrAbove(const CodeBlockData* line)
{
    if (line && !(dataOf(line)->traits & Data::HasClass)) {
        line = LineIndex::backward(line, Data::HasClass);
    }
    return line ? dataOf(line)->headAbove : quint8(Data::NoHead);
}

bool Folding::updateLine(CodeBlockData* line)
{
    Data* data = Data::of(line);
    const CodeBlockData* aboveLine = LineIndex::above(line);
    const Data* above = aboveLine ? dataOf(aboveLine) : nullptr;
    const int aboveIndent = aboveLine ? indent(aboveLine) : 0;
    int result = 0;
    quint8 headAbove = Data::NoHead;
    if (isHead(data)) {
        result = data->isOutermost ? 0 : aboveIndent - (above && isBody(above) ? 1 : 0);
        headAbove = data->isOutermost ? Data::OutermostHead : Data::InnerHead;
    } else {
        result = aboveIndent + (above && isHead(above) ? 1 : 0);
        headAbove = headAtOrAbove(aboveLine);
    }
    const bool changed = result != data->foldingIndent || headAbove != data->headAbove;
    LineIndex::setFoldingIndent(line, qint16(result));
    data->headAbove = headAbove;
    return changed;
}

/// Only lines with a class are searched: a run of lines without one has the level of the line with
/// a class below it.
const CodeBlockData* Folding::lowerAtOrAbove(const CodeBlockData* line, int level)
{
    return indent(line) < level ? line : LineIndex::backwardBelow(line, level);
}

/// The same downwards, where the run comes first. A run at the end of the text has level 0.
const CodeBlockData* Folding::lowerBelow(const CodeBlockData* line, int level)
{
    const CodeBlockData* lower = LineIndex::forwardBelow(line, level);
    if (!lower && level <= 0) {
        return nullptr;
    }
    if (LineIndex::forward(line, Data::HasClass) == lower) {
        return LineIndex::below(line);
    }
    const CodeBlockData* higher =
        lower ? LineIndex::backward(lower, Data::HasClass) : LineIndex::last(line, Data::HasClass);
    return LineIndex::below(higher);
}

const CodeBlockData* Folding::updateBelow(const CodeBlockData* line)
{
    CodeBlockData* next = LineIndex::forward(line, Data::HasClass);
    while (next && updateLine(next)) {
        line = next;
        next = LineIndex::forward(line, Data::HasClass);
    }
    return line;
}

}  // namespace Zorv
