#include "core/dialogs/dialogs.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <functional>

using namespace Zorv;

namespace {

// Runs as soon as a dialog of this class is open.
template <typename Dialog>
void whenOpen(const std::function<void(Dialog*)>& act)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [=] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            act(dialog);
        }
    });
    timer->start(1);
}

}  // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void buttons_data()
    {
        columns<int, int, int, int>("buttons", "pressed", "standard", "answer");
        const int ask = Dialogs::Yes | Dialogs::No | Dialogs::Cancel;
        row("yes", ask, 1, int(QMessageBox::Yes), int(Dialogs::Yes));
        row("no", ask, 1, int(QMessageBox::No), int(Dialogs::No));
        row("cancel", ask, 1, int(QMessageBox::Cancel), int(Dialogs::Cancel));
        row("closed", ask, 0, 0, int(Dialogs::Cancel));
        row("closed without cancel", int(Dialogs::Yes | Dialogs::No), 0, 0, int(Dialogs::No));
        row("closed with one button", int(Dialogs::Ok), 0, 0, int(Dialogs::Ok));
        row("return key", int(Dialogs::Ok | Dialogs::Cancel), 2, 0, int(Dialogs::Ok));
    }

    void buttons()
    {
        QFETCH(int, buttons);
        QFETCH(int, pressed);
        QFETCH(int, standard);
        TestInterface host;
        QWidget window;
        host.window = &window;
        bool isChild = false;
        QString text;
        whenOpen<QMessageBox>([&](QMessageBox* box) {
            isChild = box->parentWidget() == &window;
            text = box->text();
            if (pressed == 1) {
                QTest::mouseClick(box->button(QMessageBox::StandardButton(standard)),
                                  Qt::LeftButton);
            } else if (pressed == 2) {
                QTest::keyClick(box, Qt::Key_Return);
            } else {
                box->close();
            }
        });
        const QString path = QStringLiteral("/tmp/<b>&amp;.def");
        const auto answer = Dialogs::instance()->question(QStringLiteral("Title"), path,
                                                          Dialogs::Buttons(buttons), Dialogs::Ok);
        QTEST(int(answer), "answer");
        QVERIFY(isChild);
        QCOMPARE(text, path);
    }

    void choice()
    {
        const QStringList choices{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
        const auto ask = [&] {
            return Dialogs::instance()->choose(QStringLiteral("t"), QStringLiteral("x"), choices,
                                               1);
        };
        whenOpen<QInputDialog>([](QInputDialog* dialog) { dialog->accept(); });
        QCOMPARE(ask(), 1);
        whenOpen<QInputDialog>([](QInputDialog* dialog) {
            dialog->setTextValue(QStringLiteral("c"));
            dialog->accept();
        });
        QCOMPARE(ask(), 2);
        whenOpen<QInputDialog>([](QInputDialog* dialog) { dialog->reject(); });
        QCOMPARE(ask(), -1);
    }

    void askText()
    {
        const auto ask = [] {
            return Dialogs::instance()->askText(QStringLiteral("t"), QStringLiteral("x"),
                                                QStringLiteral("first"));
        };
        whenOpen<QInputDialog>([](QInputDialog* dialog) { dialog->accept(); });
        QCOMPARE(ask().value(), QStringLiteral("first"));
        whenOpen<QInputDialog>([](QInputDialog* dialog) {
            dialog->setTextValue({});
            dialog->accept();
        });
        QCOMPARE(ask().value(), QString());
        whenOpen<QInputDialog>([](QInputDialog* dialog) { dialog->reject(); });
        QVERIFY(!ask());
    }

    void fileNames_data()
    {
        columns<QVariant, QStringList>("option", "names");
        const QStringList chosen{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("B")};
        row("unset", QVariant(), chosen);
        row("off", QVariant(false), chosen);
        row("on", QVariant(true),
            QStringList{QStringLiteral("B"), QStringLiteral("a"), QStringLiteral("b")});
    }

    void fileNames()
    {
        QFETCH(QVariant, option);
        TestInterface host;
        host.options[QStringLiteral("sort_file_names")] = option;
        PlannedDialogs dialogs;
        dialogs.fileAnswers = {{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("B")}};
        QTEST(getOpenFileNames(nullptr, {}, {}, {}), "names");
    }

    void extensions_data()
    {
        columns<QString, QString, QString>("typed", "filter", "name");
        const QString pair = QStringLiteral("Blob (old) (*.blob);;T (*.txt *.md)");
        row("none", "new", pair, "new.blob");
        row("foreign", "new.png", pair, "new.png.blob");
        row("one of them", "new.md", pair, "new.md");
        row("another case", "new.TXT", pair, "new.TXT");
        row("any", "new", "Any (*)", "new");
        row("no filter", "new", "", "new");
    }

    void extensions()
    {
        QFETCH(QString, typed);
        QFETCH(QString, filter);
        QFETCH(QString, name);
        const QTemporaryDir dir;
        whenOpen<QFileDialog>([&](QFileDialog* dialog) {
            dialog->selectFile(dir.filePath(typed));
            static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
        });
        QCOMPARE(Dialogs::instance()->saveFileName(nullptr, {}, dir.path(), filter),
                 dir.filePath(name));
    }

    // What is typed without its extension may be the name of a file.
    void asksBeforeItReplaces()
    {
        const QTemporaryDir dir;
        QFile file(dir.filePath("work.blob"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const auto accept = [&dir](QFileDialog* dialog) {
            dialog->selectFile(dir.filePath("work"));
            static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
        };
        QStringList asked;
        const auto answer = [&](QMessageBox::StandardButton button,
                                const std::function<void()>& then) {
            whenOpen<QMessageBox>([&asked, button, then](QMessageBox* box) {
                asked.append(box->text());
                then();
                box->button(button)->click();
            });
        };
        answer(QMessageBox::No, [&] {
            whenOpen<QFileDialog>([&](QFileDialog* again) {
                answer(QMessageBox::Yes, [] {});
                accept(again);
            });
        });
        whenOpen<QFileDialog>(accept);
        QCOMPARE(Dialogs::instance()->saveFileName(nullptr, {}, dir.path(), "Blob (*.blob)"),
                 file.fileName());
        QCOMPARE(asked.size(), 2);
        QVERIFY(asked.first().contains(file.fileName()));
    }

    void replacedDialogsComeBack()
    {
        Dialogs* standard = Dialogs::instance();
        {
            PlannedDialogs dialogs;
            QCOMPARE(Dialogs::instance(), static_cast<Dialogs*>(&dialogs));
        }
        QCOMPARE(Dialogs::instance(), standard);
    }
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
