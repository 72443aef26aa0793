#include "cache/filecache.h"
#include "cache/streamcachedata.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

using namespace Zorv;

namespace {

struct Record : StreamCacheData
{
    using StreamCacheData::StreamCacheData;
    void disposeData() override {}
};

}  // namespace

class TestFileCache : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_cache.clear(); }
    void filtersSeeTheGivenType();
    void checksumStaysWithoutAnother();
    void failedWriteKeepsTheFile();
    void filesThatAreNone();
    void nameEndsWithTheBytes();
    void renameAndDelete();

private:
    QString write(const QString& name, const QByteArray& data);
    FileItem* add(const QString& path, void* filterData = nullptr);

    std::unique_ptr<QTemporaryDir> m_folder;
    FileCache m_cache;
};

void TestFileCache::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_cache.disconnect();
}

QString TestFileCache::write(const QString& name, const QByteArray& data)
{
    const QString path = m_folder->filePath(name);
    return writeFile(path, data) ? path : QString();
}

FileItem* TestFileCache::add(const QString& path, void* filterData)
{
    return static_cast<FileItem*>(m_cache.addItem(path.toLocal8Bit(), 99, filterData, 0));
}

void TestFileCache::filtersSeeTheGivenType()
{
    QStringList calls;
    const auto filter = [&calls](const char* way) {
        return [&calls, way](unsigned char type, void*, const QByteArray& from, QByteArray& to) {
            calls << QString("%1 %2 %3").arg(way).arg(type).arg(QString(from));
            to = type == 7 ? QByteArray() : way + from;
        };
    };
    connect(&m_cache, &StreamCache::readFilter, filter("r"));
    connect(&m_cache, &StreamCache::writeFilter, filter("w"));
    Record record(&m_cache, write("a.png", "old"));
    QCOMPARE(record.toData(true), QByteArray("old"));
    QCOMPARE(record.toData(false), QByteArray("rold"));

    record.fromData("A", 0, nullptr, 0);
    QCOMPARE(readFile(record.fileName()), QByteArray("wA"));
    record.fromData("B", 4, nullptr, 0);
    QCOMPARE(readFile(record.fileName()), QByteArray("wB"));
    record.fromData("C", 5, nullptr, 0);
    QCOMPARE(readFile(record.fileName()), QByteArray("wrC"));
    QCOMPARE(calls, QStringList({"r 4 old", "w 0 A", "w 4 B", "r 5 C", "w 5 rC"}));

    Record silent(&m_cache, write("a.act", "old"));
    silent.fromData("D", 7, nullptr, 0);
    QCOMPARE(readFile(silent.fileName()), QByteArray("D"));
    QCOMPARE(silent.toData(false), QByteArray());
}

void TestFileCache::checksumStaysWithoutAnother()
{
    FileItem* item = add(write("a.png", "old"));
    m_cache.setItemData(item, "new", 4, nullptr, 77);
    m_cache.setItemData(item, "newer", 4, nullptr, 0);
    QCOMPARE(item->crc, 77ULL);
    QCOMPARE(item->size, 3);
    QVERIFY(m_cache.itemIsValid(item));
    QCOMPARE(item->size, 5);
}

// A reader that has the file open goes on with the old bytes, and a folder that cannot be written
// to keeps them.
void TestFileCache::failedWriteKeepsTheFile()
{
    const QString path = write("a.png", "old");
    FileItem* item = add(path);
    QFile reader(path);
    QVERIFY(reader.open(QIODevice::ReadOnly));
    m_cache.setItemData(item, "new", 4, nullptr, 0);
    QCOMPARE(m_cache.failure(), QString());
    QCOMPARE(reader.readAll(), QByteArray("old"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.png"));

    QFile::remove(path);
    QDir().mkdir(path);
    m_cache.setItemData(item, "newer", 4, nullptr, 0);
    QVERIFY2(m_cache.failure().contains("a.png"), qPrintable(m_cache.failure()));
    QCOMPARE(m_cache.itemRawData(item), QByteArray());
}

void TestFileCache::filesThatAreNone()
{
    FileItem* missing = add(m_folder->filePath("none.png"));
    missing->size = 5;
    QVERIFY(!m_cache.itemIsValid(missing));
    QCOMPARE(missing->size, 0);
    QCOMPARE(m_cache.itemRawData(missing), QByteArray());
    QCOMPARE(m_cache.addItem({}, 0, nullptr, 0)->size, 0);

    // Opening it would wait for a writer.
    const QString pipe = m_folder->filePath("pipe.png");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(m_cache.itemRawData(add(pipe)), QByteArray());
}

void TestFileCache::nameEndsWithTheBytes()
{
    const auto nameOf = [this](const QByteArray& bytes) {
        return m_cache.fileName(m_cache.addItem(bytes, 0, nullptr, 0));
    };
    QCOMPARE(nameOf(QByteArray::fromRawData("a.png and more", 5)), QString("a.png"));
    QCOMPARE(nameOf(QByteArray("a.png\0b", 7)), QString("a.png"));
}

void TestFileCache::renameAndDelete()
{
    const QString from = write("a.png", "data");
    const QString to = m_folder->filePath("b.png");
    FileItem* item = add(from);
    m_cache.renameItem(item, to);
    QCOMPARE(readFile(to), QByteArray("data"));
    m_cache.deleteItem(item);
    QVERIFY(!QFile::exists(to));
    m_cache.renameItem(item, from);
    QCOMPARE(m_cache.fileName(item), from);
}

QTEST_GUILESS_MAIN(TestFileCache)
#include "tst_filecache.moc"
