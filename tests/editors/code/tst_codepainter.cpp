#include "editors/code/codeeditor.h"

#include "showneditor.h"
#include "support/testtable.h"

#include <QInputMethodEvent>
#include <QScreen>

using namespace Zorv;

namespace {

using Formatting = CodeEditor::SyntaxFormatting;

/// Without anything that a plain text widget lacks.
Formatting bare()
{
    Formatting formatting;
    formatting.lineNumbers = formatting.foldingMarkers = false;
    formatting.highlightCurrentLine = formatting.parenMatching = false;
    formatting.blockRangeColor = Qt::white;
    return formatting;
}

QImage picture(const QPlainTextEdit& edit)
{
    return edit.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int count(const QImage& image, const QRect& area, const QColor& color)
{
    int pixels = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            pixels += image.valid(x, y) && image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return pixels;
}

/// The cell of a column in an editor with a fixed pitch.
QRect cellOf(ShownEditor& shown, int line, int column)
{
    QTextCursor cursor(shown.line(line));
    cursor.setPosition(cursor.position() + column);
    QRect cell = shown.editor.cursorRect(cursor);
    cell.setWidth(QFontMetrics(shown.document.defaultFont()).horizontalAdvance(u'x'));
    return cell;
}

void select(QPlainTextEdit& edit, int anchor, int position)
{
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
}

}  // namespace

/// What is to be seen of the text, read from a picture of it.
class TestCodePainter : public QObject
{
    Q_OBJECT

private slots:
    void asTheBaseClass_data();
    void asTheBaseClass();
    void ranges_data();
    void ranges();
    void rangesStartAtTheText();
    void screenIsPaintedAnew();
    void currentLine();
    void overwriteCell_data();
    void overwriteCell();
    void noCursorIfReadOnly();
    void selectionLiesOnBrackets();
    void underlinesLieOnTop();
};

void TestCodePainter::asTheBaseClass_data()
{
    columns<QString, int>("text", "state");
    const QString long100000 = QString(50000, QLatin1Char('x')) + QString(50000, QLatin1Char(' '));
    const QString many = QStringLiteral("[1]\nlife=100\n?e\n").repeated(40);
    enum { Plain, Selected, Wrapped, Scrolled, Composed, Below, Placeholder };
    QTest::newRow("plain") << many << int(Plain);
    QTest::newRow("selected") << many << int(Selected);
    QTest::newRow("scrolled") << many << int(Scrolled);
    QTest::newRow("composed") << "[1]\nlife=1" << int(Composed);
    QTest::newRow("empty, composed") << "" << int(Composed);
    QTest::newRow("background below") << "[1]\nlife=1" << int(Below);
    QTest::newRow("placeholder") << "" << int(Placeholder);
    const struct
    {
        const char* name;
        QString text;
    } texts[] = {
        {"right to left", QString::fromUtf8("שלום abc=1 עולם\n[1]\nمرحبا=2")},
        {"tabs", QStringLiteral("\ta=1\t\tb\n[1]\n\t\t")},
        {"wide", QString::fromUtf8("漢字=1 かな\n[1]\n𝔘=𝔙")},
        {"combining", QString::fromUtf8("e\u0301a\u0308=1\n\u0301\n[1]")},
        {"100,000 characters", QStringLiteral("[1]\n") + long100000},
    };
    for (const auto& row : texts) {
        QTest::addRow("%s", row.name) << row.text << int(Plain);
        QTest::addRow("%s, selected", row.name) << row.text << int(Selected);
        QTest::addRow("%s, wrapped", row.name) << row.text << int(Wrapped);
    }
}

/// Where nothing is marked, a plain text widget on the same document looks the same.
void TestCodePainter::asTheBaseClass()
{
    const auto [text, state] = fetched<QString, int>();
    ShownEditor shown(text);
    shown.editor.setSyntaxFormatting(bare());
    GrammarDocument document(text);
    document.setDefaultFont(shown.document.defaultFont());
    QPlainTextEdit plain;
    plain.setFrameStyle(QFrame::NoFrame);
    plain.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    plain.setFont(shown.editor.font());
    plain.setDocument(&document);
    plain.show();
    plain.resize(plain.size() + shown.viewport()->size() - plain.viewport()->size());
    QCOMPARE(plain.viewport()->size(), shown.viewport()->size());
    QVector<QImage> pictures;
    for (QPlainTextEdit* edit : {&plain, static_cast<QPlainTextEdit*>(&shown.editor)}) {
        edit->activateWindow();
        edit->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(edit));
        edit->setLineWrapMode(state == 2 ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
        edit->setPlaceholderText(state >= 4 ? QStringLiteral("Type here") : QString());
        edit->setBackgroundVisible(state == 5);
        select(*edit, state == 1 ? 2 : 0, state == 1 ? edit->document()->characterCount() - 2 : 0);
        edit->verticalScrollBar()->setValue(state == 3 ? 7 : 0);
        edit->horizontalScrollBar()->setValue(state == 3 ? 9 : 0);
        if (state == 6) {
            QTest::keyClicks(edit, QStringLiteral("x\b"));
        }
        if (state == 4) {
            QInputMethodEvent compose(
                QStringLiteral("kana"),
                {QInputMethodEvent::Attribute(QInputMethodEvent::Cursor, 2, 1, QVariant())});
            QCoreApplication::sendEvent(edit, &compose);
        }
        pictures.append(picture(*edit));
    }
    // Qt leaves a margin of what is below free.
    const QRect area = pictures.at(0).rect().adjusted(0, 0, state == 5 ? -4 : 0, 0);
    QCOMPARE(pictures.at(1).copy(area), pictures.at(0).copy(area));
    plain.setDocument(nullptr);
}

void TestCodePainter::ranges_data()
{
    // `grays`: of the line, from the right edge inwards
    // `levels`: that the line stands in
    columns<QString, int, QColor, QVector<int>, int>("text", "line", "base", "grays", "levels");
    const QString deep = QStringLiteral("z=1\n[1]\ny=1\n[2*]\n#\n[3]\na=1\nb=1");
    const QColor white(255, 255, 255), dark(30, 30, 30);
    using Grays = QVector<int>;
    QTest::newRow("one, light") << "[1*]\na=1" << 1 << white << Grays{225, 255};
    QTest::newRow("one, dark") << "[1*]\na=1" << 1 << dark << Grays{70, 30};
    QTest::newRow("one, at 128") << "[1*]\na=1" << 1 << QColor(128, 128, 128) << Grays{168, 128};
    QTest::newRow("one, clamped") << "[1*]\na=1" << 1 << QColor(129, 129, 10) << Grays{99, 129};
    QTest::newRow("two, light") << "[1*]\n#\n[2]\na=1" << 3 << white << Grays{225, 240, 255};
    QTest::newRow("two, dark") << "[1*]\n#\n[2]\na=1" << 3 << dark << Grays{70, 50, 30};
    QTest::newRow("outside") << "[1*]\na=1\n[2*]" << 2 << white << Grays{225};
    QTest::newRow("four, light") << deep << 6 << white << Grays{225, 232, 240, 240, 255};
    QTest::newRow("four, dark") << deep << 6 << dark << Grays{70, 60, 50, 50, 30};
}

void TestCodePainter::ranges()
{
    const auto [text, line, base, grays] = fetched<QString, int, QColor, QVector<int>>();
    ShownEditor shown(text);
    Formatting formatting = bare();
    formatting.highlightBlocks = true;
    formatting.blockRangeColor = base;
    shown.editor.setSyntaxFormatting(formatting);
    shown.putCursor(std::min(line, 1), 0);
    shown.putCursor(grays.size() > 1 ? line : 0, 0);
    QTRY_VERIFY(!shown.editor.rangeStarts().isEmpty());
    const QImage image = picture(shown.editor);
    const int y = shown.editor.cursorRect(QTextCursor(shown.line(line))).center().y();
    for (int i = 0; i < grays.size(); ++i) {
        QCOMPARE(image.pixelColor(image.width() - 8 * i - 4, y).red(), grays.at(i));
    }
    QCOMPARE(image.pixelColor(image.width() - 8 * grays.size() - 4, y).red(), grays.last());
    QCOMPARE(image.pixelColor(image.width() - 4, y).red(), grays.first());
}

/// The left edge is that of the text of the outer of both lines, wherever the view was when
/// the ranges were found.
void TestCodePainter::rangesStartAtTheText()
{
    ShownEditor shown(QStringLiteral("    z=1\n[1]\ny=1\n        x=") + QString(200, u'1'));
    Formatting formatting = bare();
    formatting.highlightBlocks = true;
    shown.editor.setSyntaxFormatting(formatting);
    shown.putCursor(3, -1);
    QTRY_COMPARE(shown.editor.rangeStarts(), (QList<int>{0, 1}));
    shown.editor.horizontalScrollBar()->setValue(0);
    const QRect text = cellOf(shown, 0, 4);
    const QImage image = picture(shown.editor);
    QCOMPARE(image.pixelColor(text.left() - 1, text.top()).red(), 225);
    QCOMPARE(image.pixelColor(text.left(), text.top()).red(), 240);
    QCOMPARE(image.pixelColor(text.left() - 1, cellOf(shown, 2, 0).top()).red(), 255);
}

/// Qt moves what is painted, or paints a part of it alone.
void TestCodePainter::screenIsPaintedAnew()
{
    ShownEditor shown(QStringLiteral("[1]\ny=1\nx=") + QString(200, u'1'));
    Formatting formatting = bare();
    formatting.highlightBlocks = true;
    shown.editor.setSyntaxFormatting(formatting);
    QTRY_VERIFY(!shown.editor.rangeStarts().isEmpty());
    const auto isAnew = [&shown] {
        const WId window = shown.editor.winId();
        const QPixmap screen = shown.editor.screen()->grabWindow(window, 0, 0, shown.editor.width(),
                                                                 shown.editor.height());
        return screen.toImage().convertToFormat(QImage::Format_RGB32) ==
               shown.editor.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    QTRY_VERIFY(isAnew());
    shown.editor.horizontalScrollBar()->setValue(20);
    QTRY_VERIFY(isAnew());
    shown.editor.horizontalScrollBar()->setValue(0);
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&shown.editor, Qt::Key_Insert);
        QTRY_VERIFY(isAnew());
    }
}

void TestCodePainter::currentLine()
{
    ShownEditor shown(QStringLiteral("[1]\na=") + QStringLiteral("word ").repeated(40));
    Formatting formatting = bare();
    formatting.highlightCurrentLine = true;
    formatting.currentLineColor = QColor(1, 200, 3);
    shown.editor.setSyntaxFormatting(formatting);
    shown.editor.setLineWrapMode(QPlainTextEdit::WidgetWidth);
    shown.putCursor(1, 80);
    const QImage image = picture(shown.editor);
    const QRect line = shown.editor.cursorRect();
    const auto lineAt = [&shown](int column) {
        return shown.line(1).layout()->lineForTextPosition(column);
    };
    QVERIFY(lineAt(80).lineNumber() > 0);
    for (const int x : {0, image.width() - 1}) {
        QCOMPARE(count(image, QRect(x, line.top(), 1, line.height()), formatting.currentLineColor),
                 line.height());
        QCOMPARE(count(image, QRect(x, 0, 1, image.height()), formatting.currentLineColor),
                 line.height());
    }
}

void TestCodePainter::overwriteCell_data()
{
    // `from`: cells from the cursor to the drawn one
    // `glyph`: is drawn in it
    columns<QString, int, int, bool>("text", "column", "from", "glyph");
    QTest::newRow("a character") << "#@b" << 1 << 0 << true;
    QTest::newRow("the end") << "#a" << 2 << 0 << false;
    QTest::newRow("a tab") << "#\tb" << 1 << 6 << false;
    QTest::newRow("a blank") << "# b" << 1 << 0 << false;
}

void TestCodePainter::overwriteCell()
{
    const auto [text, column, from, glyph] = fetched<QString, int, int, bool>();
    ShownEditor shown(text);
    shown.editor.setSyntaxFormatting(bare());
    const qreal pitch = QFontMetricsF(shown.document.defaultFont()).horizontalAdvance(u' ');
    shown.editor.setTabStopDistance(8 * pitch);
    shown.putCursor(0, column);
    const QRect cursor = cellOf(shown, 0, column);
    const int width = cursor.width();
    QTest::keyClick(&shown.editor, Qt::Key_Insert);
    const QImage image = picture(shown.editor);
    const QRect cell(cursor.left() + from * width, cursor.top(), width, cursor.height());
    for (const int x : {cell.left() + 1, cell.right() - 1}) {
        QCOMPARE(image.pixelColor(x, cell.top()), QColor(Qt::black));
        QCOMPARE(image.pixelColor(x, cell.bottom()), QColor(Qt::black));
    }
    for (const int x : {cell.left() - 2, cell.right() + 3}) {
        QCOMPARE(image.pixelColor(x, cell.top()), QColor(Qt::white));
    }
    QCOMPARE(count(image, cell.adjusted(2, 0, -2, 0), Qt::black) <
                 (cell.width() - 4) * cell.height(),
             glyph);
}

void TestCodePainter::noCursorIfReadOnly()
{
    ShownEditor shown(QStringLiteral("  "));
    shown.editor.setSyntaxFormatting(bare());
    shown.putCursor(0, 1);
    const QRect cursor = shown.editor.cursorRect();
    QVERIFY(count(picture(shown.editor), cursor, Qt::black) > 9);
    shown.editor.setReadOnly(true);
    shown.editor.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    QCOMPARE(count(picture(shown.editor), cursor, Qt::black), 0);
}

void TestCodePainter::selectionLiesOnBrackets()
{
    ShownEditor shown(QStringLiteral("(  )"));
    Formatting formatting = bare();
    formatting.parenMatching = true;
    formatting.parenRangeFormat.setBackground(Qt::cyan);
    shown.editor.setSyntaxFormatting(formatting);
    shown.putCursor(0, 4);
    const QPoint inside = cellOf(shown, 0, 2).center();
    QTRY_COMPARE(picture(shown.editor).pixelColor(inside), QColor(Qt::cyan));
    select(shown.editor, 0, 4);
    QTRY_COMPARE(shown.editor.extraSelections().size(), 3);
    QCOMPARE(picture(shown.editor).pixelColor(inside),
             shown.editor.palette().color(QPalette::Highlight));
}

/// A mark of a problem is to be seen whatever else is marked, and in whatever order.
void TestCodePainter::underlinesLieOnTop()
{
    ShownEditor shown(QStringLiteral("    "));
    shown.editor.setSyntaxFormatting(bare());
    QTextEdit::ExtraSelection line, fill;
    line.cursor = fill.cursor = QTextCursor(shown.line(0));
    line.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    fill.cursor = line.cursor;
    line.format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    line.format.setUnderlineColor(Qt::red);
    fill.format.setBackground(Qt::cyan);
    for (const auto& selections : {QList<QTextEdit::ExtraSelection>{line, fill}, {fill, line}}) {
        shown.editor.setExtraSelections(selections);
        const QImage image = picture(shown.editor);
        QVERIFY(count(image, cellOf(shown, 0, 2), Qt::cyan) > 0);
        QVERIFY(count(image, cellOf(shown, 0, 2), Qt::red) > 0);
    }
}

QTEST_MAIN(TestCodePainter)
#include "tst_codepainter.moc"
