// The code editor, with folding, ranges, current line and brackets, beside a bare text widget on
// the same kind of document: from a key to the painted text, and scrolling page by page.

#include "support/bench.h"
#include "support/codetext.h"
#include "support/document.h"

#include "editors/code/codeeditor.h"
#include "family/familydocument.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QThread>
#include <QtTest>

using namespace Zorv;

namespace {

constexpr int KeyRounds = 300;
constexpr int RestRounds = 40;
constexpr int PageCount = 1000;

/// Longer than brackets and ranges wait for the cursor to rest.
constexpr int Rest = 130;

using Bench::Document;

Document load(int lines)
{
    Document document = Bench::load(CodeText::make(CodeText::Form::Mixed, lines));
    Bench::putWidestOnTop(*document);
    return document;
}

/// Counts the paintings of a text widget.
class Paintings : public QObject
{
public:
    explicit Paintings(QPlainTextEdit& edit) { edit.viewport()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

void settle(int wait)
{
    QThread::msleep(ulong(wait));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void show(QPlainTextEdit& edit)
{
    edit.resize(1000, 900);
    edit.show();
    edit.activateWindow();
    edit.setFocus();
    settle(Rest);
}

void setUp(QPlainTextEdit& edit, Family::FamilyDocument& document)
{
    edit.setDocument(&document);
}

void setUp(CodeEditor& edit, Family::FamilyDocument& document)
{
    CodeEditor::SyntaxFormatting formatting;
    formatting.markArea = true;
    formatting.highlightBlocks = true;
    formatting.blockRangeColor = Qt::white;
    formatting.parenFormat.setForeground(Qt::red);
    formatting.parenRangeFormat.setBackground(Qt::cyan);
    edit.setSyntaxFormatting(formatting);
    edit.setDocument(&document);
}

/// A text widget on a document of its own, with the cursor behind the bracket of a
/// head in the middle, where brackets match and ranges are found.
template <class Edit>
struct View
{
    explicit View(int lines) : document(load(lines)), paintings(edit)
    {
        setUp(edit, *document);
        show(edit);
        QTextBlock block = document->findBlockByNumber(lines / 2);
        while (!block.text().startsWith(QLatin1String("[.walk]"))) {
            block = block.next();
        }
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock);
        edit.setTextCursor(cursor);
        edit.centerCursor();
        settle(Rest);
    }

    ~View() { edit.setDocument(nullptr); }

    void paint()
    {
        while (paintings.count == 0) {
            QCoreApplication::processEvents();
        }
    }

    /// Brackets are looked for, and a cursor is shown, where the focus is alone.
    void takeFocus()
    {
        if (!edit.hasFocus()) {
            edit.activateWindow();
            edit.setFocus();
            settle(0);
        }
    }

    /// A blank, which is taken back outside of the clock.
    double key()
    {
        takeFocus();
        paintings.count = 0;
        const double time = Bench::once([this] {
            QTest::keyClick(&edit, Qt::Key_Space);
            paint();
        });
        document->undo();
        QCoreApplication::processEvents();
        return time;
    }

    /// A blank with all that follows once the cursor rests.
    double keyAndRest()
    {
        takeFocus();
        paintings.count = 0;
        double time = Bench::once([this] {
            QTest::keyClick(&edit, Qt::Key_Space);
            paint();
        });
        QThread::msleep(Rest);
        time += Bench::once([] {
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
        });
        document->undo();
        settle(Rest);
        return time;
    }

    double pages(QAbstractSlider::SliderAction action)
    {
        return Bench::once([this, action] {
            for (int page = 0; page < PageCount; ++page) {
                paintings.count = 0;
                edit.verticalScrollBar()->triggerAction(action);
                paint();
            }
        });
    }

    Document document;
    Edit edit;
    Paintings paintings;
};

using Bare = View<QPlainTextEdit>;
using Full = View<CodeEditor>;

void compareKeys()
{
    Bare bare(100000);
    Full full(100000);
    std::vector<double> ratios;
    for (int round = 0; round < 5; ++round) {
        const double peer = Bench::medianOf(KeyRounds, [&] { return bare.key(); });
        const double ours = Bench::medianOf(KeyRounds, [&] { return full.key(); });
        Bench::figure("  a key, bare", peer, "ms");
        Bench::figure("  a key, code editor", ours, "ms");
        ratios.push_back(ours / peer);
    }
    std::sort(ratios.begin(), ratios.end());
    Bench::ratio("key to painted, 100,000 lines: code editor / bare", ratios[2], 1, 1.5);
}

void compareSizes()
{
    Full small(1000);
    Full large(1000000);
    // One after the other, so that whatever else the machine does meets both.
    const auto compare = [&](const char* name, int rounds, double (Full::*key)()) {
        std::vector<double> shortTimes;
        const double longTime = Bench::medianOf(rounds, [&] {
            shortTimes.push_back((small.*key)());
            return (large.*key)();
        });
        std::sort(shortTimes.begin(), shortTimes.end());
        const double shortTime = shortTimes[shortTimes.size() / 2];
        Bench::figure("  1,000 lines", shortTime, "ms");
        Bench::figure("  1,000,000 lines", longTime, "ms");
        Bench::ratio(name, longTime, shortTime, 1.3);
    };
    compare("key to painted: 1,000,000 / 1,000 lines", KeyRounds, &Full::key);
    compare("key, brackets and ranges: 1,000,000 / 1,000 lines", RestRounds, &Full::keyAndRest);
}

void compareScrolling()
{
    Bare bare(100000);
    Full full(100000);
    bare.edit.verticalScrollBar()->setValue(0);
    full.edit.verticalScrollBar()->setValue(0);
    settle(Rest);
    const double first = full.pages(QAbstractSlider::SliderPageStepAdd);
    const double peer = bare.pages(QAbstractSlider::SliderPageStepAdd);
    Bench::figure("  1,000 pages down, bare", peer, "ms");
    Bench::figure("  1,000 pages down, code editor", first, "ms");
    Bench::ratio("1,000 pages down, each for the first time: code editor / bare", first, peer, 1.5);
    const double back = full.pages(QAbstractSlider::SliderPageStepSub);
    const double peerBack = bare.pages(QAbstractSlider::SliderPageStepSub);
    Bench::figure("  1,000 pages up, bare", peerBack, "ms");
    Bench::figure("  1,000 pages up, code editor", back, "ms");
    Bench::ratio("1,000 pages up again: code editor / bare", back, peerBack, 1.5);
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    compareKeys();
    compareSizes();
    compareScrolling();
    return 0;
}
