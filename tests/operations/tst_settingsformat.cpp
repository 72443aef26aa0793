#include "operations/settingsformat.h"

#include "support/brokenbytes.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QColor>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace Operations;

namespace {

constexpr quint32 Seed = 4711;

QString randomText(QRandomGenerator& random)
{
    static const QString signs =
        QStringLiteral("a1fF@ ,;=\"\\/%#[]()\n\t\r\x01\x7f\u00e4\u00ff\u20ac").append(QChar(0));
    QString text;
    for (int i = random.bounded(8); i > 0; --i) {
        text += signs.at(random.bounded(signs.size()));
    }
    return text;
}

QVariant randomValue(QRandomGenerator& random)
{
    switch (random.bounded(8)) {
    case 0:
        return random.bounded(-1000000, 1000000);
    case 1:
        return random.bounded(2) == 0;
    case 2:
        return random.bounded(3.0);
    case 3:
        return randomText(random).toUtf8();
    case 4:
        return QColor::fromRgba(random.generate());
    case 5:
        return QStringList{randomText(random), randomText(random), randomText(random)};
    default:
        return randomText(random);
    }
}

/// As settings are asked for: a number can be a text.
bool isSame(const QVariant& a, const QVariant& b)
{
    const bool isText = b.type() == QVariant::String && a.type() != QVariant::ByteArray;
    return isText ? a.toString() == b.toString() : a == b;
}

}  // namespace

class TestSettingsFormat : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatTheOtherWrites_data();
    void readsWhatTheOtherWrites();
    void brokenFiles();
    void fullDiskLeavesTheOldFile();

private:
    QTemporaryDir m_dir;
    int m_files = 0;
};

void TestSettingsFormat::readsWhatTheOtherWrites_data()
{
    columns<QSettings::Format, QSettings::Format>("writer", "reader");
    QTest::newRow("own") << settingsFormat() << settingsFormat();
    QTest::newRow("from that of Qt") << QSettings::IniFormat << settingsFormat();
    QTest::newRow("to that of Qt") << settingsFormat() << QSettings::IniFormat;
}

void TestSettingsFormat::readsWhatTheOtherWrites()
{
    const auto [writer, reader] = fetched<QSettings::Format, QSettings::Format>();
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    for (int round = 0; round < 40; ++round) {
        const QString name = m_dir.filePath(QString::number(++m_files));
        QMap<QString, QVariant> values;
        for (int i = 0; i < 20; ++i) {
            const QString group = QStringList{"", "general/", "a b/", "x/y/"}.at(random.bounded(4));
            const QString key = randomText(random).remove('/').remove(QChar(0));
            values.insert(group + 'k' + key, randomValue(random));
        }
        {
            QSettings settings(name, writer);
            for (auto value = values.cbegin(); value != values.cend(); ++value) {
                settings.setValue(value.key(), *value);
            }
        }
        QVERIFY(QFile::rename(name, name + "r"));  // what is kept in memory goes by the name
        const QSettings settings(name + "r", reader);
        QCOMPARE(settings.status(), QSettings::NoError);
        QCOMPARE(settings.allKeys().size(), values.size());
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const QString key = QString(value.key()).replace("general/", "General/");
            if (!isSame(*value, settings.value(key))) {
                qWarning() << key << *value << settings.value(key);
                QFAIL("another value");
            }
        }
    }
}

/// Whatever the bytes, what can be read is, and the next change is written.
void TestSettingsFormat::brokenFiles()
{
    forEachBrokenForm("[a b]\nk\\%20=\"x\\x41,\", @ByteArray(\\0)\n",
                      [this](const QByteArray& bytes) {
                          const QString name = m_dir.filePath(QString::number(++m_files));
                          QVERIFY(writeFile(name, bytes));
                          QSettings settings(name, settingsFormat());
                          settings.setValue("new", 1);
                          settings.sync();
                          QVERIFY(settings.status() != QSettings::AccessError);
                      });
    const QString name = m_dir.filePath("line");
    writeFile(name, "[General]\na=1\nno setting\n[b\nc=2\n");
    QSettings settings(name, settingsFormat());
    settings.setValue("new", 1);
    settings.sync();
    QVERIFY(QFile::rename(name, name + "r"));
    const QSettings again(name + "r", settingsFormat());
    QCOMPARE(again.allKeys(), (QStringList{"a", "b/c", "new"}));
}

/// What no longer fits: the file may have 50 bytes.
void TestSettingsFormat::fullDiskLeavesTheOldFile()
{
    const QString name = m_dir.filePath("settings.conf");
    QSettings settings(name, settingsFormat());
    settings.setValue("engine", QString(100, 'e'));
    settings.sync();
    const auto content = [&name] {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray old = content();
    QVERIFY(old.size() > 100);
    settings.setValue("agreed", true);
    ::signal(SIGXFSZ, SIG_IGN);
    struct rlimit before;
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit little
    {
        50, before.rlim_max
    };
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &little), 0);
    settings.sync();
    ::setrlimit(RLIMIT_FSIZE, &before);
    QCOMPARE(settings.status(), QSettings::AccessError);
    QCOMPARE(content(), old);
    settings.sync();
    QVERIFY(content().contains("agreed=true"));
}

QTEST_GUILESS_MAIN(TestSettingsFormat)
#include "tst_settingsformat.moc"
