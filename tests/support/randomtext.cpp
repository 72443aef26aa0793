#include "support/randomtext.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

/// So that something of the text is left after many edits.
constexpr int LongestDeletion = 60;

int randomPosition(QRandomGenerator& random, const QTextDocument& document)
{
    const QTextBlock block = document.findBlockByNumber(random.bounded(document.blockCount()));
    switch (random.bounded(3)) {
    case 0:
        return block.position();
    case 1:
        return block.position() + block.length() - 1;
    default:
        return block.position() + random.bounded(block.length());
    }
}

void selectSomeLines(QRandomGenerator& random, QTextCursor& cursor)
{
    const QTextDocument* document = cursor.document();
    const int last = qMin(document->blockCount() - 1, cursor.blockNumber() + random.bounded(5));
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.setPosition(document->findBlockByNumber(last).position(), QTextCursor::KeepAnchor);
}

}  // namespace

RandomText::RandomText(const QStringList& lines, const QString& keys) : m_lines(lines), m_keys(keys)
{
}

QString RandomText::line(QRandomGenerator& random) const
{
    return m_lines.at(random.bounded(m_lines.size()));
}

QString RandomText::lines(QRandomGenerator& random, int most) const
{
    QStringList chosen;
    for (int n = random.bounded(most + 1); n > 0; --n) {
        chosen.append(line(random));
    }
    return chosen.join(QLatin1Char('\n'));
}

void RandomText::edit(QRandomGenerator& random, QTextDocument& document) const
{
    QTextCursor cursor(&document);
    cursor.setPosition(randomPosition(random, document));
    switch (random.bounded(10)) {
    case 0:
    case 1:
        cursor.insertText(m_keys.mid(random.bounded(m_keys.size()), 1));
        break;
    case 2:
        cursor.insertText(QLatin1Char('\n') + lines(random, 4));
        break;
    case 3:
        cursor.insertText(lines(random, 4) + QLatin1Char('\n'));
        break;
    case 4:
    case 5:
        selectSomeLines(random, cursor);
        cursor.insertText(random.bounded(2) ? lines(random, 3) : QString());
        break;
    case 6:
        cursor.setPosition(randomPosition(random, document), QTextCursor::KeepAnchor);
        if (qAbs(cursor.position() - cursor.anchor()) < LongestDeletion) {
            cursor.removeSelectedText();
        }
        break;
    case 7:
        cursor.deletePreviousChar();
        break;
    case 8:
        document.undo();
        break;
    default:
        document.redo();
        break;
    }
}
