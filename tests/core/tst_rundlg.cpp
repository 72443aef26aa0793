#include "core/dialogs/dialogs.h"
#include "core/dialogs/rundlg.h"
#include "support/testtable.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTimer>
#include <QtTest>

#include <functional>

using Zorv::Dialogs;
using Act = std::function<void(RunDlg*, QListView*)>;

Q_DECLARE_METATYPE(Act)

class TestRunDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 100; ++i) {
            m_model.appendRow(new QStandardItem(QString::number(i)));
        }
    }

    void answers_data()
    {
        columns<Act, int>("act", "answer");
        const auto row = [](const char* name, Act act, int answer) { ::row(name, act, answer); };
        row(
            "double click", [](RunDlg*, QListView* list) { click(list, 71, true); }, 71);
        row(
            "click and Return",
            [](RunDlg* dialog, QListView* list) {
                click(list, 69, false);
                QTest::keyClick(dialog, Qt::Key_Return);
            },
            69);
        row(
            "OK", [](RunDlg* dialog, QListView*) { press(dialog, QDialogButtonBox::Ok); }, 70);
        row(
            "key",
            [](RunDlg* dialog, QListView* list) {
                QTest::keyClick(list, Qt::Key_Down);
                press(dialog, QDialogButtonBox::Ok);
            },
            71);
        row(
            "Cancel",
            [](RunDlg* dialog, QListView* list) {
                click(list, 71, false);
                press(dialog, QDialogButtonBox::Cancel);
            },
            -1);
        row(
            "Escape", [](RunDlg* dialog, QListView*) { QTest::keyClick(dialog, Qt::Key_Escape); },
            -1);
    }

    void answers()
    {
        QFETCH(Act, act);
        QFETCH(int, answer);
        QRect geometry(30, 40, 300, 200);
        bool isShown = false;
        whenOpen([&](RunDlg* dialog) {
            auto* list = dialog->findChild<QListView*>(QStringLiteral("list"));
            isShown = list->viewport()->rect().contains(list->visualRect(m_model.index(70, 0)));
            QCOMPARE(dialog->windowTitle(), QString("Run in Engine"));
            QCOMPARE(dialog->findChild<QLabel*>()->text(), QString("Choose the target:"));
            QCOMPARE(dialog->geometry(), QRect(30, 40, 300, 200));
            QCOMPARE(dialog->selectedIndex(), 70u);
            dialog->setGeometry(10, 20, 400, 300);
            act(dialog, list);
        });
        QCOMPARE(Dialogs::instance()->runTarget(nullptr, &m_model, 70, &geometry), answer);
        QCOMPARE(geometry, QRect(10, 20, 400, 300));
        QVERIFY(isShown);
    }

    void rowThatIsNotThere()
    {
        RunDlg dialog(nullptr, &m_model, 100);
        QVERIFY(!dialog.findChild<QListView*>()->selectionModel()->hasSelection());
        QCOMPARE(dialog.selectedIndex(), 0u);
    }

private:
    static void whenOpen(const std::function<void(RunDlg*)>& act)
    {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<RunDlg*>(QApplication::activeModalWidget());
            QVERIFY(dialog && QTest::qWaitForWindowExposed(dialog));
            act(dialog);
            // A failed check must not leave the test waiting.
            QTimer::singleShot(0, dialog, &QDialog::reject);
        });
    }

    static void click(QListView* list, int row, bool isDouble)
    {
        const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        if (isDouble) {
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        }
    }

    static void press(RunDlg* dialog, QDialogButtonBox::StandardButton which)
    {
        auto* button = dialog->findChild<QDialogButtonBox*>()->button(which);
        QTest::mouseClick(button, Qt::LeftButton);
    }

    QStandardItemModel m_model;
};

QTEST_MAIN(TestRunDlg)
#include "tst_rundlg.moc"
