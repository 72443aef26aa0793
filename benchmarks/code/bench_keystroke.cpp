// One keystroke in the middle of a file, with tree, list of messages and undo
// working: the time in a long file over that in a short one.

#include "support/bench.h"
#include "support/codetext.h"

#include "core/messages.h"
#include "familydocument.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>

#include <memory>

namespace {

constexpr int Rounds = 400;

struct Released
{
    void operator()(Family::FamilyDocument* document) const { document->release(); }
};
using Document = std::unique_ptr<Family::FamilyDocument, Released>;

Document load(CodeText::Form form, int lines)
{
    Document document(new Family::FamilyDocument(Family::FileKind::Code));
    document->setPlainText(CodeText::make(form, lines));
    // Qt looks through all lines when the widest one that it has laid out
    // shrinks: the widest stands at the top, and is left alone.
    QTextCursor cursor(document->begin());
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(QLatin1String("  # ") + QString(400, QLatin1Char('-')));
    return document;
}

/// Keys that change a line, open a new one, and are taken back.
template <class Edit>
double timeOf(Family::FamilyDocument& document, Edit edit)
{
    QTextCursor cursor(document.findBlockByNumber(document.blockCount() / 2));
    cursor.movePosition(QTextCursor::EndOfBlock);
    edit(cursor);
    return Bench::median(Rounds, [&] { edit(cursor); });
}

template <class Edit>
void compare(const char* name, CodeText::Form form, Edit edit)
{
    const Document small = load(form, 10000);
    const Document large = load(form, 1000000);
    const double shortTime = timeOf(*small, edit);
    const double longTime = timeOf(*large, edit);
    Bench::ratio(name, longTime, shortTime, 1.5);
}

void type(QTextCursor& cursor)
{
    cursor.insertText(QStringLiteral("x"));
    cursor.deletePreviousChar();
}

void open(QTextCursor& cursor)
{
    cursor.insertText(QStringLiteral("\n"));
    cursor.document()->undo();
}

/// Makes the line something without a node, and back.
void breakLine(QTextCursor& cursor)
{
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.insertText(QStringLiteral("#"));
    cursor.document()->undo();
    cursor.movePosition(QTextCursor::EndOfBlock);
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
    compare("a line end and undo, mixed file: 1,000,000 / 10,000 lines", Form::Mixed, open);
    compare("a line end and undo, comments alone: 1,000,000 / 10,000 lines", Form::Comments, open);
    compare("a line end and undo, one head: 1,000,000 / 10,000 lines", Form::OneHead, open);
    compare("a line in and out of comment, mixed: 1,000,000 / 10,000", Form::Mixed, breakLine);
    compare("a line in and out of comment, one head: 1,000,000 / 10,000", Form::OneHead, breakLine);
    return 0;
}
