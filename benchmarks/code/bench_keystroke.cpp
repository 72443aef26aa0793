// One keystroke in the middle of a file, with tree, list of messages and undo
// working: the time in a long file over that in a short one.

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

/// The median time of one key, which is taken back each time outside of the clock.
template <class Key>
double timeOf(QTextDocument& document, Key key)
{
    QTextCursor cursor(document.findBlockByNumber(document.blockCount() / 2));
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
void compare(const char* name, CodeText::Form form, Key key)
{
    const Document small = load(form, 10000);
    const Document large = load(form, 1000000);
    const double shortTime = timeOf(*small, key);
    const double longTime = timeOf(*large, key);
    Bench::ratio(name, longTime, shortTime, 1.5);
}

/// What Qt's document alone makes of the same.
template <class Key>
void compareBare(const char* name, Key key)
{
    double times[2];
    for (const int i : {0, 1}) {
        QTextDocument document;
        document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
        document.setPlainText(CodeText::make(CodeText::Form::Comments, i ? 1000000 : 10000));
        Bench::putWidestOnTop(document);
        times[i] = timeOf(document, key);
    }
    Bench::ratio(name, times[1], times[0]);
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
    compare("a character, mixed file: 1,000,000 / 10,000 lines", Form::Mixed, type);
    compare("a character, comments alone: 1,000,000 / 10,000 lines", Form::Comments, type);
    compare("a character, one head: 1,000,000 / 10,000 lines", Form::OneHead, type);
    compare("a line end, mixed file: 1,000,000 / 10,000 lines", Form::Mixed, open);
    compare("a line end, comments alone: 1,000,000 / 10,000 lines", Form::Comments, open);
    compare("a line end, one head: 1,000,000 / 10,000 lines", Form::OneHead, open);
    compareBare("  a line end in Qt's document alone", open);
    compare("a line made a comment, mixed: 1,000,000 / 10,000 lines", Form::Mixed, comment);
    compare("a line made a comment, one head: 1,000,000 / 10,000 lines", Form::OneHead, comment);
    return 0;
}
