#include "animation/edits/animationtext.h"

#include "animation/edits/followedframe_p.h"

#include "code/codedoc/animationcode.h"

namespace Zorv {

namespace {

const QChar LineEnd = QChar::ParagraphSeparator;

/// True if the first node of these lines is the head of an animation, and the only head.
bool isOneAnimation(const CodeDocument* document, int line, int count)
{
    int heads = 0;
    QTextBlock block = document->findBlockByNumber(line);
    for (int i = 0; i < count && block.isValid(); ++i, block = block.next()) {
        const CodeNode* node = document->nodeInBlock(block);
        const bool isAnimation = node && node->type() == CodeNode::Animation;
        if (node && ((heads == 0 && !isAnimation) || node->type() == CodeNode::Group)) {
            return false;
        }
        heads += isAnimation ? 1 : 0;
    }
    return heads == 1;
}

}  // namespace

QString animationText(const Animations* animations, int animation)
{
    const AnimationCode* code = animationAt(animations, animation);
    return code ? code->code().replace(LineEnd, QLatin1Char('\n')) : QString();
}

bool replaceAnimation(Animations* animations, int animation, const QString& text)
{
    const AnimationCode* code = animationAt(animations, animation);
    if (!code) {
        return false;
    }
    QString wanted = text;
    wanted.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(LineEnd, QLatin1Char('\n'));
    wanted = wanted.trimmed();
    const QString present = code->code();
    if (wanted == animationText(animations, animation)) {
        return true;
    }
    CodeDocument* document = animations->document();
    QTextCursor cursor = code->selectAll();
    const int start = cursor.selectionStart() + cursor.selectedText().indexOf(present);
    const int line = document->findBlock(start).blockNumber();
    cursor.setPosition(start);
    cursor.setPosition(start + present.size(), QTextCursor::KeepAnchor);
    {
        const EditStep step(animations,
                            EditText::tr("Edit code of animation #%1").arg(animation + 1));
        document->replaceSelection(wanted, cursor);
    }
    // What a text is the grammar knows, once it is there.
    const bool isOne = isOneAnimation(document, line, wanted.count(QLatin1Char('\n')) + 1);
    if (!isOne) {
        document->undo();
        document->clearUndoRedoStacks(QTextDocument::RedoStack);
    }
    return isOne;
}

}  // namespace Zorv
