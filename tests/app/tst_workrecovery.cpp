#include "app/recovery/recoverydialog.h"
#include "app/recovery/workrecovery.h"
#include "operations/recovery/abandonedtexts.h"
#include "operations/recovery/recoverykeeper.h"
#include "windowfixture.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>

using App::RecoveryDialog;
using App::WorkRecovery;
using Operations::AbandonedTexts;

namespace {

constexpr int Kills = 50;
constexpr int KillsWithWindow = 10;

QChar letter(int number)
{
    return QChar('a' + number % 26);
}

/// The window as another process: letters are typed into a text until it is
/// killed. Prints how many were typed whenever all has been put aside.
int typeUntilKilled(const QString& root, const QString& folder, const QString& file)
{
    WindowFixture fixture(folder + "/child.ini");
    WorkRecovery recovery(fixture.window.get(), root);
    recovery.keeper()->setInterval(20);
    fixture.window->openPath(folder);
    fixture.window->openFile(file);
    int typed = 0;
    QObject::connect(recovery.keeper(), &Operations::RecoveryKeeper::copied, [&typed] {
        printf("%d\n", typed);
        fflush(stdout);
    });
    QTimer keys;
    QObject::connect(&keys, &QTimer::timeout, [&] {
        fixture.type(letter(typed));
        ++typed;
    });
    keys.start(2);
    return QApplication::exec();
}

/// Does something with the recovery dialog once it is open.
void whenAsked(const std::function<void(RecoveryDialog*)>& answer)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, answer] {
        if (auto* dialog = qobject_cast<RecoveryDialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            answer(dialog);
        }
    });
    timer->start(5);
}

void clickButton(const QWidget* dialog, const QString& text)
{
    const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove('&') == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable("no button " + text));
}

}  // namespace

class TestWorkRecovery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void killedWindowLosesLittle();
    void decisionsAreKept();
    void otherGameIsOpened();
    void gameIsAskedAboutWhenOpened();
    void newFileComesBack();
    void normalEndLeavesNothing();

private:
    QString root() const { return m_dir->filePath("recovery"); }
    QString settings() const { return m_dir->filePath("settings.ini"); }
    void leave(const QString& name, const QString& file, const QString& text);
    int killWhileTyping(const QString& file, QRandomGenerator* random);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TemporaryGame> m_game;
};

void TestWorkRecovery::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TemporaryGame>();
}

/// Gives the letters that were typed when the last copy but one was whole.
int TestWorkRecovery::killWhileTyping(const QString& file, QRandomGenerator* random)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {"type", root(), m_game->root(), file});
    QList<int> reported;
    const auto read = [&] {
        while (child.canReadLine()) {
            reported.append(child.readLine().trimmed().toInt());
        }
    };
    while (reported.size() < 2 && child.waitForReadyRead()) {
        read();
    }
    QTest::qWait(random->bounded(60));
    child.kill();
    child.waitForFinished();
    read();
    return reported.size() < 2 ? -1 : reported.at(reported.size() - 2);
}

void TestWorkRecovery::killedWindowLosesLittle()
{
    const quint32 seed = 20240611;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArray before = m_game->read("characters/ryn/moves.code");
    const QString text = QString::fromLatin1(before).replace("\r\n", "\n");
    for (int i = 0; i < Kills; ++i) {
        const int safe = killWhileTyping(m_game->path("characters/ryn/moves.code"), &random);
        QVERIFY(safe > 0);
        QCOMPARE(m_game->read("characters/ryn/moves.code"), before);
        QString recovered;
        if (i < KillsWithWindow) {
            WindowFixture fixture(settings());
            WorkRecovery recovery(fixture.window.get(), root());
            whenAsked([](RecoveryDialog* dialog) { clickButton(dialog, "Restore all"); });
            recovery.offerAll();
            QVERIFY(fixture.document());
            recovered = fixture.document()->text();
            QVERIFY(fixture.document()->isModified());
            fixture.press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(fixture.document()->text(), text);
        } else {
            const AbandonedTexts found(root());
            QCOMPARE(found.all().size(), 1);
            QCOMPARE(found.all().first().state, Operations::AbandonedText::Applicable);
            recovered = found.all().first().copy.text;
            QVERIFY(found.all().first().discard());
        }
        QVERIFY(recovered.endsWith(text));
        const int count = recovered.size() - text.size();
        QVERIFY2(count >= safe, qPrintable(QString("%1 of %2").arg(count).arg(safe)));
        for (int at = 0; at < count; ++at) {
            QCOMPARE(recovered.at(at), letter(at));
        }
        QVERIFY(AbandonedTexts(root()).all().isEmpty());
    }
}

/// As a window that was killed: a copy of an unsaved text, in a folder that
/// nobody has locked.
void TestWorkRecovery::leave(const QString& name, const QString& file, const QString& text)
{
    Operations::RecoveryCopy copy;
    copy.fileName = file;
    copy.gameFolder = m_game->root() + '/';
    copy.mainFile = file.contains("/oda/") ? m_game->oda() : m_game->ryn();
    copy.kind = file.isEmpty() ? Family::FileKind::Animations : Family::fileKindOf(file);
    copy.codec = "UTF-8";
    copy.time = QDateTime::currentDateTime();
    copy.stamp = Operations::FileStamp::of(file);
    copy.stamp.addHash(file);
    copy.text = text;
    QDir().mkpath(root() + "/dead");
    QFile out(root() + "/dead/" + name + ".zorvcopy");
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(copy.toBytes());
}

void TestWorkRecovery::decisionsAreKept()
{
    leave("1", m_game->ryn(), "restored\n");
    leave("2", m_game->animations(), "discarded\n");
    leave("3", m_game->oda(), "older\n");
    leave("4", m_game->path("characters/ryn/moves.code"), "later\n");
    m_game->write("characters/oda/oda.character", "[info]\r\nname = \"New\"\r\n");
    WindowFixture fixture(settings());
    QVERIFY(fixture.window->openPath(m_game->root()));
    WorkRecovery recovery(fixture.window.get(), root());
    fixture.dialogs.fileAnswers = {{m_game->path("rescued.character")}};
    whenAsked([](RecoveryDialog* dialog) {
        auto* list = dialog->findChild<QTreeWidget*>("texts");
        QCOMPARE(list->topLevelItemCount(), 4);
        QVERIFY(dialog->findChild<QPlainTextEdit*>()->toPlainText().contains("+restored"));
        QTest::keyClick(list, Qt::Key_Down);
        clickButton(dialog, "Discard");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        for (const QRadioButton* button : dialog->findChildren<QRadioButton*>()) {
            QCOMPARE(button->isEnabled(), button->text() != "Restore");
        }
        clickButton(dialog, "Save the copy as...");
        QTest::keyClick(list, Qt::Key_Down);
        clickButton(dialog, "Later");
        clickButton(dialog, "OK");
    });
    recovery.offerAll();
    QCOMPARE(fixture.document()->fileName(), m_game->ryn());
    QCOMPARE(fixture.document()->text(), QString("restored\n"));
    QCOMPARE(fixture.window->session()->modifiedDocuments().size(), 1);
    const AbandonedTexts left(root());
    QCOMPARE(left.all().size(), 2);
    QCOMPARE(left.all().first().copy.text, QString("older\n"));
    QCOMPARE(left.all().last().copy.text, QString("later\n"));
    QCOMPARE(m_game->read("rescued.character"), QByteArray("older\r\n"));
    QCOMPARE(m_game->read("characters/oda/oda.character"),
             QByteArray("[info]\r\nname = \"New\"\r\n"));
}

void TestWorkRecovery::otherGameIsOpened()
{
    leave("1", m_game->animations(), "animation 9\n");
    const TemporaryGame other;
    WindowFixture fixture(settings());
    QVERIFY(fixture.window->openPath(other.root()));
    WorkRecovery recovery(fixture.window.get(), root());
    whenAsked([](RecoveryDialog* dialog) { clickButton(dialog, "Restore all"); });
    recovery.offerAll();
    QCOMPARE(fixture.window->session()->folder(), m_game->root() + '/');
    QCOMPARE(fixture.document()->fileName(), m_game->animations());
    QCOMPARE(fixture.document()->text(), QString("animation 9\n"));
}

void TestWorkRecovery::gameIsAskedAboutWhenOpened()
{
    leave("1", m_game->animations(), "animation 9\n");
    const TemporaryGame other;
    WindowFixture fixture(settings());
    WorkRecovery recovery(fixture.window.get(), root());
    QVERIFY(fixture.window->openPath(other.root()));
    QCoreApplication::processEvents();
    QVERIFY(fixture.window->openPath(m_game->root()));
    int asked = 0;
    whenAsked([&asked](RecoveryDialog* dialog) {
        ++asked;
        clickButton(dialog, "Cancel");
    });
    QTRY_COMPARE(asked, 1);
    QCOMPARE(AbandonedTexts(root()).all().size(), 1);
}

void TestWorkRecovery::newFileComesBack()
{
    leave("1", QString(), "animation 9\n");
    WindowFixture fixture(settings());
    WorkRecovery recovery(fixture.window.get(), root());
    whenAsked([](RecoveryDialog* dialog) { clickButton(dialog, "Restore all"); });
    recovery.offerAll();
    QVERIFY(fixture.document()->fileName().isEmpty());
    QCOMPARE(fixture.document()->kind(), Family::FileKind::Animations);
    QCOMPARE(fixture.document()->text(), QString("animation 9\n"));
    QCOMPARE(App::projectOf(fixture.document())->fileName(), m_game->ryn());
}

void TestWorkRecovery::normalEndLeavesNothing()
{
    {
        WindowFixture fixture(settings());
        WorkRecovery recovery(fixture.window.get(), root());
        fixture.open(*m_game, m_game->ryn());
        fixture.type("x");
        QVERIFY(recovery.keeper()->flush());
        QVERIFY(QDir(recovery.keeper()->folder()).exists());
        fixture.dialogs.choiceAnswers = {1};
        QVERIFY(fixture.window->close());
    }
    QVERIFY(QDir(root()).isEmpty());
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "type" && arguments.size() == 5) {
        return typeUntilKilled(arguments[2], arguments[3], arguments[4]);
    }
    TestWorkRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_workrecovery.moc"
