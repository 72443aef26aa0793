#pragma once

class QTextBlock;

namespace Zorv {
class CodeNode;
}

namespace Family {

/// True for a line that contains only a comment.
bool isCommentLine(const QTextBlock& line);

/// The first line that belongs to the head of an animation or group. While comments travel in its
/// document, this includes the comment lines directly above, up to the first other line, even an
/// empty one.
int firstLineOfHead(const Zorv::CodeNode* head);

}  // namespace Family
