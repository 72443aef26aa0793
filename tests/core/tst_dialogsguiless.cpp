#include "core/dialogs/dialogs.h"

#include <QtTest>

using namespace Zorv;

/// Without widgets nobody can answer: each question is closed at once.
class TestDialogsGuiless : public QObject
{
    Q_OBJECT

private slots:
    void everyDialogIsClosed()
    {
        Dialogs& dialogs = *Dialogs::instance();
        const QString text = QStringLiteral("text");
        QCOMPARE(dialogs.question(text, text, Dialogs::Yes | Dialogs::No | Dialogs::Cancel,
                                  Dialogs::Yes),
                 Dialogs::Cancel);
        QCOMPARE(dialogs.question(text, text, Dialogs::Yes | Dialogs::No, Dialogs::Yes),
                 Dialogs::No);
        QCOMPARE(dialogs.warning(text, text), Dialogs::Ok);
        dialogs.information(text, text);
        dialogs.error(text, text);
        QCOMPARE(dialogs.choose(text, text, {text}, 0), -1);
        QVERIFY(dialogs.existingFolder(nullptr, text, {}).isEmpty());
        QVERIFY(getOpenFileName(nullptr, text, {}, {}).isEmpty());
        QVERIFY(getSaveFileName(nullptr, text, {}, {}).isEmpty());
        QVERIFY(getOpenFileNames(nullptr, text, {}, {}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDialogsGuiless)
#include "tst_dialogsguiless.moc"
