#include "editors/palette/paletteremapwidget.h"

#include <QAction>
#include <QSignalSpy>
#include <QtTest>

using namespace Zorv;

class TestPaletteRemapWidget : public QObject
{
    Q_OBJECT

private slots:
    void rows_data();
    void rows();
};

void TestPaletteRemapWidget::rows_data()
{
    QTest::addColumn<bool>("isHorizontal");
    QTest::newRow("across") << true;
    QTest::newRow("down") << false;
}

/// Mouse and keys find the rows where they are painted.
void TestPaletteRemapWidget::rows()
{
    QFETCH(bool, isHorizontal);
    PaletteRemapWidget widget(nullptr, isHorizontal);
    widget.resize(300, 300);
    RGBA colors[256] = {};
    colors[9] = {250, 1, 2, 255};
    widget.setColors(colors);
    const auto place = [isHorizontal](int row, int column) {
        const QPoint at(row * 12 + 6, column * 12 + 6);
        return isHorizontal ? at : at.transposed();
    };
    const auto click = [&widget](const QPoint& at) {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    };
    click(place(7, 1));
    QCOMPARE(widget.currentRow(), 7);
    click(place(12, 0));
    click(place(3, 2));
    QCOMPARE(widget.currentRow(), 7);

    widget.setRow(7, 5, 9);
    widget.setRow(8, 256, 9);
    widget.setRow(12, 1, 1);
    QVERIFY(widget.row(7).isSet() && !widget.row(8).isSet() && !widget.row(12).isSet());
    QCOMPARE(widget.grab().toImage().pixel(place(7, 1)), qRgb(250, 1, 2));

    QTest::keyClick(&widget, Qt::Key_Down);
    QTest::keyClick(&widget, Qt::Key_Left);
    QCOMPARE(widget.currentRow(), 7);
    QSignalSpy changed(&widget, &PaletteRemapWidget::rowsChanged);
    widget.actions().first()->trigger();
    QVERIFY(!widget.row(7).isSet() && widget.row(8).target == 9 && changed.size() == 1);

    widget.setSelectable(false);
    click(place(0, 0));
    QTest::keyClick(&widget, Qt::Key_Up);
    QCOMPARE(widget.currentRow(), 7);
}

QTEST_MAIN(TestPaletteRemapWidget)
#include "tst_paletteremapwidget.moc"
