#include "editors/code/codeeditor.h"

#include "showneditor.h"
#include "support/testtable.h"

#include <QPainter>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Zorv;

namespace {

const QString Nested = QStringLiteral("[1*]\n#\n[2]\na=1\nb=2\n[3*]\nc=3\n[4*]\nd=4\n# end");

/// Counts the events of a type that a widget gets.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget* widget, QEvent::Type type) : m_type(type)
    {
        widget->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

void showMarks(ShownEditor& shown)
{
    CodeEditor::SyntaxFormatting formatting = shown.editor.syntaxFormatting();
    formatting.markArea = true;
    shown.editor.setSyntaxFormatting(formatting);
}

void move(QWidget* widget, const QPoint& place, Qt::MouseButtons buttons = {})
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place),
                      buttons ? Qt::LeftButton : Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

bool contains(const QImage& image, const QRect& area, const QColor& color)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

/// The gutter, by mouse events and by what is to be seen.
class TestCodeGutter : public QObject
{
    Q_OBJECT

private slots:
    void widthFollowsItsColumns_data();
    void widthFollowsItsColumns();
    void standsAtTheStartOfLines();
    void blinkingLeavesItAlone();
    void hoveringShowsRanges();
    void pressFolds_data();
    void pressFolds();
    void pressSelectsLines_data();
    void pressSelectsLines();
    void dragSelectsLines();
    void dragScrolls();
    void worstMarkIsShown_data();
    void worstMarkIsShown();
    void pressOnAMark();
    void tipOfAMark();
};

void TestCodeGutter::widthFollowsItsColumns_data()
{
    columns<int, bool, bool, bool, int>("lines", "numbers", "marks", "folds", "digits");
    row("one line", 1, true, false, true, 2);
    row("99 lines", 99, true, false, true, 2);
    row("100 lines", 100, true, false, true, 3);
    row("no numbers", 100, false, false, true, 0);
    row("marks", 100, true, true, false, 3);
    row("nothing", 100, false, false, false, 0);
}

void TestCodeGutter::widthFollowsItsColumns()
{
    const auto [lines, numbers, marks, folds, digits] = fetched<int, bool, bool, bool, int>();
    ShownEditor shown(QString(lines - 1, QLatin1Char('\n')));
    CodeEditor::SyntaxFormatting formatting;
    formatting.lineNumbers = numbers;
    formatting.markArea = marks;
    formatting.foldingMarkers = folds;
    shown.editor.setSyntaxFormatting(formatting);
    const QFontMetrics metrics(shown.editor.font());
    const int line = metrics.lineSpacing();
    const int expected = digits * metrics.horizontalAdvance(QLatin1Char('9')) + 4 +
                         (marks ? line : 2) + (folds ? line + 1 + line % 2 : 0);
    QCOMPARE(shown.gutter()->width(), expected);
    QCOMPARE(shown.viewport()->x(), expected);
}

void TestCodeGutter::standsAtTheStartOfLines()
{
    ShownEditor shown(Nested);
    const int width = shown.gutter()->width();
    QCOMPARE(shown.gutter()->geometry(), QRect(0, 0, width, shown.editor.height()));
    shown.editor.setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    QCOMPARE(shown.gutter()->geometry(),
             QRect(shown.editor.width() - width, 0, width, shown.editor.height()));
    QVERIFY(!shown.viewport()->geometry().intersects(shown.gutter()->geometry()));
    shown.editor.setLayoutDirection(Qt::LeftToRight);
    QFont large = shown.editor.font();
    large.setPointSize(20);
    shown.editor.setFont(large);
    QVERIFY(shown.gutter()->width() > width);
    QCOMPARE(shown.viewport()->x(), shown.gutter()->width());
}

void TestCodeGutter::blinkingLeavesItAlone()
{
    ShownEditor shown(Nested);
    QTest::qWait(150);
    EventCounter text(shown.viewport(), QEvent::Paint);
    EventCounter gutter(shown.gutter(), QEvent::Paint);
    QApplication::setCursorFlashTime(40);
    shown.editor.clearFocus();
    shown.editor.setFocus();
    QTRY_VERIFY(text.count > 4);
    QCOMPARE(gutter.count, 0);
    QTest::keyClick(&shown.editor, Qt::Key_A);
    QTRY_VERIFY(gutter.count > 0);
}

void TestCodeGutter::hoveringShowsRanges()
{
    ShownEditor shown(Nested);
    const auto hasLine = [&](int line) {
        const QPoint place = shown.inGutter(line, -1);
        return contains(shown.gutter()->grab().toImage(),
                        QRect(place.x() - 16, place.y() - 1, 12, 2), Qt::gray);
    };
    QVERIFY(!hasLine(3));
    move(shown.gutter(), shown.inGutter(3, -5));
    QTRY_COMPARE(shown.editor.rangeStarts(), QList<int>({0, 2}));
    QVERIFY(hasLine(3));
    QVERIFY(!hasLine(1));
    QVERIFY(!hasLine(6));
    move(shown.gutter(), shown.inGutter(6, -5));
    QTRY_COMPARE(shown.editor.rangeStarts(), QList<int>({5}));
    QVERIFY(hasLine(6));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(shown.gutter(), &leave);
    QTRY_VERIFY(shown.editor.rangeStarts().isEmpty());
    QVERIFY(!hasLine(6));
}

void TestCodeGutter::pressFolds_data()
{
    columns<QVector<int>, QString>("lines", "expected");
    row("on a head", QVector<int>{5}, "......h...");
    row("anywhere in a range", QVector<int>{4}, "...hh.....");
    row("twice", QVector<int>{2, 2}, "..........");
    row("inner, then outer", QVector<int>{3, 1}, ".hhhh.....");
    row("outside of all ranges", QVector<int>{9}, "..........");
}

void TestCodeGutter::pressFolds()
{
    QFETCH(QVector<int>, lines);
    ShownEditor shown(Nested);
    shown.putCursor(lines.first(), 0);
    for (const int line : lines) {
        QTest::mouseClick(shown.gutter(), Qt::LeftButton, {}, shown.inGutter(line, -5));
    }
    QTEST(shown.visibility(), "expected");
    QVERIFY(shown.editor.textCursor().block().isVisible());
    QVERIFY(!shown.editor.textCursor().hasSelection());
}

void TestCodeGutter::pressSelectsLines_data()
{
    columns<int, QString>("line", "expected");
    row("a line", 3, "a=1\n");
    row("a folded one", 5, "[3*]\nc=3\n");
    row("the last one", 9, "# end");
}

void TestCodeGutter::pressSelectsLines()
{
    QFETCH(int, line);
    ShownEditor shown(Nested);
    shown.toggle({5});
    // Wherever the text is scrolled to.
    shown.putCursor(8, -1);
    QTest::keyClicks(&shown.editor, QString(100, QLatin1Char('x')));
    QVERIFY(shown.editor.horizontalScrollBar()->value() > 0);
    QTest::mouseDClick(shown.gutter(), Qt::LeftButton, {}, shown.inGutter(line, 5));
    QTEST(shown.editor.textCursor().selection().toPlainText(), "expected");
    QVERIFY(shown.editor.textCursor().position() > shown.editor.textCursor().anchor());
    QTest::mouseRelease(shown.gutter(), Qt::LeftButton, {}, shown.inGutter(line, 5));
    const QTextCursor selected = shown.editor.textCursor();
    move(shown.gutter(), shown.inGutter(0, 5));
    QCOMPARE(shown.editor.textCursor().anchor(), selected.anchor());
}

void TestCodeGutter::dragSelectsLines()
{
    ShownEditor shown(Nested);
    shown.toggle({5});
    const auto dragTo = [&](int line) {
        move(shown.gutter(), shown.inGutter(line, 5), Qt::LeftButton);
        return shown.editor.textCursor().selection().toPlainText();
    };
    QTest::mousePress(shown.gutter(), Qt::LeftButton, {}, shown.inGutter(4, 5));
    QCOMPARE(dragTo(5), QStringLiteral("b=2\n[3*]\nc=3\n"));
    QCOMPARE(shown.editor.textCursor().blockNumber(), 7);
    QCOMPARE(dragTo(3), QStringLiteral("a=1\nb=2\n"));
    QCOMPARE(shown.editor.textCursor().blockNumber(), 3);
    QCOMPARE(dragTo(4), QStringLiteral("b=2\n"));
    // The text goes while the mouse is down.
    GrammarDocument other(QStringLiteral("a\nb"));
    shown.editor.setDocument(&other);
    move(shown.gutter(), shown.inGutter(1, 5), Qt::LeftButton);
    QVERIFY(!shown.editor.textCursor().hasSelection());
    shown.editor.setDocument(nullptr);
}

void TestCodeGutter::dragScrolls()
{
    ShownEditor shown(QString(500, QLatin1Char('\n')));
    QScrollBar* bar = shown.editor.verticalScrollBar();
    bar->setValue(200);
    QTest::mousePress(shown.gutter(), Qt::LeftButton, {}, {5, 40});
    const int anchor = shown.editor.textCursor().anchor();
    const auto dragTo = [&](int y) {
        QCursor::setPos(shown.gutter()->mapToGlobal(QPoint(5, y)));
        move(shown.gutter(), {5, y}, Qt::LeftButton);
    };
    dragTo(shown.gutter()->height() + 50);
    QTRY_VERIFY(bar->value() > 205);
    QCOMPARE(shown.editor.textCursor().anchor(), anchor);
    QVERIFY(shown.editor.textCursor().position() > anchor);
    dragTo(-50);
    QTRY_VERIFY(bar->value() < 195);
    QTest::mouseRelease(shown.gutter(), Qt::LeftButton, {}, {5, -50});
    const int value = bar->value();
    QTest::qWait(120);
    QCOMPARE(bar->value(), value);
}

void TestCodeGutter::worstMarkIsShown_data()
{
    columns<QString, QString>("line", "icon");
    row("error", "?e", "error");
    row("warning", "?w", "warn");
    row("deprecation", "?d", "info");
    row("none", "# ?e", QString());
}

void TestCodeGutter::worstMarkIsShown()
{
    const auto [line, icon] = fetched<QString, QString>();
    ShownEditor shown(QStringLiteral("#\n") + line + QStringLiteral("\n#"));
    showMarks(shown);
    const int side = QFontMetrics(shown.editor.font()).lineSpacing();
    const int top = int(shown.editor.cursorRect(QTextCursor(shown.line(1))).top());
    const QImage strip = shown.gutter()
                             ->grab()
                             .toImage()
                             .copy(0, top, side, side)
                             .convertToFormat(QImage::Format_RGB32);
    QImage expected(strip.size(), QImage::Format_RGB32);
    expected.fill(shown.gutter()->palette().color(QPalette::Base).darker(115));
    QPainter painter(&expected);
    if (!icon.isNull()) {
        QIcon(QStringLiteral(":/zorvl_icons/icons/%1.png").arg(icon))
            .paint(&painter, 0, 0, side, side);
    }
    QCOMPARE(strip, expected);
}

void TestCodeGutter::pressOnAMark()
{
    ShownEditor shown(QStringLiteral("#\n?e\n#"));
    showMarks(shown);
    QSignalSpy spy(&shown.editor, &CodeEditor::markClicked);
    move(shown.gutter(), shown.inGutter(1, 5));
    QCOMPARE(shown.gutter()->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(shown.gutter(), Qt::LeftButton, {}, shown.inGutter(1, 5));
    QTest::mouseClick(shown.gutter(), Qt::LeftButton, {}, shown.inGutter(2, 5));
    QTest::mouseClick(shown.gutter(), Qt::RightButton, {}, shown.inGutter(0, 5));
    QCOMPARE(spy, QList<QVariantList>({{1}, {2}}));
    QVERIFY(!shown.editor.textCursor().hasSelection());
    move(shown.gutter(), shown.inGutter(1, 30));
    QCOMPARE(shown.gutter()->cursor().shape(), Qt::ArrowCursor);
}

void TestCodeGutter::tipOfAMark()
{
    ShownEditor shown(QStringLiteral("#\n?e <b>\n#"));
    showMarks(shown);
    const auto tip = [&](int line, int x) {
        const QPoint place = shown.inGutter(line, x);
        QHelpEvent event(QEvent::ToolTip, place, shown.gutter()->mapToGlobal(place));
        QCoreApplication::sendEvent(shown.gutter(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    QCOMPARE(tip(1, 5), QStringLiteral("<qt>unknown: ?e &lt;b&gt;</qt>"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(tip(0, 5), QString());
    QCOMPARE(tip(1, 30), QString());
}

QTEST_MAIN(TestCodeGutter)
#include "tst_codegutter.moc"
