#include "paintingfixture.h"

#include "app/palettes/familypaletteeditor.h"
#include "app/palettes/palettecommands.h"
#include "family/assets/palettelist.h"
#include "operations/media/palettecolors.h"
#include "operations/media/paletteedits.h"
#include "support/testtable.h"

#include <zorv/editors/palette/palettewidget.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/media/paletteobject.h>
#include <zorv/media/tools/colorblindness.h>
#include <zorv/media/tools/colorspaces.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTimer>
#include <QToolTip>

using Family::PaletteColors;

/// What the window does with palettes, by its menu and its dialogs.
class TestPaletteActs : public PaintingTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void isOneStep_data();
    void isOneStep();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void sortsWithThePicture();
    void takesTheCanvasIn_data();
    void takesTheCanvasIn();
    void sortsNothing();
    void opensNothingOnNothing();
    void previewIsSeen();
    void endsWithItsPalette();
    void tellsUses();
    void coloursOfNoPaletteStay();
    void coloursAreCopied_data();
    void coloursAreCopied();
    void coloursOfOthersArePasted_data();
    void coloursOfOthersArePasted();
    void dropsOntoACostume();
    void showsAsOthersSee();
    void findsWhatDiffersInAlphaAlone();
    void randomActs();

private:
    Family::PaletteList* palettes() const { return sprites()->palettes(); }
    App::FamilyPaletteEditor* panel() const
    {
        return m->window->findChild<App::FamilyPaletteEditor*>();
    }
    Zorv::PaletteWidget* grid() const { return panel()->view(); }
    void select(const QVector<int>& chosen) const
    {
        grid()->clearSelection();
        for (const int slot : chosen) {
            grid()->selection[slot] = true;
        }
        emit grid()->selectionChanged();
        QCoreApplication::processEvents();
    }

    /// Runs an action whose dialog is filled in, and then left by a key.
    void act(const char* name, const std::function<void(QWidget*)>& fill = {},
             Qt::Key key = Qt::Key_Return)
    {
        QCoreApplication::processEvents();
        QVERIFY2(m->action(name)->isEnabled(), name);
        QTimer::singleShot(0, this, [=] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog && fill) {
                fill(dialog);
            }
            if (dialog) {
                QTest::keyClick(dialog, key);
            }
        });
        m->action(name)->trigger();
        QCoreApplication::processEvents();
    }
    static void fillIn(QWidget* dialog);

    QByteArray bytes() const
    {
        const QString name = m_folder->filePath(QStringLiteral("now.sprites"));
        auto* disk = Zorv::FileSystemArchive::instance();
        return sprites()->toFile(*disk, name, false) ? readFile(name) : QByteArray();
    }
    QVector<QImage> pictures() const
    {
        QVector<QImage> all;
        for (int i = 0; i < int(sprites()->count()); ++i) {
            all.append(sprites()->sprite(i)->image().convertToFormat(QImage::Format_ARGB32));
        }
        return all;
    }
    QByteArray m_first;

    PaletteColors colors(int row = 0) const { return palettes()->palette(row)->state.colors; }
};

/// Two palettes: in the second, slots 1 and 2 have the same colours as in the first.
void TestPaletteActs::init()
{
    begin();
    m_first = bytes();
    PaletteColors other = colors();
    other[3] = {9, 200, 90, 255};
    Zorv::RGBA raw[256];
    std::copy(other.begin(), other.end(), raw);
    palettes()->addPalette(raw, QStringLiteral("1,2"), false);
    openFirst();
    m->dialogs.colorAnswers = {QColor(1, 2, 3)};
}

/// Something else than what the dialog begins with.
void TestPaletteActs::fillIn(QWidget* dialog)
{
    if (auto* degrees = dialog->findChild<QSpinBox*>()) {
        degrees->setValue(120);
    }
}

void TestPaletteActs::isOneStep_data()
{
    columns<QVector<int>, int, bool>("selection", "palettes", "isSamePicture");
    row("palette_duplicate", QVector<int>{}, 3, true);
    row("palette_sort", QVector<int>{}, 2, true);
    row("palette_ramp", QVector<int>{1, 3}, 2, false);
    row("palette_hue", QVector<int>{1, 2}, 2, false);
    row("palette_replace", QVector<int>{1}, 2, false);
}

void TestPaletteActs::isOneStep()
{
    const auto [selection, count, isSamePicture] = fetched<QVector<int>, int, bool>();
    const QByteArray first = bytes();
    const QVector<QImage> before = pictures();
    select(selection);
    act(QTest::currentDataTag(), fillIn);
    QVERIFY(m->dialogs.texts("error").isEmpty() && bytes() != first);
    QCOMPARE(palettes()->count(), count);
    QCOMPARE(pictures() == before, isSamePicture);
    QVERIFY(!panel()->isPreviewing());
    sprites()->undo();
    QCOMPARE(bytes(), first);
    sprites()->redo();
    QVERIFY(bytes() != first && palettes()->count() == count);
}

void TestPaletteActs::cancelChangesNothing_data()
{
    columns<bool>("hasPreview");
    row("palette_sort", false);
    row("palette_ramp", true);
    row("palette_hue", true);
}

void TestPaletteActs::cancelChangesNothing()
{
    QFETCH(const bool, hasPreview);
    const QByteArray first = bytes();
    select({1, 3});
    const QImage selected = grid()->grab().toImage();
    bool isOther = false;
    const auto look = [&](QWidget* dialog) {
        fillIn(dialog);
        isOther = grid()->grab().toImage() != selected;
        QVERIFY(bytes() == first && !panel()->canChangeFieldValue() == hasPreview);
    };
    const bool couldUndo = sprites()->canUndo();
    act(QTest::currentDataTag(), look, Qt::Key_Escape);
    QCOMPARE(isOther, hasPreview);
    QVERIFY(bytes() == first && sprites()->canUndo() == couldUndo);
    QCOMPARE(grid()->grab().toImage(), selected);
}

/// By lightness, in one palette and in all.
void TestPaletteActs::sortsWithThePicture()
{
    for (const bool inAll : {true, false}) {
        const QVector<QImage> before = pictures();
        const PaletteColors other = colors(1);
        act("palette_sort", [=](QWidget* dialog) {
            dialog->findChild<QComboBox*>()->setCurrentIndex(1);
            const QList<QCheckBox*> boxes = dialog->findChildren<QCheckBox*>();
            boxes.first()->setChecked(!inAll);
            boxes.last()->setChecked(inAll);
        });
        const PaletteColors sorted = colors();
        for (size_t i = 2; i < sorted.size(); ++i) {
            const double step = Zorv::toOKLab(sorted[i]).l - Zorv::toOKLab(sorted[i - 1]).l;
            QVERIFY(inAll ? step >= 0 : step <= 0);
        }
        QCOMPARE(pictures(), before);
        QCOMPARE(colors(1) == other, !inAll);
    }
}

void TestPaletteActs::takesTheCanvasIn_data()
{
    columns<bool, int, bool>("isSorted", "seen", "inAll");
    for (const bool inAll : {false, true}) {
        for (const int seen : {0, 1}) {
            QTest::addRow("sorted %d %d", seen, inAll) << true << seen << inAll;
            QTest::addRow("moved %d %d", seen, inAll) << false << seen << inAll;
        }
    }
}

/// In the colours of its own palette, whichever is looked at and changed; all as one step.
void TestPaletteActs::takesTheCanvasIn()
{
    const auto [isSorted, seen, inAll] = fetched<bool, int, bool>();
    const QByteArray first = bytes();
    const QImage flipped = pictures().first().mirrored(true, false);
    canvas()->flip(true, false);
    panel()->setCurrentPalette(palettes()->palette(seen));
    const PaletteColors before[] = {colors(0), colors(1)};
    m->host.setOption(QStringLiteral("pal_move"), inAll ? 1 : 2);
    if (isSorted) {
        act("palette_sort", [inAll = inAll](QWidget* dialog) {
            dialog->findChild<QCheckBox*>()->setChecked(true);
            dialog->findChildren<QCheckBox*>().last()->setChecked(inAll);
        });
    } else {
        grid()->setFocus();
        QTest::keyClick(grid(), Qt::Key_Home);
        QTest::keyClick(grid(), Qt::Key_Right, Qt::AltModifier);
    }
    QVERIFY(!editor()->isCanvasModified());
    QCOMPARE(pictures().first(), flipped);
    QVERIFY(colors(seen) != before[seen] && (colors(1 - seen) != before[1 - seen]) == inAll);
    QCOMPARE(panel()->currentPalette(), palettes()->palette(seen));
    QCOMPARE(grid()->palette()->color(1), colors(seen)[1]);
    sprites()->undo();
    QCOMPARE(bytes(), first);
}

/// What is in this order already stays, and so does the canvas.
void TestPaletteActs::sortsNothing()
{
    act("palette_sort");
    const QByteArray sorted = bytes();
    canvas()->flip(true, false);
    act("palette_sort");
    QVERIFY(editor()->isCanvasModified());
    QCOMPARE(bytes(), sorted);
}

/// The palette goes while the canvas comes into sight.
void TestPaletteActs::opensNothingOnNothing()
{
    for (const char* name : {"palette_sort", "palette_ramp", "palette_hue", "palette_replace"}) {
        m.reset();
        begin();
        QCoreApplication::processEvents();
        select({1, 3});
        const auto going = connect(editor(), &Zorv::SpriteEditor::spriteShown, this,
                                   [this] { palettes()->clear(); });
        bool isOpen = false;
        act(name, [&](QWidget*) { isOpen = true; });
        disconnect(going);
        QVERIFY2(!isOpen && m->dialogs.count() == 0, name);
        QCOMPARE(palettes()->count(), 0);
    }
}

/// On the canvas too, and not in what is saved of it.
void TestPaletteActs::previewIsSeen()
{
    const auto pixel = [this] {
        QCoreApplication::processEvents();
        return static_cast<Zorv::RenderWidget*>(widget())->grabFramebuffer().pixelColor(
            at({3, 0}) + QPoint(1, 1));
    };
    const QColor before = pixel();
    const PaletteColors own = colors();
    QColor during;
    act("palette_hue", [&](QWidget* dialog) {
        fillIn(dialog);
        during = pixel();
        QVERIFY(editor()->isPreviewing());
        QCOMPARE(QColor(QRgb(editor()->canvasRecord().colors[1])),
                 QColor(own[1].r, own[1].g, own[1].b));
    });
    QVERIFY(during != before);
    QCOMPARE(pixel(), during);
    sprites()->undo();
    QCOMPARE(pixel(), before);
}

/// The file is read again, or has other colours, while the question is open.
void TestPaletteActs::endsWithItsPalette()
{
    for (const char* name : {"palette_hue", "palette_sort"}) {
        act(name, [this](QWidget* dialog) {
            fillIn(dialog);
            palettes()->clear();
        });
        QVERIFY(palettes()->count() == 0 && !panel()->isPreviewing());
        sprites()->undo();
        QVERIFY(palettes()->count() == 2 && panel()->currentPalette());
    }
}

void TestPaletteActs::tellsUses()
{
    const auto line = [this] {
        return grid()
            ->parentWidget()
            ->window()
            ->findChild<QLabel*>(QStringLiteral("pal_line"))
            ->text();
    };
    QCOMPARE(line(), QStringLiteral("2 sprites have palette 1,1."));
    QVector<int> counts(4);
    for (int i = 0; i < 2; ++i) {
        for (int y = 0; y < 12; ++y) {
            for (int x = 0; x < 16; ++x) {
                ++counts[picture(i).pixelIndex(x, y)];
            }
        }
    }
    trigger("palette_uses");
    QVERIFY2(line().endsWith(QLatin1String("\n4 slots are used.")), qPrintable(line()));
    panel()->selectColour(0, 0, 2);  // as a click on the stage does
    const QString note = QStringLiteral("2 sprites, pixels: %1").arg(counts[2]);
    QVERIFY2(line().endsWith(QStringLiteral("\nSlot 2: ") + note), qPrintable(line()));
    QTest::mouseMove(grid(), QPoint(2 * grid()->cellSize() + 3, 3));
    QTRY_VERIFY2(QToolTip::text().endsWith(note), qPrintable(QToolTip::text()));
    select({2, 3, 200});
    QVERIFY2(
        line().endsWith(QStringLiteral("3 selected slots, pixels: %1").arg(counts[2] + counts[3])),
        qPrintable(line()));
    {
        // Sprites are looked at behind a change alone, not for each choice.
        const QSignalBlocker quiet(sprites());
        sprites()->sprite(0)->setPalette(palettes()->palette(1));
        select({1});
        QVERIFY2(line().startsWith(QLatin1String("2 sprites have")), qPrintable(line()));
    }
    sprites()->sprite(0)->setPalette(palettes()->palette(0));
    sprites()->removeSprites({1});
    QCoreApplication::processEvents();
    QCOMPARE(line(), QStringLiteral("1 sprite has palette 1,1."));
    sprites()->sprite(0)->setPalette(palettes()->palette(1));
    QCoreApplication::processEvents();
    panel()->setCurrentPalette(palettes()->palette(1));
    QCOMPARE(line(), QStringLiteral("1 sprite has palette 1,2."));
}

/// Of a sprite without a palette, while the panel goes and palettes come and go.
void TestPaletteActs::coloursOfNoPaletteStay()
{
    sprites()->sprite(0)->setPalette(nullptr);
    editor()->showSprite(sprites(), 1);
    editor()->showSprite(sprites(), 0);
    QVERIFY(!panel()->currentPalette());
    const QImage shown = grid()->grab().toImage();
    const auto isSame = [&] {
        return !panel()->currentPalette() && grid()->grab().toImage() == shown &&
               palettes()->currentIndex == palettes()->count() &&
               !m->action("pal_delete")->isEnabled();
    };
    QVERIFY(isSame());
    panel()->activate();
    QVERIFY(isSame());
    Operations::duplicatePalette(sprites(), 0);
    QVERIFY(isSame());
    sprites()->undo();
    QVERIFY(isSame());
    panel()->setCurrentPalette(palettes()->palette(1));
    QVERIFY(!isSame() && panel()->currentPalette() == palettes()->palette(1));
}

void TestPaletteActs::coloursAreCopied_data()
{
    using Slots = QVector<int>;
    columns<Slots, Slots, Slots>("from", "to", "expected");
    row("one to several", Slots{1}, Slots{3, 9}, Slots{3, 9});
    row("each to its own", Slots{1, 2}, Slots{3, 9}, Slots{3, 9});
    row("from one on", Slots{1, 2, 3}, Slots{40}, Slots{40, 41, 42});
    row("no room left", Slots{1, 2, 3}, Slots{254}, Slots{254, 255});
    row("more than wanted", Slots{1, 2, 3}, Slots{7, 8}, Slots{7, 8});
}

/// To another palette, with a colour that is half transparent.
void TestPaletteActs::coloursAreCopied()
{
    const auto [from, to, expected] = fetched<QVector<int>, QVector<int>, QVector<int>>();
    PaletteColors source = colors();
    source[2].a = 77;
    palettes()->setColors(palettes()->palette(0), source, Zorv::Palette::KeepPixels);
    const QByteArray first = bytes();
    PaletteColors wanted = colors(1);
    for (int i = 0; i < expected.size(); ++i) {
        wanted[size_t(expected[i])] = source[size_t(from.size() == 1 ? from[0] : from[i])];
    }
    grid()->setFocus();
    select(from);
    trigger("copy");
    trigger("pal_next");
    select(to);
    trigger("paste");
    QVERIFY(colors(1) == wanted && colors() == source);
    trigger("undo");
    QCOMPARE(bytes(), first);
}

void TestPaletteActs::coloursOfOthersArePasted_data()
{
    columns<QString, bool>("text", "isTaken");
    row("colours", QStringLiteral("#010203\r\n#0A0b0C80\n"), true);
    row("words", QStringLiteral("a sprite"), false);
    row("colours and words", QStringLiteral("#010203\nred"), false);
    row("too many", QStringLiteral("#010203\n").repeated(257), false);
    row("long", QStringLiteral("#010203 ").repeated(100000), false);
    row("none", QString(), false);
}

void TestPaletteActs::coloursOfOthersArePasted()
{
    const auto [text, isTaken] = fetched<QString, bool>();
    QGuiApplication::clipboard()->setText(text);
    const QByteArray first = bytes();
    grid()->setFocus();
    select({3});
    trigger("paste");
    QCOMPARE(m->dialogs.count("information"), isTaken ? 0 : 1);
    QCOMPARE(bytes() != first, isTaken);
    if (isTaken) {
        QVERIFY(colors()[3] == (Zorv::RGBA{1, 2, 3, 255}));
        QVERIFY(colors()[4] == (Zorv::RGBA{10, 11, 12, 128}));
    }
}

void TestPaletteActs::dropsOntoACostume()
{
    const QByteArray first = bytes();
    auto* costumes = m->window->paint()->costumes();
    auto* dock = m->window->findChild<QWidget*>(QStringLiteral("costumes"));
    dock->show();
    dock->raise();
    QTRY_VERIFY(costumes->isVisible());
    QPoint place;
    for (int x = 0; x < costumes->width() && costumes->indexAt(place) != 1; ++x) {
        place = {x, 20};
    }
    QCOMPARE(costumes->indexAt(place), 1);
    const auto drop = [&](const QMimeData* data, QPoint at) {
        QDragEnterEvent enter(at, Qt::CopyAction, data, Qt::LeftButton, {});
        QDropEvent event(at, Qt::CopyAction, data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(costumes, &enter);
        QCoreApplication::sendEvent(costumes, &event);
        return enter.isAccepted() && event.isAccepted();
    };
    QMimeData text;
    text.setText(QStringLiteral("#010203"));  // of no slot
    const auto colours =
        Operations::PaletteEntries{{{5, 6, 7, 255}, {8, 9, 10, 11}}, {3, 200}}.toMime();
    QVERIFY(!drop(&text, place) && !drop(colours.get(), {0, 0}));
    QCOMPARE(bytes(), first);
    PaletteColors wanted = colors(1);
    wanted[3] = {5, 6, 7, 255};
    wanted[200] = {8, 9, 10, 11};
    QVERIFY(drop(colours.get(), place) && colors(1) == wanted);
    sprites()->undo();
    QCOMPARE(bytes(), first);
    // Whoever drags waits for the end of the drop, and so does what is told.
    palettes()->palette(1)->state.record = "not whole";
    QVERIFY(drop(colours.get(), place) && colors(1) != wanted);
    QCOMPARE(m->dialogs.count("error"), 0);
    QCoreApplication::processEvents();
    QCOMPARE(m->dialogs.count("error"), 1);
}

/// Whatever kind of people: nothing of the file changes, and all is as before at the end.
void TestPaletteActs::showsAsOthersSee()
{
    const auto canvasPixel = [this] {
        QCoreApplication::processEvents();
        return static_cast<Zorv::RenderWidget*>(widget())->grabFramebuffer().pixelColor(
            at({3, 0}) + QPoint(1, 1));
    };
    const auto others = [this] {
        m->window->spritePanel()->list()->viewport()->update();
        QTest::qWait(100);  // thumbnails are made between events
        return QVector<QImage>{grid()->grab().toImage(),
                               m->window->spritePanel()->list()->grab().toImage()};
    };
    const QByteArray first = bytes();
    const QColor before = canvasPixel();
    const QVector<QImage> usual = others();
    const QVector<const char*> names{"sight_protanopia", "sight_deuteranopia", "sight_tritanopia"};
    for (int i = 0; i < names.size(); ++i) {
        trigger(names[i]);
        const Zorv::RGBA wanted = Zorv::seenWith(
            Zorv::ColorBlindness(i),
            Zorv::RGBA{quint8(before.red()), quint8(before.green()), quint8(before.blue()), 255});
        const QColor seen = canvasPixel();
        QVERIFY(qAbs(seen.red() - wanted.r) <= 2 && qAbs(seen.green() - wanted.g) <= 2 &&
                qAbs(seen.blue() - wanted.b) <= 2 && seen != before);
        const QVector<QImage> now = others();
        QVERIFY(now[0] != usual[0] && now[1] != usual[1]);
        QCOMPARE(bytes(), first);
        for (int other = 0; other < names.size(); ++other) {
            QCOMPARE(m->action(names[other])->isChecked(), other == i);
        }
    }
    trigger(names.last());
    QVERIFY(canvasPixel() == before && others() == usual);
}

/// Of the first entry: that of any other one counts.
void TestPaletteActs::findsWhatDiffersInAlphaAlone()
{
    PaletteColors searched = colors(1);
    searched[0].a ^= 255;
    QCOMPARE(palettes()->byColors(searched), palettes()->palette(1));
    QCOMPARE(palettes()->ensure(searched), palettes()->palette(1));
    palettes()->setColors(palettes()->palette(0), searched, Zorv::Palette::KeepPixels);
    QCOMPARE(palettes()->byColors(searched), palettes()->palette(0));
    QCOMPARE(palettes()->byColors(colors(1)), palettes()->palette(1));
    searched[1].a ^= 1;
    QVERIFY(!palettes()->byColors(searched));
}

/// As a person acts: one after the other, and all of them back.
void TestPaletteActs::randomActs()
{
    const QVector<const char*> names{"palette_duplicate", "palette_sort",    "palette_ramp",
                                     "palette_hue",       "palette_replace", "pal_switch_color",
                                     "pal_prev",          "pal_next"};
    const int runs = qMax(1, qEnvironmentVariableIntValue("ZORV_TEST_RUNS"));
    QRandomGenerator random(20261122);
    for (int i = 0; i < 25 * runs; ++i) {
        select({random.bounded(0, 6), random.bounded(0, 6), random.bounded(0, 256)});
        m->dialogs.colorAnswers = {QColor(random.bounded(256), random.bounded(256), 7)};
        const char* name = names[random.bounded(names.size())];
        QCoreApplication::processEvents();
        if (!m->action(name)->isEnabled()) {
            continue;
        }
        const int check = random.bounded(6);
        const QVector<QImage> before = pictures();
        act(name, [&](QWidget* dialog) {
            fillIn(dialog);
            const QList<QCheckBox*> boxes = dialog->findChildren<QCheckBox*>();
            if (check < boxes.size()) {
                boxes[check]->toggle();
            }
        });
        QVERIFY2(m->dialogs.texts("error").isEmpty(), name);
        QVERIFY2(strcmp(name, "palette_sort") != 0 || pictures() == before, name);
        if (random.bounded(4) == 0) {
            sprites()->undo();
        }
    }
    while (sprites()->canUndo()) {
        sprites()->undo();
    }
    QCOMPARE(bytes(), m_first);
}

QTEST_MAIN(TestPaletteActs)
#include "tst_paletteacts.moc"
