#include "animation/edits/animationtext.h"

#include "animation/edits/followedframe_p.h"

#include "code/codedoc/animationcode.h"

#include <algorithm>

namespace Zorv {

namespace {

const QChar LineEnd = QChar::ParagraphSeparator;

/// True if the first node of these lines is the head of an animation, and there is no other head.
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

bool isLineEnd(const QString& text, int position)
{
    return position == text.size() || text.at(position) == QLatin1Char('\n');
}

/// The number of characters in the whole lines that both texts start with.
int sharedStart(const QString& a, const QString& b)
{
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    const int same = int(end - a.begin());
    if (isLineEnd(a, same) && isLineEnd(b, same)) {
        return same;
    }
    return same == 0 ? 0 : a.lastIndexOf(QLatin1Char('\n'), same - 1) + 1;
}

/// The same for the end.
int sharedEnd(const QString& a, const QString& b)
{
    const auto end = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first;
    const int start = a.size() - int(end - a.rbegin());
    const int line = a.indexOf(QLatin1Char('\n'), start);
    return line < 0 ? 0 : a.size() - line - 1;
}

/// Touches only lines that change. Cursors and bookmarks in the other lines keep their places.
void replaceLines(CodeDocument* document, int position, const QString& before, const QString& after)
{
    const int start = sharedStart(before, after);
    const int end = sharedEnd(before.mid(start), after.mid(start));
    QTextCursor cursor(document);
    cursor.setPosition(position + start);
    cursor.setPosition(position + before.size() - end, QTextCursor::KeepAnchor);
    document->replaceSelection(after.mid(start, after.size() - start - end), cursor);
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
    const QString present = animationText(animations, animation);
    if (wanted == present) {
        return true;
    }
    CodeDocument* document = animations->document();
    const QTextCursor cursor = code->selectAll();
    const int start = cursor.selectionStart() + cursor.selectedText().indexOf(code->code());
    const int line = document->findBlock(start).blockNumber();
    {
        const EditStep step(animations,
                            EditText::tr("Edit code of animation #%1").arg(animation + 1));
        replaceLines(document, start, present, wanted);
    }
    // Only the grammar knows whether the text is valid, and it parses the document only. So insert
    // first and undo if necessary.
    const bool isOne = isOneAnimation(document, line, wanted.count(QLatin1Char('\n')) + 1);
    if (!isOne) {
        document->undo();
        document->clearUndoRedoStacks(QTextDocument::RedoStack);
    }
    return isOne;
}

}  // namespace Zorv
