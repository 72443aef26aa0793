// What an edit parses again, what a line costs in memory, how often lists are
// told, and how sorting grows.

#include "support/bench.h"
#include "support/codetext.h"
#include "support/document.h"

#include "code/codedoc/animationcode.h"
#include "core/messagelist.h"
#include "core/messages.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"

#include <QGuiApplication>
#include <QPlainTextDocumentLayout>
#include <QRandomGenerator>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

#include <malloc.h>

namespace {

using Bench::Document;
using Bench::load;

/// A head of 20 lines in the middle of 100,000, made text and a head again.
void countParsedLines()
{
    const int middle = 50000;
    QStringList lines = CodeText::makeIni(100000).split(QLatin1Char('\n'));
    for (int line = middle - 20; line < middle + 20; ++line) {
        lines[line] = QStringLiteral("life = 5");
    }
    lines[middle] = QStringLiteral("[info]");
    lines[middle + 20] = QStringLiteral("[constants]");
    const Document document = load(lines.join(QLatin1Char('\n')));
    QTextCursor cursor(document->findBlockByNumber(middle));
    quint64 before = document->parsedLineCount();
    cursor.insertText(QStringLiteral("#"));
    Bench::figure("head to text, 20 lines depend on it: parsed again",
                  double(document->parsedLineCount() - before), "lines");
    before = document->parsedLineCount();
    cursor.deletePreviousChar();
    Bench::figure("text to head, 20 lines depend on it: parsed again",
                  double(document->parsedLineCount() - before), "lines");
}

/// Sets the formats that another document has, and keeps nothing else.
class Formatter : public QSyntaxHighlighter
{
public:
    Formatter(QTextDocument* document, const QTextDocument* model)
        : QSyntaxHighlighter(document), m_model(model)
    {
    }

protected:
    void highlightBlock(const QString&) override
    {
        const QTextBlock block = m_model->findBlockByNumber(currentBlock().blockNumber());
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            setFormat(range.start, range.length, range.format);
        }
        setCurrentBlockState(block.userState());
    }

private:
    const QTextDocument* m_model;
};

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

void compareMemory(const char* name, const QString& text)
{
    const int lines = text.count(QLatin1Char('\n')) + 1;
    const double start = bytesInUse();
    const Document document = load(text);
    const double own = bytesInUse() - start;
    QTextDocument plain;
    plain.setDocumentLayout(new QPlainTextDocumentLayout(&plain));
    const Formatter formatter(&plain, document.get());
    const double middle = bytesInUse();
    plain.setPlainText(text);
    const double peer = bytesInUse() - middle;
    Bench::ratio(name, own, peer, 1.5);
    Bench::figure("  with tree", own / lines, "bytes a line");
    Bench::figure("  under a highlighter alone", peer / lines, "bytes a line");
}

void countNotifications()
{
    const QString text = CodeText::make(CodeText::Form::Bad, 10000);
    const Document document(new Family::FamilyDocument(Family::FileKind::Code));
    Zorv::MessageList list(nullptr);
    list.registerMessages(document->messages());
    int updates = 0;
    QObject::connect(&list, &Zorv::MessageList::updated, [&updates] { ++updates; });
    document->setPlainText(text);
    Bench::figure("messages after 10,000 bad lines", list.rowCount(), "messages");
    updates = 0;
    document->reparse();
    Bench::figure("a full parse of them tells the project's list", updates, "times");
    list.unregisterMessages(document->messages());
}

double timeOfSort(int count)
{
    QList<int> numbers;
    QRandomGenerator random(7);
    for (int i = 0; i < count; ++i) {
        numbers.insert(int(random.bounded(numbers.size() + 1)), i);
    }
    QString text;
    for (const int number : qAsConst(numbers)) {
        text +=
            QStringLiteral("animation %1\nbody -16,-88, 16,0\nframe %1,0  delay 4\n\n").arg(number);
    }
    const Document document = load(text);
    const double time = Bench::once([&] { document->animations()->autoOrganize(); });
    if (document->animations()->at(0)->property(QStringLiteral("Identifier")).toInt() != 0) {
        std::puts("not sorted: the benchmark is wrong");
    }
    document->undo();
    if (document->text() != text) {
        std::puts("not one step of undo: the benchmark is wrong");
    }
    return time;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    countParsedLines();
    compareMemory("memory, plain values", CodeText::makeIni(200000));
    compareMemory("memory, mixed file", CodeText::make(CodeText::Form::Mixed, 200000));
    countNotifications();
    const double one = timeOfSort(2000);
    const double two = timeOfSort(4000);
    Bench::ratio("sorting animations: 4,000 / 2,000", two, one, 4.5);
    return 0;
}
