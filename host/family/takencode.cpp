#include "family/takencode.h"

#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/nodes/headcomments.h"
#include "family/nodes/lineedit.h"

#include <zorv/code/codedoc/codedocument.h>

#include <QTextBlock>

namespace Family {

namespace {

bool isEmpty(const QTextBlock& line)
{
    return line.text().trimmed().isEmpty() || isCommentLine(line);
}

/// The line of a frame with another sprite; unchanged if its sprite cannot be read.
QString frameLineFor(const FrameNode* frame, Zorv::SpriteNumber sprite)
{
    NodeLine line(frame);
    const LinePart* part = line.details.part(LinePart::Sprite);
    const QVector<LinePart> numbers = part ? line.details.elements(part) : QVector<LinePart>();
    if (numbers.size() != 2) {
        return line.text;
    }
    line.text.replace(numbers[1].start, numbers[1].end - numbers[1].start,
                      QString::number(sprite.number));
    line.text.replace(numbers[0].start, numbers[0].end - numbers[0].start,
                      QString::number(sprite.group));
    return line.text;
}

QString lineFor(const QTextBlock& block, const Zorv::CodeDocument* document,
                const SpriteMap& sprites)
{
    const Zorv::CodeNode* node = sprites.isEmpty() ? nullptr : document->nodeInBlock(block);
    if (!node || node->type() != Zorv::CodeNode::Frame) {
        return block.text();
    }
    const auto* frame = static_cast<const FrameNode*>(node);
    const auto other = sprites.constFind({frame->spriteGroup(), frame->spriteNumber()});
    return other == sprites.cend() ? block.text() : frameLineFor(frame, *other);
}

}  // namespace

QString headLineFor(const AnimationNode* animation, const QString& identifier)
{
    NodeLine line(animation);
    const LinePart* old = line.details.part(LinePart::Argument);
    if (!identifier.isEmpty() && old && old->start != old->end) {
        line.text.replace(old->start, old->end - old->start, identifier);
    }
    return line.text;
}

QTextCursor ownLinesOf(const AnimationNode* animation)
{
    QTextCursor cursor = animation->selectAll();
    const int start = cursor.selectionStart();
    QTextBlock last = animation->document()->findBlock(qMax(start, cursor.selectionEnd() - 1));
    while (last != animation->block() && isEmpty(last)) {
        last = last.previous();
    }
    cursor.setPosition(start);
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    return cursor;
}

QString ownCodeFor(const AnimationNode* animation, const QString& identifier,
                   const SpriteMap& sprites)
{
    const Zorv::CodeDocument* document = animation->document();
    const QTextCursor lines = ownLinesOf(animation);
    const QTextBlock end = document->findBlock(lines.selectionEnd()).next();
    QString code;
    code.reserve(lines.selectionEnd() - lines.selectionStart());
    for (QTextBlock line = document->findBlock(lines.selectionStart()); line != end;
         line = line.next()) {
        code += line == animation->block() ? headLineFor(animation, identifier)
                                           : lineFor(line, document, sprites);
        code += QLatin1Char('\n');
    }
    code.chop(1);
    return code;
}

}  // namespace Family
