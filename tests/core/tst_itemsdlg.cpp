#include "core/dialogs/itemsdlg.h"
#include "support/testinterface.h"

#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QtTest>

class TestItemsDlg : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        model = std::make_unique<QStandardItemModel>();
        for (int i = 0; i < 100; ++i) {
            model->appendRow({new QStandardItem(QString::number(i)), new QStandardItem});
        }
    }

    void buttonsSelect()
    {
        const auto dialog = open(-1);
        QVERIFY(!dialog->hasSelection());
        press(*dialog, "invertButton");
        QCOMPARE(dialog->selected().size(), 100);
        press(*dialog, "clearButton");
        QVERIFY(!dialog->hasSelection());
        QCOMPARE(dialog->selected(), QList<int>());

        clickRow(*dialog, 3);
        clickRow(*dialog, 1);
        QCOMPARE(dialog->selected(), (QList<int>{1, 3}));
        QVERIFY(dialog->hasSelection());
        press(*dialog, "invertButton");
        QCOMPARE(dialog->selected().size(), 98);
        QVERIFY(!dialog->selected().contains(1) && !dialog->selected().contains(3));
        press(*dialog, "selectAllButton");
        QCOMPARE(dialog->selected().size(), 100);
    }

    void firstRowIsSelectedAndShown()
    {
        const auto dialog = open(70);
        QCOMPARE(dialog->selected(), QList<int>{70});
        const auto* list = dialog->findChild<QListView*>();
        QVERIFY(list->viewport()->rect().contains(list->visualRect(model->index(70, 0))));
        QVERIFY(list->verticalScrollBar()->value() > 0);
    }

    void rowThatIsNotThere()
    {
        const auto dialog = open(100);
        QVERIFY(!dialog->hasSelection());
    }

    void modelCanDieAfterRelease()
    {
        const auto dialog = open(5);
        dialog->release();
        QVERIFY(!dialog->hasSelection());
        model.reset();
        for (const char* name : {"selectAllButton", "invertButton", "clearButton"}) {
            press(*dialog, name);
        }
        QCOMPARE(dialog->selected(), QList<int>());
    }

    void modelThatDiesUnasked()
    {
        const auto dialog = open(5);
        model.reset();
        press(*dialog, "invertButton");
        QVERIFY(!dialog->hasSelection());
        QCOMPARE(dialog->selected(), QList<int>());
    }

    void keysAcceptAndReject()
    {
        const auto dialog = open(5);
        QTest::keyClick(dialog.get(), Qt::Key_Return);
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        dialog->show();
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
    }

private:
    std::unique_ptr<ItemsDialog> open(int row)
    {
        const TestInterface host;
        std::unique_ptr<ItemsDialog> dialog(
            host.itemsDialog(nullptr, QStringLiteral("Pick"), model.get(), row));
        dialog->show();
        return QTest::qWaitForWindowExposed(dialog.get()) ? std::move(dialog) : nullptr;
    }

    static void press(ItemsDialog& dialog, const char* name)
    {
        auto* button = dialog.findChild<QPushButton*>(QString::fromLatin1(name));
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void clickRow(ItemsDialog& dialog, int row)
    {
        auto* list = dialog.findChild<QListView*>();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(model->index(row, 0)).center());
    }

    std::unique_ptr<QStandardItemModel> model;
};

QTEST_MAIN(TestItemsDlg)
#include "tst_itemsdlg.moc"
