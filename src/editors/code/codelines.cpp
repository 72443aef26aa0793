// Moves the neighbouring line across the selected lines instead of moving them: however many lines
// are selected, only one is parsed again, and the others keep their data.

#include "editors/code/codelines_p.h"

#include "editors/code/codefolding_p.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

#include <algorithm>

namespace Zorv {

namespace {

/// A run of whole lines; empty if `first` is invalid.
struct Lines
{
    QTextBlock first;
    QTextBlock last;

    int begin() const { return first.position(); }
    int end() const { return last.position() + last.length() - 1; }  // before the line end
    int count() const { return last.blockNumber() - first.blockNumber() + 1; }

    QString text() const
    {
        QStringList lines;
        for (QTextBlock block = first; block != last; block = block.next()) {
            lines.append(block.text());
        }
        return (lines << last.text()).join(QLatin1Char('\n'));
    }
};

bool isEndOfText(const QTextBlock& block)
{
    return block.length() == 1 && !block.next().isValid();
}

QTextBlock lastHiddenBy(QTextBlock block)
{
    while (block.next().isValid() && !block.next().isVisible()) {
        block = block.next();
    }
    return block;
}

/// A line as seen on the screen: a head includes the lines that it hides.
Lines linesAround(const QTextBlock& block)
{
    if (!block.isValid() || isEndOfText(block)) {
        return {};
    }
    return {block.isVisible() ? block : CodeFolding::visibleAbove(block), lastHiddenBy(block)};
}

Lines selectedLines(const QTextCursor& cursor)
{
    const QTextDocument* document = cursor.document();
    const QTextBlock first = document->findBlock(cursor.selectionStart());
    QTextBlock last = document->findBlock(cursor.selectionEnd());
    // A selection that ends at the start of a line does not touch it.
    if (last != first && (cursor.selectionEnd() == last.position() || isEndOfText(last))) {
        last = last.previous();
    }
    return {linesAround(first).first, linesAround(last).last};
}

/// The visible folded heads, as line numbers counted from `first`.
QVector<int> foldsIn(const Lines& lines, int first)
{
    QVector<int> folds;
    for (QTextBlock block = lines.first;
         block.blockNumber() <= lines.last.blockNumber() && block.isValid(); block = block.next()) {
        if (block.isVisible() && CodeFolding::hides(block)) {
            folds.append(first + block.blockNumber() - lines.first.blockNumber());
        }
    }
    return folds;
}

/// Moves one run of lines to the other side of its neighbour.
void carry(QTextCursor* edit, const Lines& from, int to, bool isUp)
{
    const QString text = from.text();
    const int begin = from.begin();
    const int end = from.end();
    if (isUp) {
        edit->setPosition(begin - 1);
        edit->setPosition(end, QTextCursor::KeepAnchor);
        edit->removeSelectedText();
        edit->setPosition(to);
        edit->insertBlock();
        edit->setPosition(to);
        edit->insertText(text);
    } else {
        edit->setPosition(to);
        edit->insertText(QLatin1Char('\n') + text);
        edit->setPosition(begin);
        edit->setPosition(end + 1, QTextCursor::KeepAnchor);
        edit->removeSelectedText();
    }
}

/// Restores folds: editing a head's line has opened its fold.
void foldAgain(const QTextDocument* document, const QVector<int>& folds)
{
    for (const int line : folds) {
        const QTextBlock head = document->findBlockByNumber(line);
        if (head.isVisible() && !CodeFolding::hides(head)) {
            CodeFolding::toggle(head);
        }
    }
}

}  // namespace

bool CodeLines::move(QTextCursor* cursor, Direction direction)
{
    const bool isUp = direction == Up;
    const Lines moved = selectedLines(*cursor);
    const Lines other = moved.first.isValid()
                            ? linesAround(isUp ? moved.first.previous() : moved.last.next())
                            : Lines();
    if (!other.first.isValid()) {
        return false;
    }
    const int step = isUp ? -other.count() : other.count();
    const QVector<int> folds =
        foldsIn(moved, moved.first.blockNumber() + step) +
        foldsIn(other, isUp ? moved.first.blockNumber() - other.count() + moved.count()
                            : moved.first.blockNumber());
    const int distance = (other.end() + 1 - other.begin()) * (isUp ? -1 : 1);
    const int anchor = cursor->anchor() + distance;
    const int position = cursor->position() + distance;
    // The edit begins at the cursor's old position, so that undo returns there.
    QTextCursor edit(*cursor);
    edit.beginEditBlock();
    carry(&edit, other, isUp ? moved.end() : moved.begin(), !isUp);
    edit.endEditBlock();
    const QTextDocument* document = cursor->document();
    foldAgain(document, folds);
    // The selection may have ended at the start of a line that no longer exists.
    const int last = document->characterCount() - 1;
    cursor->setPosition(std::min(anchor, last));
    cursor->setPosition(std::min(position, last), QTextCursor::KeepAnchor);
    return true;
}

}  // namespace Zorv
