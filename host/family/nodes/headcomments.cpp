#include "family/nodes/headcomments.h"

#include "family/familydocument.h"
#include "family/grammar/linescanner.h"

#include <zorv/code/codedoc/codenode.h>

#include <QTextBlock>

namespace Family {

bool isCommentLine(const QTextBlock& line)
{
    const QString text = line.text();
    LineScanner scanner(text);
    scanner.skipBlanks();
    return scanner.atCodeEnd() && scanner.position() < scanner.size();
}

int firstLineOfHead(const Zorv::CodeNode* head)
{
    QTextBlock line = head->block();
    const auto* document = qobject_cast<const FamilyDocument*>(head->document());
    while (document && document->doCommentsTravel() && isCommentLine(line.previous())) {
        line = line.previous();
    }
    return line.blockNumber();
}

}  // namespace Family
