#include "editors/code/codefolding_p.h"

#include "code/codedoc/codeblockdata.h"
#include "code/codedoc/codedocument.h"
#include "editors/code/visibleblocks_p.h"

#include <QTextLayout>

#include <algorithm>

// A head is a line whose next line has a higher level. Its fold covers the lines below it down to
// the first one with the head's level or a lower one.
//
// A hidden block is invisible and has a line count of 0. So Qt's screen line numbers count only
// visible lines, and the nearest visible line above or below a fold is found by its number in
// logarithmic time, however long the fold is.
//
// "Folded" is also stored in the data of the head's line. While heads are shown again, this tells
// which inner folds must stay closed. Edits can make the two disagree; mend() repairs that.

namespace Zorv {

namespace {

void show(QTextBlock block)
{
    block.setVisible(true);
    block.setLineCount(std::max(1, block.layout()->lineCount()));
}

void hide(QTextBlock block)
{
    block.setVisible(false);
    block.setLineCount(0);
}

/// The first line after the fold of a head; invalid at the end of the text.
QTextBlock behind(const QTextBlock& head)
{
    const auto* document = qobject_cast<const CodeDocument*>(head.document());
    return document ? document->lowerBlockBelow(head, CodeFolding::indent(head) + 1) : head.next();
}

/// Never hides the last line of the document: the cursor needs a place after the fold.
void hideBelow(const QTextBlock& head)
{
    const QTextBlock end = behind(head);
    for (QTextBlock b = head.next(); b != end && b.next().isValid(); b = b.next()) {
        hide(b);
    }
}

/// If a folded line is inside, shows everything to the end of the text, whatever the levels there.
void showBelow(const QTextBlock& head)
{
    QTextBlock end = behind(head);
    for (QTextBlock b = head.next(); b.isValid() && b != end; b = b.next()) {
        show(b);
        const CodeBlockData* data = CodeBlockData::testBlockData(b);
        if (data && data->isFolded()) {
            end = QTextBlock();
        }
    }
}

void setFolded(const QTextBlock& head, bool folded)
{
    if (CodeBlockData* data = CodeBlockData::testBlockData(head)) {
        data->setFolded(folded);
    }
}

bool isBefore(const QTextBlock& block, const QTextBlock& end)
{
    return block.isValid() && (!end.isValid() || block.position() < end.position());
}

/// Shows the lines from `first` to before `end`. Lines hidden by folded heads among them stay
/// hidden, except to reach `wanted`.
void showFrom(const QTextBlock& first, const QTextBlock& end, const QTextBlock& wanted = {})
{
    for (QTextBlock b = first; isBefore(b, end);) {
        show(b);
        const CodeBlockData* data = CodeBlockData::testBlockData(b);
        const QTextBlock next = b.next();
        if (!data || !data->isFolded() || !CodeFolding::hides(b) || !CodeFolding::isHead(b)) {
            b = next;
            continue;
        }
        const QTextBlock past = behind(b);
        const bool holdsWanted = isBefore(b, wanted) && isBefore(wanted, past);
        if (holdsWanted) {
            setFolded(b, false);
        }
        b = holdsWanted ? next : past;
    }
}

}  // namespace

int CodeFolding::indent(const QTextBlock& block)
{
    const CodeBlockData* data = CodeBlockData::testBlockData(block);
    return data ? data->foldingIndent() : 0;
}

bool CodeFolding::isHead(const QTextBlock& block)
{
    const QTextBlock next = block.next();
    return CodeBlockData::testBlockData(block) && next.isValid() && indent(next) > indent(block);
}

bool CodeFolding::hides(const QTextBlock& block)
{
    const QTextBlock next = block.next();
    return next.isValid() && !next.isVisible();
}

QTextBlock CodeFolding::visibleAbove(const QTextBlock& block)
{
    const int line = block.firstLineNumber();
    return line > 0 ? block.document()->findBlockByLineNumber(line - 1) : QTextBlock();
}

void CodeFolding::toggle(const QTextBlock& block)
{
    if (!isHead(block)) {
        return;
    }
    const bool hiding = block.next().isVisible();
    if (hiding) {
        hideBelow(block);
    } else {
        showBelow(block);
    }
    setFolded(block, hiding);
}

void CodeFolding::foldAll(const QTextDocument* document)
{
    int levelAbove = 0;
    for (QTextBlock b = document->begin(); b.isValid(); b = b.next()) {
        if (b.isVisible() && indent(b) > levelAbove) {
            toggle(b.previous());
        }
        if (!b.isVisible()) {
            // Jump to the last line of the fold.
            b = visibleFrom(b).previous();
        }
        levelAbove = indent(b);
    }
}

void CodeFolding::unfoldAll(const QTextDocument* document)
{
    for (QTextBlock b = document->begin(); b.isValid(); b = b.next()) {
        if (!b.isVisible()) {
            toggle(b.previous());
        }
        if (!b.isVisible()) {
            show(b);
        }
    }
}

bool CodeFolding::reveal(const QTextBlock& block)
{
    if (!block.isValid() || block.isVisible()) {
        return false;
    }
    const QTextBlock head = visibleAbove(block);
    setFolded(head, false);
    showFrom(head.isValid() ? head.next() : block.document()->begin(), visibleFrom(block), block);
    return true;
}

bool CodeFolding::unfold(const QTextBlock& block)
{
    if (!hides(block)) {
        return false;
    }
    setFolded(block, false);
    showFrom(block.next(), visibleFrom(block.next()));
    return true;
}

bool CodeFolding::mend(const QTextBlock& block)
{
    if (!hides(block)) {
        return false;
    }
    const QTextBlock first = block.next();
    const QTextBlock end = visibleFrom(first);
    const bool isFold = isHead(block);
    const QTextBlock orphan = isFold ? behind(block) : first;
    setFolded(block, isFold);
    const bool hasOrphan = isBefore(orphan, end);
    if (hasOrphan) {
        showFrom(orphan, end);
    }
    if (!end.isValid()) {
        show(block.document()->lastBlock());
    }
    return hasOrphan || !end.isValid();
}

}  // namespace Zorv
