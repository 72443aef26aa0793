#include "spritefixture.h"

#include "support/testtable.h"

#include <zorv/editors/palette/paldlg.h>
#include <zorv/image/dialogs/imginfodlg.h>
#include <zorv/image/dialogs/imgresizedlg.h>
#include <zorv/image/dialogs/rotimgdlg.h>
#include <zorv/media/tools/rotateimage.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QToolButton>

/// Dialogs that change the image of a sprite, or the sprite itself.
class TestSpriteImages : public SpriteTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void changesTheImage_data();
    void changesTheImage();
    void asksLastWhenTheImageChanges_data();
    void asksLastWhenTheImageChanges();
    void outlivesTheDialogOfPalettes();
    void resizes_data();
    void resizes();
    void turns();
    void changesProperties();
};

void TestSpriteImages::changesTheImage_data()
{
    columns<int, int, bool, int>("other", "mode", "accepts", "palettes");
    QTest::newRow("same colours") << 0 << -1 << true << 1;
    QTest::newRow("other alpha of the first") << 1 << -1 << true << 1;
    QTest::newRow("its own palette") << 2 << 0 << true << 2;
    QTest::newRow("adapted") << 2 << 1 << true << 1;
    QTest::newRow("exchanged") << 2 << 2 << true << 1;
    QTest::newRow("given up") << 2 << 2 << false << 1;
    QTest::newRow("true colour") << 3 << -1 << true << 1;
}

void TestSpriteImages::changesTheImage()
{
    const auto [other, mode, accepts, palettes] = fetched<int, int, bool, int>();
    const QByteArray first = written();
    QVector<QRgb> colours = Colours;
    colours[0] = other == 1 ? 0xff000000 : colours[0];
    colours[1] = other == 2 ? 0xffffff00 : colours[1];
    QImage image = picture(3).copy(0, 0, 9, 9);
    image.setColorTable(colours);
    if (other == 3) {
        image = image.convertToFormat(QImage::Format_ARGB32);
    }
    show(1);
    m->dialogs.fileAnswers = {{file("new.png", image)}};
    m->dialogs.buttonAnswers = {Dialogs::No};
    if (mode >= 0) {
        inDialog<PalDlg>([mode = mode, accepts = accepts](PalDlg* dialog) {
            dialog->findChild<QComboBox*>("pal")->setCurrentIndex(mode);
            accepts ? dialog->accept() : dialog->reject();
        });
    }
    trigger("spr_openimg");
    QCOMPARE(m_isSeen, mode >= 0);
    QCOMPARE(sprites()->palettes()->count(), palettes);
    if (!accepts) {
        QCOMPARE(written(), first);
        return;
    }
    const QImage stored = sprites()->sprite(1)->image();
    QCOMPARE(stored.size(), QSize(9, 9));
    QCOMPARE(canvas()->size(), QSize(9, 9));
    QCOMPARE(stored.pixelColor(1, 1).rgba(),
             mode == 1 ? picture(3).pixel(1, 1) : image.pixel(1, 1));
    QCOMPARE(sprites()->sprite(0)->shownColors().at(1), mode == 2 ? colours[1] : Colours[1]);
    if (other == 3) {  // its colours are worked out once when it is chosen
        show(0);
        QSignalSpy changes(editor(), &Zorv::SpriteEditor::colorsShown);
        show(1);
        QCOMPARE(changes.count(), 1);
    }
    sprites()->undo();
    QCOMPARE(written(), first);
}

void TestSpriteImages::asksLastWhenTheImageChanges_data()
{
    columns<QString, int, bool>("givenUp", "answer", "changes");
    QTest::newRow("no file") << "file" << 1 << false;
    QTest::newRow("broken file") << "broken" << 1 << false;
    QTest::newRow("no palette") << "palette" << 1 << false;
    QTest::newRow("cancelled") << "" << -1 << false;
    QTest::newRow("saved") << "" << 0 << true;
    QTest::newRow("discarded") << "" << 1 << true;
}

/// Work on the canvas is not discarded for a picture that does not come.
void TestSpriteImages::asksLastWhenTheImageChanges()
{
    const auto [givenUp, answer, changes] = fetched<QString, int, bool>();
    const QByteArray first = written();
    QImage image = picture(3).copy(0, 0, 9, 9);
    image.setColor(1, 0xffffff00);
    show(1);
    paint();
    const QImage painted = canvas()->mergeLayers(nullptr);
    m->dialogs.fileAnswers = {{file("new.png", image)}};
    if (givenUp == "file") {
        m->dialogs.fileAnswers = {QStringList()};
    } else if (givenUp == "broken") {
        writeFile(m_folder->filePath("new.png"), "no picture");
    }
    m->dialogs.choiceAnswers = {answer};
    m->dialogs.buttonAnswers = {Dialogs::No};
    const bool isAsked = givenUp.isEmpty();
    inDialog<PalDlg>([isAsked](PalDlg* dialog) { isAsked ? dialog->accept() : dialog->reject(); });
    trigger("spr_openimg");
    m_watch.stop();
    QCOMPARE(m->dialogs.count("choose"), isAsked ? 1 : 0);
    QCOMPARE(sprites()->sprite(1)->size() == image.size(), changes);
    QCOMPARE(editor()->isCanvasModified(), !changes);
    if (!changes) {
        QCOMPARE(canvas()->mergeLayers(nullptr), painted);
    } else if (answer == 0) {
        sprites()->undo();
        QCOMPARE(sprites()->sprite(1)->image(), painted);
    }
    while (sprites()->canUndo()) {
        sprites()->undo();
    }
    QCOMPARE(written(), first);
}

/// A sprite without palette has none selected; the file is read anew behind the dialog.
void TestSpriteImages::outlivesTheDialogOfPalettes()
{
    sprites()->sprite(1)->setPalette(nullptr);
    QImage image = picture(3).copy(0, 0, 5, 5);
    image.setColor(1, 0xffffff00);
    show(1);
    QCOMPARE(qRed(editor()->colors()->color(9)), 9);
    for (const bool reloads : {true, false}) {
        m->dialogs.fileAnswers = {{file("new.png", image)}};
        m->dialogs.buttonAnswers = {Dialogs::No};
        inDialog<PalDlg>([this, reloads](PalDlg* dialog) {
            if (reloads) {
                QVERIFY(dialog->findChild<QAbstractItemView*>()
                            ->selectionModel()
                            ->selectedRows()
                            .isEmpty());
                static_cast<Family::SpriteFile*>(sprites())->reload();
            } else {
                m->dialogs.choiceAnswers = {1};
                m->action("close_folder")->trigger();
            }
            if (dialog->isVisible()) {
                dialog->accept();
            }
        });
        trigger("spr_openimg");
        QVERIFY(m_isSeen);
        QVERIFY(!sprites() || sprites()->sprite(1)->size() == QSize(16, 12));
    }
    QVERIFY(!editor()->sprites());
}

void TestSpriteImages::resizes_data()
{
    columns<int, QString, double, QSize, QPoint>("mode", "field", "value", "size", "axis");
    const int scale = ImgResizeDlg::ScalePicture;
    const int room = ImgResizeDlg::ChangeCanvas;
    QTest::newRow("width") << scale << "width" << 32.0 << QSize(32, 24) << QPoint(16, 22);
    QTest::newRow("factor") << scale << "factor" << 0.5 << QSize(8, 6) << QPoint(4, 6);
    QTest::newRow("too small") << scale << "factor" << 0.01 << QSize(1, 1) << QPoint(1, 1);
    QTest::newRow("room") << room << "width" << 20.0 << QSize(20, 12) << QPoint(12, 11);
    QTest::newRow("less room") << room << "height" << 2.0 << QSize(16, 2) << QPoint(8, 1);
}

/// As the dialog shows it; less room is taken from above, and more is added at the left.
void TestSpriteImages::resizes()
{
    const auto [mode, field, value, size, axis] = fetched<int, QString, double, QSize, QPoint>();
    show(0);
    const QImage before = canvas()->mergeLayers(nullptr);
    QSize chosen;
    inDialog<ImgResizeDlg>([&, mode = mode, field = field, value = value](ImgResizeDlg* dialog) {
        dialog->findChild<QComboBox*>("mode")->setCurrentIndex(mode);
        const QList<QToolButton*> anchors = dialog->findChildren<QToolButton*>();
        QCOMPARE(anchors.size(), 9);
        anchors.last()->click();
        if (auto* real = dialog->findChild<QDoubleSpinBox*>(field)) {
            real->setValue(value);
        } else {
            dialog->findChild<QSpinBox*>(field)->setValue(int(value));
        }
        QVERIFY(!dialog->grab().isNull());
        chosen = dialog->chosenSize();
        dialog->accept();
    });
    trigger("spr_resize");
    QVERIFY(m_isSeen);
    QCOMPARE(chosen, size);
    QCOMPARE(canvas()->size(), size);
    QCOMPARE(canvas()->axis(), axis);
    if (mode == ImgResizeDlg::ChangeCanvas) {
        const QPoint corner(size.width() - 16, size.height() - 12);
        QCOMPARE(canvas()->mergeLayers(nullptr).copy(QRect(corner, before.size()) &
                                                     QRect(QPoint(), size)),
                 before.copy(QRect(-corner, size) & before.rect()));
    }
    trigger("undo");
    QCOMPARE(canvas()->mergeLayers(nullptr), before);
    QVERIFY(!editor()->isCanvasModified());
}

void TestSpriteImages::turns()
{
    show(0);
    const QImage before = canvas()->mergeLayers(nullptr);
    for (const double angle : {90.0, 33.5}) {
        inDialog<RotImgDlg>([angle](RotImgDlg* dialog) {
            dialog->findChild<QDoubleSpinBox*>("angle")->setValue(angle);
            dialog->accept();
        });
        trigger("spr_image_rotate");
        QVERIFY(m_isSeen);
        const QImage expected =
            Zorv::rotateImage(before, float(angle), 0, Zorv::ImageResizeFilter::Nearest);
        QCOMPARE(canvas()->mergeLayers(nullptr).size(), expected.size());
        trigger("undo");
    }
    inDialog<RotImgDlg>([](RotImgDlg* dialog) { dialog->reject(); });
    trigger("spr_image_rotate");
    QVERIFY(m_isSeen && !editor()->isCanvasModified());
}

/// Facts are told; what is changed on the canvas is one step of it, the number one of the file.
void TestSpriteImages::changesProperties()
{
    const QByteArray first = written();
    show(2);
    inDialog<ImgInfoDlg>([this](ImgInfoDlg* dialog) {
        const auto text = [dialog](const char* name) {
            return dialog->findChild<QLabel*>(name)->text();
        };
        QCOMPARE(text("colors"), QStringLiteral("4"));
        QCOMPARE(text("palette"), sprites()->sprite(2)->property("Palette").toString());
        QVERIFY(dialog->findChild<QPlainTextEdit*>("uses")->toPlainText().contains("basic.anim"));
        dialog->findChild<QSpinBox*>("group")->setValue(77);
        dialog->findChild<QSpinBox*>("x")->setValue(-3);
        dialog->findChild<QSpinBox*>("width")->setValue(20);
        dialog->findChild<QComboBox*>("form")->setCurrentIndex(1);
        dialog->accept();
    });
    trigger("spr_image_properties");
    QVERIFY(m_isSeen);
    QCOMPARE(sprites()->sprite(2)->id().text(), QStringLiteral("77,2"));
    QCOMPARE(canvas()->size(), QSize(20, 12));
    QCOMPARE(canvas()->axis(), QPoint(-3, 11));
    QCOMPARE(canvas()->format(), Zorv::ImageCanvas::RGBAFormat);
    QCOMPARE(editor()->undoTitle(), QStringLiteral("Change properties"));
    trigger("undo");
    QVERIFY(!editor()->isCanvasModified());
    trigger("undo");
    QCOMPARE(written(), first);
    QCOMPARE(editor()->spriteIndex(), 2);
}

QTEST_MAIN(TestSpriteImages)
#include "tst_spriteimages.moc"
