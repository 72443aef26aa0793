#include "editors/palette/colorpalette.h"

#include "editors/palette/colorwidget.h"
#include "editors/palette/palettewidget.h"
#include "media/paletteobject.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Zorv;

class TestColorPalette : public QObject
{
    Q_OBJECT

private slots:
    void clicks();
    void wellsFollow();
    void ownership();
};

void TestColorPalette::clicks()
{
    PaletteWidget grid;
    grid.resize(grid.sizeHint());
    ColorPalette palette(&grid);
    const auto click = [&grid](int slot, Qt::MouseButton button) {
        QTest::mouseClick(&grid, button, {}, {slot * 12 + 6, 6});
    };
    click(3, Qt::LeftButton);
    click(5, Qt::RightButton);
    QCOMPARE(int(palette.foreground()), 3);
    QCOMPARE(int(palette.background()), 5);

    // A tool comes first, may leave a click to the palette, and may go while it is asked.
    QVector<QPair<bool, int>> taken;
    palette.setColorTaker([&](bool isRight, unsigned char index) {
        taken.append({isRight, index});
        if (index == 8) {
            palette.setColorTaker({});
        }
        return index != 9;
    });
    click(7, Qt::LeftButton);
    click(9, Qt::RightButton);
    click(8, Qt::RightButton);
    click(2, Qt::LeftButton);
    QCOMPARE(taken, (QVector<QPair<bool, int>>{{false, 7}, {true, 9}, {true, 8}}));
    QCOMPARE(int(palette.foreground()), 2);
    QCOMPARE(int(palette.background()), 9);
}

void TestColorPalette::wellsFollow()
{
    PaletteWidget grid;
    ColorPalette palette(&grid);
    QSignalSpy changed(&palette, &ColorPalette::paletteChanged);
    palette.setForeground(17);
    grid.palette()->setColor(17, {1, 2, 3, 100});
    QCOMPARE(palette.foregroundWidget()->color(), QColor(1, 2, 3, 100));
    QCOMPARE(palette.color(17), qRgba(1, 2, 3, 100));
    QCOMPARE(int(palette.index(QColor(1, 2, 4, 100))), 17);
    grid.reset();
    grid.palette()->setColor(17, {9, 9, 9, 255});
    QCOMPARE(palette.backgroundWidget()->color(), QColor(0, 0, 0, 0));
    QCOMPARE(changed.size(), 2);
}

/// Wells go with their parent or with the palette, whichever goes first.
void TestColorPalette::ownership()
{
    PaletteWidget grid;
    auto palette = std::make_unique<ColorPalette>(&grid);
    auto panel = std::make_unique<QWidget>();
    palette->foregroundWidget()->setParent(panel.get());
    panel.reset();
    palette->setForeground(4);
    QVERIFY(!palette->foregroundWidget());

    panel = std::make_unique<QWidget>();
    palette->backgroundWidget()->setParent(panel.get());
    palette.reset();
    QVERIFY(panel->children().isEmpty());
    grid.palette()->setColor(4, {1, 1, 1, 255});
}

QTEST_MAIN(TestColorPalette)
#include "tst_colorpalette.moc"
