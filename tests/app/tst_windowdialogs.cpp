#include "app/dialogs/windowdialogs.h"
#include "support/testtable.h"

#include <QApplication>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using App::WindowDialogs;

/// The dialogs of the window, with keys pressed in them.
class TestWindowDialogs : public QObject
{
    Q_OBJECT

private slots:
    void asksByButtons_data();
    void asksByButtons();
    void asksByAList();

private:
    static void whenOpen(const std::function<void(QWidget*)>& act);
};

/// Acts on the next dialog as soon as it is there.
void TestWindowDialogs::whenOpen(const std::function<void(QWidget*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        act(dialog);
    });
}

void TestWindowDialogs::asksByButtons_data()
{
    columns<int, Qt::Key, int>("preset", "key", "expected");
    QTest::newRow("return, first") << 0 << Qt::Key_Return << 0;
    QTest::newRow("return, second") << 1 << Qt::Key_Return << 1;
    QTest::newRow("escape") << 1 << Qt::Key_Escape << -1;
}

void TestWindowDialogs::asksByButtons()
{
    QFETCH(int, preset);
    QFETCH(Qt::Key, key);
    WindowDialogs dialogs;
    whenOpen([key](QWidget* dialog) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        QVERIFY(box);
        QCOMPARE(box->text(), QStringLiteral("<b>a & b</b>"));
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QTest::keyClick(dialog, key);
    });
    QTEST(dialogs.choose(QStringLiteral("Title"), QStringLiteral("<b>a & b</b>"),
                         {QStringLiteral("Save"), QStringLiteral("Discard")}, preset),
          "expected");
}

void TestWindowDialogs::asksByAList()
{
    WindowDialogs dialogs;
    const QStringList names{"a", "b", "c", "d", "e"};
    whenOpen([](QWidget* dialog) {
        auto* list = dialog->findChild<QListView*>();
        QVERIFY(list && list->isVisible());
        QCOMPARE(list->currentIndex().row(), 1);
        QTest::keyClick(list, Qt::Key_Down);
        qobject_cast<QDialog*>(dialog)->accept();
    });
    QCOMPARE(dialogs.choose(QStringLiteral("Title"), QStringLiteral("Text"), names, 1), 2);
    whenOpen([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    QCOMPARE(dialogs.choose(QStringLiteral("Title"), QStringLiteral("Text"), names, 1), -1);
    QCOMPARE(dialogs.choose(QStringLiteral("Title"), QStringLiteral("Text"), {}, 0), -1);
}

QTEST_MAIN(TestWindowDialogs)
#include "tst_windowdialogs.moc"
