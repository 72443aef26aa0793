// Folding in the code editor: everything at once, in a file and in one twice as long, and what a
// key costs beside a long fold.

#include "support/bench.h"
#include "support/document.h"

#include "editors/code/codeeditor.h"

#include <QApplication>
#include <QTextBlock>
#include <QtTest>

using namespace Zorv;

namespace {

constexpr int Rounds = 15;
constexpr int KeyRounds = 200;
constexpr int BlockLength = 20;

using Bench::Document;

/// Groups of a length.
Document load(int lines, int blockLength)
{
    QString text;
    for (int i = 0; i < lines; ++i) {
        text += i % blockLength == 0 ? QStringLiteral("[constants]\n")
                                     : QStringLiteral("life = %1\n").arg(i);
    }
    return Bench::load(text);
}

void show(CodeEditor& editor, CodeDocument* document)
{
    editor.setLineWrapMode(QPlainTextEdit::NoWrap);
    editor.resize(1000, 800);
    editor.setDocument(document);
    editor.show();
    QCoreApplication::processEvents();
}

/// A file in an editor on the screen.
struct Open
{
    Open(int lines, int blockLength) : document(load(lines, blockLength))
    {
        show(editor, document.get());
    }
    ~Open() { editor.setDocument(nullptr); }

    /// Folds all and unfolds all, each with the painting of the result.
    double foldingTime()
    {
        const double time = Bench::once([this] {
            editor.foldAll();
            QCoreApplication::processEvents();
        });
        if (document->lineCount() > document->blockCount() / BlockLength + 1) {
            qFatal("not folded");
        }
        return time + Bench::once([this] {
                   editor.unfoldAll();
                   QCoreApplication::processEvents();
               });
    }

    Document document;
    CodeEditor editor;
};

/// Round by round in turn, so that whatever else the machine does meets both.
void compareFolding()
{
    Open once(100000, BlockLength);
    Open twice(200000, BlockLength);
    std::vector<double> times;
    const double ratio = Bench::medianOf(Rounds, [&] {
        times.push_back(once.foldingTime());
        return twice.foldingTime() / times.back();
    });
    std::sort(times.begin(), times.end());
    Bench::figure("fold all and unfold all: 100,000 lines in 5,000 blocks", times[times.size() / 2],
                  "ms");
    Bench::ratio("fold all and unfold all: 200,000 / 100,000 lines", ratio, 1, 2.3);
}

/// A key in the head of a long fold and of a short one, or right behind them.
void compareKeys(const char* name, bool behind)
{
    Open small(4000, 2000);
    Open large(400000, 200000);
    for (Open* open : {&small, &large}) {
        open->editor.toggleBlockVisible(open->document->begin());
        const int line = behind ? open->document->blockCount() / 2 + 1 : 0;
        QTextCursor cursor(open->document->findBlockByNumber(line));
        cursor.movePosition(QTextCursor::EndOfBlock);
        open->editor.setTextCursor(cursor);
    }
    const auto time = [](Open& open) {
        return Bench::once([&] {
            QTest::keyClick(&open.editor, Qt::Key_Space);
            QCoreApplication::processEvents();
        });
    };
    const double ratio =
        Bench::medianOf(KeyRounds, [&] { return time(large) / std::max(time(small), 1e-6); });
    Bench::ratio(name, ratio, 1, 1.5);
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    compareFolding();
    compareKeys("a key in the head of a fold: 200,000 / 2,000 hidden lines", false);
    compareKeys("a key behind a fold: 200,000 / 2,000 hidden lines", true);
    return 0;
}
