#include "editors/code/messagejump_p.h"

#include "code/codedoc/codeblockdata.h"
#include "code/codedoc/codedocument.h"

#include <QTextCursor>

#include <algorithm>

namespace Zorv {

namespace {

using SyntaxMessage = CodeBlockData::SyntaxMessage;

bool isOfKind(const SyntaxMessage& message, MessageJump::Kind kind)
{
    return (message.type == SyntaxMessage::Error) == (kind == MessageJump::Errors);
}

template <class Test>
bool moveInBlock(const QTextBlock& block, QTextCursor* cursor, Test test)
{
    const CodeBlockData* data = CodeBlockData::testBlockData(block);
    if (!data) {
        return false;
    }
    const QVector<SyntaxMessage>& messages = data->syntaxMessages();
    const auto found = std::find_if(messages.begin(), messages.end(), test);
    if (found == messages.end()) {
        return false;
    }
    cursor->setPosition(block.position() + qBound(0, found->start, block.length() - 1));
    return true;
}

bool nextInBlock(MessageJump::Kind kind, const QTextBlock& block, int column, QTextCursor* cursor)
{
    return moveInBlock(block, cursor, [kind, column](const SyntaxMessage& message) {
        return isOfKind(message, kind) && message.start >= column;
    });
}

bool previousInBlock(MessageJump::Kind kind, const QTextBlock& block, int column,
                     QTextCursor* cursor)
{
    return moveInBlock(block, cursor, [kind, column](const SyntaxMessage& message) {
        return isOfKind(message, kind) && message.end < column;
    });
}

QTextBlock nextBlock(const CodeDocument* document, const QTextBlock& block, MessageJump::Kind kind)
{
    if (kind == MessageJump::Errors) {
        return document->nextBlockWithMessage(block, SyntaxMessage::Error);
    }
    const QTextBlock warning = document->nextBlockWithMessage(block, SyntaxMessage::Warning);
    const QTextBlock old = document->nextBlockWithMessage(block, SyntaxMessage::Deprecated);
    return !old.isValid() || (warning.isValid() && warning < old) ? warning : old;
}

QTextBlock previousBlock(const CodeDocument* document, const QTextBlock& block,
                         MessageJump::Kind kind)
{
    if (kind == MessageJump::Errors) {
        return document->previousBlockWithMessage(block, SyntaxMessage::Error);
    }
    const QTextBlock warning = document->previousBlockWithMessage(block, SyntaxMessage::Warning);
    const QTextBlock old = document->previousBlockWithMessage(block, SyntaxMessage::Deprecated);
    return !old.isValid() || (warning.isValid() && old < warning) ? warning : old;
}

}  // namespace

bool MessageJump::next(Kind kind, QTextCursor* cursor)
{
    const auto* document = static_cast<CodeDocument*>(cursor->document());
    QTextBlock block = cursor->block();
    int column = cursor->positionInBlock() + 1;
    while (block.isValid()) {
        if (nextInBlock(kind, block, column, cursor)) {
            return true;
        }
        block = nextBlock(document, block, kind);
        column = 0;
    }
    return false;
}

bool MessageJump::previous(Kind kind, QTextCursor* cursor)
{
    const auto* document = static_cast<CodeDocument*>(cursor->document());
    QTextBlock block = cursor->block();
    int column = cursor->positionInBlock();
    while (block.isValid()) {
        if (previousInBlock(kind, block, column, cursor)) {
            return true;
        }
        block = previousBlock(document, block, kind);
        // Start after the end of the line: messages may extend up to it.
        column = block.length();
    }
    return false;
}

}  // namespace Zorv
