#include "editors/code/codefolding_p.h"

#include "code/codedoc/codeblockdata.h"

namespace Zorv {

int CodeFolding::indent(const QTextBlock& block)
{
    const CodeBlockData* data = CodeBlockData::testBlockData(block);
    return data ? data->foldingIndent() : 0;
}

bool CodeFolding::isHead(const QTextBlock& block)
{
    return CodeBlockData::testBlockData(block) && indent(block.next()) > indent(block);
}

void CodeFolding::toggle(const QTextBlock&) {}

void CodeFolding::foldAll(const QTextDocument*) {}

void CodeFolding::unfoldAll(const QTextDocument*) {}

void CodeFolding::reveal(const QTextBlock&) {}

}  // namespace Zorv
