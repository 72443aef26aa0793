#pragma once

class QTextBlock;

namespace Zorv {
class CodeNode;
}

namespace Family {

/// True for a line with a comment and nothing else.
bool isCommentLine(const QTextBlock& line);

/// The first line of the head of an animation or group. While its document says that comments
/// travel, the comments directly above belong to it: all lines of comments up to the first other
/// one, an empty one too.
int firstLineOfHead(const Zorv::CodeNode* head);

}  // namespace Family
