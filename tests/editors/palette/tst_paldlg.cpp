#include "editors/palette/paldlg.h"

#include "family/assets/spritefile.h"
#include "support/testtable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QtTest>

using Zorv::Sprite;

class TestPalDlg : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        sprites = new Family::SpriteFile;
        QImage image(4, 4, Sprite8);
        for (const int palette : {0, 1, 1}) {
            image.setColorTable({qRgb(palette, 0, 0)});
            image.fill(0);
            sprites->insertSprite(0, sprites->freeId({}), {}, image);
        }
    }

    void cleanup()
    {
        if (sprites) {
            sprites->release();
        }
    }

    void choices_data()
    {
        columns<int, int, bool, QString>("row", "mode", "ok", "note");
        row("own, none selected", -1, 0, true, QString());
        row("force, none selected", -1, 1, false, QStringLiteral("Select"));
        row("force", 1, 1, true, QString());
        row("exchange, none selected", -1, 2, false, QStringLiteral("Select"));
        row("exchange, one sprite", 0, 2, true, QStringLiteral("1 sprite"));
        row("exchange, two sprites", 1, 2, true, QStringLiteral("2 sprite"));
    }
    void choices()
    {
        const auto [selected, mode, ok, note] = fetched<int, int, bool, QString>();
        PalDlg dialog(nullptr, sprites->palettes(), selected);
        dialog.show();
        dialog.findChild<QComboBox*>("pal")->setCurrentIndex(mode);
        dialog.findChild<QCheckBox*>()->click();
        const PalDlg::Info info = dialog.getInfo();
        QCOMPARE(info.row, qMax(selected, 0));
        QCOMPARE(info.mode, Sprite::PaletteMode(mode + 1));
        QVERIFY(info.isReversed);
        const QString text = dialog.findChild<QLabel*>("note")->text();
        QVERIFY2(note.isEmpty() ? text.isEmpty() : text.startsWith(note), qPrintable(text));
        auto* box = dialog.findChild<QDialogButtonBox*>();
        QCOMPARE(box->button(QDialogButtonBox::Ok)->isEnabled(), ok);
        QTest::mouseClick(box->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                          Qt::LeftButton);
        QCOMPARE(dialog.result(), int(ok ? QDialog::Accepted : QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
    }

    void okFollowsTheList()
    {
        PalDlg dialog(nullptr, sprites->palettes(), 1);
        dialog.show();
        dialog.findChild<QComboBox*>("pal")->setCurrentIndex(1);
        const QPushButton* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QTest::mouseClick(dialog.findChild<QPushButton*>("clearButton"), Qt::LeftButton);
        QVERIFY(!ok->isEnabled());
        QTest::mouseClick(dialog.findChild<QPushButton*>("invertButton"), Qt::LeftButton);
        QVERIFY(ok->isEnabled());
        QCOMPARE(dialog.getInfo().row, 0);
        sprites->palettes()->clear();
        QVERIFY(!ok->isEnabled());
    }

    void closesWithTheCollection()
    {
        PalDlg dialog(nullptr, sprites->palettes(), 1);
        dialog.show();
        dialog.findChild<QComboBox*>("pal")->setCurrentIndex(2);
        sprites->release();
        sprites = nullptr;
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.getInfo().row, 0);
    }

private:
    static constexpr QImage::Format Sprite8 = QImage::Format_Indexed8;
    Family::SpriteFile* sprites = nullptr;
};

QTEST_MAIN(TestPalDlg)
#include "tst_paldlg.moc"
