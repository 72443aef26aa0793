#include "editors/code/codeeditor.h"

#include "showneditor.h"
#include "support/randomtext.h"
#include "support/testtable.h"

#include <QRandomGenerator>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261122;

const RandomText Random({"[1]", "[1*]", "a=1", "b=2", "# note", "", "x\u00a0y"},
                        QStringLiteral("[]!-=#*1a\n"));

/// The text with "<" at the anchor and ">" at the cursor; ">" alone without a selection.
QString marked(const ShownEditor& shown)
{
    const QTextCursor cursor = shown.editor.textCursor();
    QString text = shown.document.text();
    text.insert(cursor.position(), QLatin1Char('>'));
    if (cursor.hasSelection()) {
        const bool isBehind = cursor.anchor() > cursor.position();
        text.insert(cursor.anchor() + (isBehind ? 1 : 0), QLatin1Char('<'));
    }
    return text;
}

void setMarked(ShownEditor& shown, const QString& text)
{
    int anchor = text.indexOf(QLatin1Char('<'));
    int position = text.indexOf(QLatin1Char('>'));
    if (anchor >= 0) {
        --(anchor < position ? position : anchor);
    }
    shown.editor.setPlainText(QString(text).remove(QLatin1Char('<')).remove(QLatin1Char('>')));
    QTextCursor cursor(&shown.document);
    cursor.setPosition(anchor < 0 ? position : anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    shown.editor.setTextCursor(cursor);
}

/// A list of lines, each with what it hides, of which those that are selected change places with
/// their neighbour.
QString movedByList(const ShownEditor& shown, bool isUp)
{
    const QTextCursor cursor = shown.editor.textCursor();
    QVector<QStringList> lines;
    int first = -1;
    int last = -1;
    for (QTextBlock b = shown.line(0); b.isValid(); b = b.next()) {
        if (b.isVisible()) {
            lines.append(QStringList());
        }
        lines.last().append(b.text());
        const bool begins = b.contains(cursor.selectionStart());
        first = begins ? lines.size() - 1 : first;
        const bool isTouched = begins || b.position() < cursor.selectionEnd();
        last = first >= 0 && isTouched ? lines.size() - 1 : last;
    }
    const bool hasEnd = lines.last() == QStringList(QString());
    const int count = lines.size() - (hasEnd ? 1 : 0);
    last = std::min(last, count - 1);
    const int from = isUp ? first - 1 : last + 1;
    if (first <= last && from >= 0 && from < count) {
        lines.move(from, isUp ? last : first);
    }
    QStringList all;
    for (const QStringList& line : lines) {
        all += line;
    }
    return all.join(QLatin1Char('\n'));
}

void move(CodeEditor& editor, bool isUp)
{
    isUp ? editor.moveLinesUp() : editor.moveLinesDown();
}

}  // namespace

/// Lines that are moved up and down.
class TestCodeLines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void moves_data();
    void moves();
    void foldsGoAlong_data();
    void foldsGoAlong();
    void likeAListOfLines();
    void notWhatIsOnlyToBeRead();
};

void TestCodeLines::moves_data()
{
    columns<bool, QString, QString>("isUp", "before", "after");
    const QString same;
    row("up", true, "a\nb>c\nd", "b>c\na\nd");
    row("down", false, "a\nb>c\nd", "a\nd\nb>c");
    row("the first line", true, "a>\nb", same);
    row("the last line", false, "a\nb>", same);
    row("a last line without an end, up", true, "a\nb>", "b>\na");
    row("not behind the end of the text", false, "a\nb>\n", same);
    row("the end of the text is no line", true, "a\nb\n>", same);
    row("several lines", true, "a\nb<c\nd>e\nf", "b<c\nd>e\na\nf");
    row("selected backwards", false, "a>b\nc<d\ne", "e\na>b\nc<d");
    row("not the line that a selection ends in front of", true, "a\n<b\n>c", "<b\n>a\nc");
    row("the same, to the end of the text", false, "<a\n>b", "b\n<a>");
    row("all", true, "<a\nb\n>", same);
    row("an empty line", true, "a\n>\nb", ">\na\nb");
    row("over an empty line", false, "a>\n\nb", "\na>\nb");
    row("blanks that do not break", false, "a>\nb\u00a0c", "b\u00a0c\na>");
}

void TestCodeLines::moves()
{
    const auto [isUp, before, after] = fetched<bool, QString, QString>();
    ShownEditor shown;
    setMarked(shown, before);
    QCOMPARE(marked(shown), before);
    const QString text = shown.document.text();
    move(shown.editor, isUp);
    QCOMPARE(marked(shown), after.isNull() ? before : after);
    shown.document.undo();
    QCOMPARE(shown.document.text(), text);
}

void TestCodeLines::foldsGoAlong_data()
{
    columns<bool, int, QString, QString>("isUp", "line", "text", "visibility");
    // Groups 0 to 2, each with a line below; the first two are folded.
    const QString swapped = QStringLiteral("[2*]\nb=2\n[1*]\na=1\n[3*]\nc=3");
    row("a fold down over a fold", false, 0, swapped, ".h.h..");
    row("a fold up over a fold", true, 2, swapped, ".h.h..");
    row("a line up over a fold", true, 4, "[1*]\na=1\n[3*]\n[2*]\nb=2\nc=3", ".h..h.");
}

void TestCodeLines::foldsGoAlong()
{
    const auto [isUp, line] = fetched<bool, int>();
    ShownEditor shown(QStringLiteral("[1*]\na=1\n[2*]\nb=2\n[3*]\nc=3"));
    shown.toggle({0, 2});
    shown.putCursor(line, 1);
    move(shown.editor, isUp);
    QTEST(shown.document.text(), "text");
    QTEST(shown.visibility(), "visibility");
}

/// Random selections in random texts with random folds.
void TestCodeLines::likeAListOfLines()
{
    QRandomGenerator random(Seed);
    for (int run = 0; run < 100; ++run) {
        ShownEditor shown(Random.lines(random, 12));
        for (int i = 0; i < 3; ++i) {
            shown.toggle({random.bounded(shown.document.blockCount())});
        }
        const int count = shown.document.characterCount();
        QTextCursor cursor(&shown.document);
        cursor.setPosition(random.bounded(count));
        cursor.setPosition(random.bounded(count), QTextCursor::KeepAnchor);
        shown.editor.setTextCursor(cursor);
        const QString text = shown.document.text();
        const QString selected = shown.editor.textCursor().selectedText();
        const bool isUp = random.bounded(2) == 0;
        const QString expected = movedByList(shown, isUp);
        move(shown.editor, isUp);
        QCOMPARE(shown.document.text(), expected);
        // The end of a line may have become the end of the text.
        QVERIFY(selected.startsWith(shown.editor.textCursor().selectedText()));
        QCOMPARE(faultOfFolds(&shown.document), QString());
        if (expected != text) {
            shown.document.undo();
            QCOMPARE(shown.document.text(), text);
        }
    }
}

void TestCodeLines::notWhatIsOnlyToBeRead()
{
    ShownEditor shown(QStringLiteral("a\nb"));
    shown.editor.setReadOnly(true);
    shown.editor.moveLinesDown();
    QCOMPARE(shown.document.text(), QStringLiteral("a\nb"));
}

QTEST_MAIN(TestCodeLines)
#include "tst_codelines.moc"
