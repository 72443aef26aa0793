// One keystroke in the middle of a file, with tree, list of messages and undo
// working: the time in a long file over that in a short one, on a line of the same kind.

#include "support/bench.h"
#include "support/codetext.h"
#include "support/document.h"

#include "core/messages.h"

#include <QGuiApplication>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr int Rounds = 400;

using Bench::Document;

Document load(CodeText::Form form, int lines)
{
    Document document = Bench::load(CodeText::make(form, lines));
    Bench::putWidestOnTop(*document);
    return document;
}

/// The line that begins so, at the middle or below.
QTextBlock lineInMiddle(const QTextDocument& document, const QString& start)
{
    QTextBlock block = document.findBlockByNumber(document.blockCount() / 2);
    while (!block.text().startsWith(start)) {
        block = block.next();
    }
    return block;
}

/// The median time of one key, which is taken back each time outside of the clock.
template <class Key>
double timeOf(QTextDocument& document, const QString& start, Key key)
{
    QTextCursor cursor(lineInMiddle(document, start));
    const auto press = [&] {
        cursor.movePosition(QTextCursor::EndOfBlock);
        const double time = Bench::once([&] { key(cursor); });
        document.undo();
        return time;
    };
    press();
    return Bench::medianOf(Rounds, press);
}

template <class Key>
void compare(const char* name, CodeText::Form form, Key key, const QString& start = QString())
{
    const Document small = load(form, 10000);
    const Document large = load(form, 1000000);
    const double shortTime = timeOf(*small, start, key);
    const double longTime = timeOf(*large, start, key);
    Bench::ratio(name, longTime, shortTime, 1.5);
}

/// A key in comments alone: what Qt's document takes for the same, and what the library adds to it.
template <class Key>
void compareShares(const char* qt, const char* own, Key key)
{
    double bareTimes[2];
    double ownTimes[2];
    for (const int i : {0, 1}) {
        const int lines = i ? 1000000 : 10000;
        QTextDocument document;
        document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
        document.setPlainText(CodeText::make(CodeText::Form::Comments, lines));
        Bench::putWidestOnTop(document);
        bareTimes[i] = timeOf(document, QString(), key);
        ownTimes[i] = timeOf(*load(CodeText::Form::Comments, lines), QString(), key);
    }
    Bench::ratio(qt, bareTimes[1], bareTimes[0]);
    Bench::ratio(own, ownTimes[1] - bareTimes[1], ownTimes[0] - bareTimes[0], 1.5);
}

void type(QTextCursor& cursor)
{
    cursor.insertText(QStringLiteral("x"));
}

void open(QTextCursor& cursor)
{
    cursor.insertText(QStringLiteral("\n"));
}

/// Makes the line something without a node.
void comment(QTextCursor& cursor)
{
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.insertText(QStringLiteral("#"));
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    using Form = CodeText::Form;
    const QString value = QStringLiteral("back");
    const QString frame = QStringLiteral("frame");
    const QString head = QStringLiteral("animation");
    compare("a character, mixed file: 1,000,000 / 10,000 lines", Form::Mixed, type, frame);
    compare("a character, comments alone: 1,000,000 / 10,000 lines", Form::Comments, type);
    compare("a character, one head: 1,000,000 / 10,000 lines", Form::OneHead, type);
    compare("a line end, mixed file: 1,000,000 / 10,000 lines", Form::Mixed, open, frame);
    compare("a line end, comments alone: 1,000,000 / 10,000 lines", Form::Comments, open);
    compare("a line end, one head: 1,000,000 / 10,000 lines", Form::OneHead, open);
    compareShares("  a line end in Qt's document alone", "  what the library adds to that", open);
    compare("a value made a comment: 1,000,000 / 10,000 lines", Form::Mixed, comment, value);
    compare("a frame made a comment: 1,000,000 / 10,000 lines", Form::Mixed, comment, frame);
    compare("an animation made a comment: 1,000,000 / 10,000 lines", Form::Mixed, comment, head);
    compare("a line made a comment, one head: 1,000,000 / 10,000 lines", Form::OneHead, comment);
    return 0;
}
