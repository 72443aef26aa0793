#include "core/filechange.h"

#include "core/filesystemarchive.h"
#include "core/safefile.h"

#include "support/folders.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorv;

namespace {

constexpr int Children = 4;
constexpr int Increments = 50;
constexpr int LongWait = 60000;
constexpr int ShortWait = 50;

bool put(const QString& path, const QByteArray& content, QString* error = nullptr)
{
    QString reason;
    return SafeFile::save(path, content, error ? error : &reason, SafeFile::IsCopy);
}

/// A process of its own, which is killed with the object.
class Child
{
public:
    explicit Child(const std::function<void()>& work) : m_pid(fork())
    {
        if (m_pid == 0) {
            work();
            _exit(0);
        }
    }
    ~Child() { kill(); }
    void kill()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
        }
        wait();
    }
    void wait()
    {
        if (m_pid > 0) {
            waitpid(m_pid, nullptr, 0);
        }
        m_pid = -1;
    }

private:
    pid_t m_pid;
};

using Act = std::function<bool(const QString&)>;

}  // namespace

Q_DECLARE_METATYPE(Act)

class TestFileChange : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath("real/number");
        QVERIFY(QDir().mkpath(m_dir->filePath("real")));
        QVERIFY(put(m_path, "0"));
        QVERIFY(QFile::link("real", m_dir->filePath("linked")));
        QVERIFY(QFile::link("real/number", m_dir->filePath("link")));
    }
    void nothingIsLost_data();
    void nothingIsLost();
    void whatOthersDoIsNoticed_data();
    void whatOthersDoIsNoticed();
    void ownWritesAreNone();
    void waitsForOthers();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

void TestFileChange::nothingIsLost_data()
{
    QTest::addColumn<bool>("isLocked");
    QTest::newRow("by turns") << true;
    QTest::newRow("by looking alone") << false;
}

// Processes that count, each by another way to the file.
void TestFileChange::nothingIsLost()
{
    QFETCH(bool, isLocked);
    const QStringList ways{m_path, m_dir->filePath("linked/number"), m_dir->filePath("link"),
                           m_dir->filePath("linked/../real/./number")};
    const auto count = [&](const QString& path) {
        for (int done = 0; done < Increments;) {
            FileChange change(path);
            QString error;
            if (isLocked && !change.lock(LongWait, &error)) {
                return;
            }
            done += put(path, QByteArray::number(readFile(path).toInt() + 1));
        }
    };
    std::vector<std::unique_ptr<Child>> children;
    for (int i = 0; i < Children; ++i) {
        children.push_back(std::make_unique<Child>([&, i] { count(ways.at(i)); }));
    }
    for (const auto& child : children) {
        child->wait();
    }
    QCOMPARE(readFile(m_path).toInt(), Children * Increments);
    QCOMPARE(QDir(m_dir->filePath("real")).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestFileChange::whatOthersDoIsNoticed_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("written over") << Act([](const QString& p) { return writeFile(p, "9"); });
    QTest::newRow("replaced") << Act([](const QString& p) {
        return writeFile(p + "x", "9") && ::rename(qPrintable(p + "x"), qPrintable(p)) == 0;
    });
    QTest::newRow("removed") << Act([](const QString& p) { return QFile::remove(p); });
    QTest::newRow("removed and made")
        << Act([](const QString& p) { return QFile::remove(p) && writeFile(p, "0"); });
}

void TestFileChange::whatOthersDoIsNoticed()
{
    QFETCH(Act, act);
    for (const bool isLocked : {false, true}) {
        QVERIFY(put(m_path, "0"));
        QTest::qSleep(20);  // as long as a clock of a file system takes for a tick
        FileChange change(m_path);
        QString error;
        QVERIFY(!isLocked || change.lock(ShortWait, &error));
        QVERIFY(act(m_path));
        const QByteArray theirs = readFile(m_path);
        QVERIFY(!put(m_path, "ours", &error));
        QVERIFY2(error.contains(m_path), qPrintable(error));
        QVERIFY(change.isOvertaken());
        QCOMPARE(readFile(m_path), theirs);
    }
}

// A change may write several times, and may be made of others.
void TestFileChange::ownWritesAreNone()
{
    // A process that begins later would have the lock as well.
    Child other([this] {
        while (!QFile::exists(m_dir->filePath("now"))) {
            QTest::qSleep(1);
        }
        QString reason;
        FileChange change(m_path);
        writeFile(m_dir->filePath("result"), change.lock(ShortWait, &reason) ? "free" : "busy");
    });
    QString error;
    FileChange outer(m_path);
    QVERIFY(outer.lock(ShortWait, &error));
    {
        FileChange inner(m_dir->filePath("real/other"));
        QVERIFY(inner.lock(ShortWait, &error));
        QVERIFY(put(m_dir->filePath("real/other"), "new"));
    }
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(put(m_path, QByteArray::number(i), &error), qPrintable(error));
    }
    QVERIFY(!outer.isOvertaken());
    // The lock is there until the last one goes.
    QVERIFY(writeFile(m_dir->filePath("now"), {}));
    other.wait();
    QCOMPARE(readFile(m_dir->filePath("result")), QByteArray("busy"));
}

void TestFileChange::waitsForOthers()
{
    Child other([this] {
        QString reason;
        FileChange change(m_path);
        change.lock(LongWait, &reason);
        writeFile(m_dir->filePath("ready"), {});
        ::pause();
    });
    QTRY_VERIFY(QFile::exists(m_dir->filePath("ready")));
    QString error;
    {
        FileChange change(m_path);
        QVERIFY(!change.lock(ShortWait, &error));
    }
    QVERIFY2(error.contains(m_dir->filePath("real")), qPrintable(error));
    // A write that nobody announced takes its turn as well, and waits longer.
    Child third([this] { put(m_path, "late"); });
    QTest::qSleep(ShortWait);
    QCOMPARE(readFile(m_path), QByteArray("0"));
    other.kill();
    third.wait();
    QCOMPARE(readFile(m_path), QByteArray("late"));
    QVERIFY(FileChange(m_path).lock(ShortWait, &error));
}

QTEST_GUILESS_MAIN(TestFileChange)
#include "tst_filechange.moc"
