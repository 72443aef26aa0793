#include "cache/crc64.h"
#include "cache/diskcache.h"
#include "cache/filecache.h"
#include "cache/memorycache.h"
#include "cache/streamcachedata.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <map>
#include <memory>
#include <sys/resource.h>
#include <vector>

using namespace Zorv;

Q_DECLARE_METATYPE(Zorv::StreamCache::Type)

namespace {

using Item = StreamCache::Item;

enum FilterType : unsigned char { Plain = 0, Coded = 1, Silent = 2 };

unsigned long long crcOf(const QByteArray& data)
{
    return crc64(reinterpret_cast<const unsigned char*>(data.constData()), unsigned(data.size()));
}

QByteArray coded(QByteArray data)
{
    for (char& byte : data) {
        byte = char(byte ^ 0x5A);
    }
    return data;
}

/// A store with filters that code every type but `Silent`, and count what they decode.
struct Store
{
    explicit Store(StreamCache::Type type) : cache(StreamCache::instance(type))
    {
        const auto filter = [](unsigned char kind, void*, const QByteArray& from, QByteArray& to) {
            to = kind == Silent ? QByteArray() : coded(from);
        };
        QObject::connect(cache.get(), &StreamCache::writeFilter, filter);
        QObject::connect(
            cache.get(), &StreamCache::readFilter,
            [this, filter](unsigned char kind, void* data, const QByteArray& from, QByteArray& to) {
                ++decodedCount;
                filter(kind, data, from, to);
            });
    }
    ~Store() { cache->clear(); }

    std::unique_ptr<StreamCache> cache;
    int decodedCount = 0;
};

/// Items in list order with what they should hold.
struct SlowModel
{
    Item* find(const QByteArray& data, Item* exclude) const
    {
        for (Item* item : list) {
            if (item != exclude && !data.isEmpty() && holds.at(item) == data) {
                return item;
            }
        }
        return nullptr;
    }

    std::vector<Item*> list;
    std::map<Item*, QByteArray> holds;
};

struct Record : StreamCacheData
{
    Record(StreamCache* store, int* count) : StreamCacheData(store), disposed(count) {}
    void disposeData() override { ++*disposed; }
    int* disposed;
};

/// A store without bytes, which can hold an item twice and notes what is deleted.
struct NotingStore : StreamCache
{
    struct Noted : Item
    {
        ~Noted() override { deleted->append(name); }
        QByteArray* deleted;
        QByteArray name;
    };

    Type type() const override { return MemoryStore; }
    QByteArray itemData(Item*) const override { return {}; }
    QByteArray itemRawData(Item*) const override { return {}; }
    Item* addItem(const QByteArray& name, unsigned char, void*, unsigned long long) override
    {
        auto* item = new Noted;
        item->deleted = &deleted;
        item->name = name;
        item->crc = 1;
        appendItem(item);
        return item;
    }
    void setItemData(Item*, const QByteArray&, unsigned char, void*, unsigned long long) override {}

    using StreamCache::appendItem;
    using StreamCache::items;
    QByteArray deleted;
};

// Few different contents, so that many items hold the same; all lengths from nothing on.
QByteArray randomData(QRandomGenerator& random)
{
    const int length = random.bounded(4) ? random.bounded(40) : random.bounded(3000);
    return QByteArray(length, char('a' + random.bounded(3)));
}

}  // namespace

class TestStreamCache : public QObject
{
    Q_OBJECT

private slots:
    void randomOperations_data();
    void randomOperations();
    void emptyItems_data();
    void emptyItems();
    void rawDataIsWhatIsKept();
    void equalityOfEmptyItems();
    void searchDecodesOnlyWhatItMust();
    void checksumsThatAreGivenLate();
    void diskOrder();
    void longTail();
    void fullDisk();
    void noTemporaryFile();
    void defaultStore_data();
    void defaultStore();
    void sharedRecords();
    void borrowedBytes();
    void itemsThatStandTwice();
};

void TestStreamCache::randomOperations_data()
{
    QTest::addColumn<StreamCache::Type>("type");
    QTest::newRow("memory") << StreamCache::MemoryStore;
    QTest::newRow("disk") << StreamCache::DiskStore;
    QTest::newRow("files") << StreamCache::FileStore;
}

void TestStreamCache::randomOperations()
{
    QFETCH(StreamCache::Type, type);
    const QTemporaryDir folder;
    QRandomGenerator random(1601);
    Store store(type);
    SlowModel model;
    int nextFile = 0;
    const auto any = [&] { return model.list[size_t(random.bounded(int(model.list.size())))]; };

    for (int step = 0; step < 1500; ++step) {
        const int what = model.list.empty() ? 0 : random.bounded(100);
        const QByteArray data = randomData(random);
        const auto kind = static_cast<unsigned char>(random.bounded(3));
        const unsigned long long crc = random.bounded(2) ? crcOf(data) : 0;
        if (what < 30) {
            Item* item;
            if (type == StreamCache::FileStore) {
                const QString name = folder.filePath(QString::number(nextFile++) + ".PNG");
                QFile file(name);
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write(coded(data)) == data.size());
                file.close();
                item = store.cache->addItem(name.toLocal8Bit(), kind, nullptr, crc);
            } else {
                item = store.cache->addItem(data, kind, nullptr, crc);
            }
            model.list.push_back(item);
            model.holds[item] = data;
        } else if (what < 65) {
            Item* item = any();
            if (type == StreamCache::FileStore) {
                store.cache->setItemData(item, data, item->type, nullptr, crcOf(data));
            } else {
                store.cache->setItemData(item, data, kind, nullptr, crc);
            }
            model.holds[item] = data;
        } else if (what < 80) {
            Item* item = any();
            store.cache->removeItem(item);
            model.list.erase(std::find(model.list.begin(), model.list.end(), item));
            model.holds.erase(item);
        } else {
            Item* exclude = random.bounded(2) ? nullptr : any();
            QCOMPARE(store.cache->find(data, exclude), model.find(data, exclude));
            Item* item = any();
            QCOMPARE(store.cache->isEqual(item, data, crcOf(data)),
                     !data.isEmpty() && model.holds[item] == data);
            Item* other = any();
            if (!model.holds[item].isEmpty()) {
                QCOMPARE(store.cache->isEqual(item, other),
                         model.holds[item] == model.holds[other]);
            }
        }
        if (step % 10 == 0) {
            for (const auto& [item, held] : model.holds) {
                QCOMPARE(store.cache->itemData(item), held);
            }
        }
    }
}

void TestStreamCache::emptyItems_data()
{
    columns<StreamCache::Type, int>("type", "kind");
    for (const int kind : {Plain, Coded, Silent}) {
        QTest::addRow("memory %d", kind) << StreamCache::MemoryStore << kind;
        QTest::addRow("disk %d", kind) << StreamCache::DiskStore << kind;
    }
}

// Also where the filter would make something out of nothing.
void TestStreamCache::emptyItems()
{
    const auto [type, kind] = fetched<StreamCache::Type, int>();
    const std::unique_ptr<StreamCache> cache(StreamCache::instance(type));
    const auto filter = [](unsigned char, void*, const QByteArray& from, QByteArray& to) {
        to = from + "!";
    };
    connect(cache.get(), &StreamCache::writeFilter, filter);
    connect(cache.get(), &StreamCache::readFilter, filter);
    Item* item = cache->addItem({}, static_cast<unsigned char>(kind), nullptr, 0);
    QCOMPARE(cache->itemData(item), QByteArray());
    QCOMPARE(cache->itemRawData(item), QByteArray());
    QCOMPARE(item->size, 0);
    QCOMPARE(item->crc, kind == Plain ? ~0ULL : 0ULL);
    cache->setItemData(item, "full", static_cast<unsigned char>(kind), nullptr, 0);
    cache->setItemData(item, {}, static_cast<unsigned char>(kind), nullptr, 0);
    QCOMPARE(cache->itemData(item), QByteArray());
    QCOMPARE(cache->find({}, nullptr), nullptr);
    cache->clear();
}

void TestStreamCache::rawDataIsWhatIsKept()
{
    for (const auto type : {StreamCache::MemoryStore, StreamCache::DiskStore}) {
        Store store(type);
        const QByteArray data(1000, 'x');
        Item* plain = store.cache->addItem(data, Plain, nullptr, 0);
        Item* filtered = store.cache->addItem(data, Coded, nullptr, 0);
        Item* silent = store.cache->addItem(data, Silent, nullptr, 0);
        QCOMPARE(store.cache->itemRawData(plain), data);
        QVERIFY(plain->size < 100);
        QCOMPARE(store.cache->itemRawData(filtered), coded(data));
        QCOMPARE(store.cache->itemRawData(silent), data);
        QCOMPARE(store.cache->itemData(silent), data);
        QCOMPARE(store.cache->itemData(nullptr), QByteArray());
        QCOMPARE(store.cache->itemRawData(nullptr), QByteArray());
    }
}

// Stored forms of one type are compared as they are, decoded ones have to hold something.
void TestStreamCache::equalityOfEmptyItems()
{
    Store store(StreamCache::MemoryStore);
    Item* a = store.cache->addItem({}, Plain, nullptr, 0);
    Item* b = store.cache->addItem({}, Plain, nullptr, 0);
    Item* c = store.cache->addItem({}, Coded, nullptr, 0);
    QVERIFY(store.cache->isEqual(a, b));
    QVERIFY(!store.cache->isEqual(a, c));
    QVERIFY(!store.cache->isEqual(a, QByteArray(), ~0ULL));
}

void TestStreamCache::searchDecodesOnlyWhatItMust()
{
    Store store(StreamCache::MemoryStore);
    QCOMPARE(store.cache->find("anything", nullptr), nullptr);
    for (int i = 0; i < 50; ++i) {
        const QByteArray data = QByteArray::number(i);
        store.cache->addItem(data, Coded, nullptr, i < 25 ? crcOf(data) : 0);
    }
    QCOMPARE(store.cache->find("other", nullptr), nullptr);
    QCOMPARE(store.decodedCount, 25);
    QCOMPARE(store.cache->find("another", nullptr), nullptr);
    QCOMPARE(store.decodedCount, 25);
    QVERIFY(store.cache->find("30", nullptr));
    QCOMPARE(store.decodedCount, 26);
}

void TestStreamCache::checksumsThatAreGivenLate()
{
    Store store(StreamCache::MemoryStore);
    Item* first = store.cache->addItem("same", Coded, nullptr, 0);
    Item* second = store.cache->addItem("same", Plain, nullptr, 0);
    QVERIFY(store.cache->isEqual(second, first));
    QCOMPARE(first->crc, crcOf("same"));
    QCOMPARE(store.cache->find("same", nullptr), first);
    store.cache->setItemData(first, "new", Coded, nullptr, 0);
    QCOMPARE(first->crc, 0ULL);
    QCOMPARE(store.cache->find("same", nullptr), second);
    QCOMPARE(store.cache->find("new", nullptr), first);
}

void TestStreamCache::diskOrder()
{
    DiskCache cache;
    const auto add = [&cache](int size) {
        return static_cast<DiskItem*>(cache.addItem(QByteArray(size, 'd'), Silent, nullptr, 0));
    };
    DiskItem* first = add(100);
    DiskItem* second = add(50);
    DiskItem* third = add(30);
    cache.setItemData(first, QByteArray(150, 'e'), Silent, nullptr, 0);
    QCOMPARE(first->offset, 0);
    QCOMPARE(second->offset, 150);
    QCOMPARE(third->offset, 200);
    cache.setItemData(third, "short", Silent, nullptr, 0);
    QCOMPARE(add(1)->offset, 230);
    cache.clear();
}

// More bytes behind an item than are moved in one step.
void TestStreamCache::longTail()
{
    Store store(StreamCache::DiskStore);
    QByteArray data(70 * 1024 * 1024, Qt::Uninitialized);
    for (int i = 0; i < data.size(); ++i) {
        data[i] = char(i * 7 + (i >> 8) + (i >> 16));
    }
    Item* front = store.cache->addItem("front", Silent, nullptr, 0);
    Item* tail[] = {store.cache->addItem(data, Silent, nullptr, 0),
                    store.cache->addItem(data, Silent, nullptr, 0)};
    for (const int size : {1000, 10}) {
        store.cache->setItemData(front, QByteArray(size, 'f'), Silent, nullptr, 0);
        for (Item* item : tail) {
            QVERIFY(store.cache->itemData(item) == data);
        }
    }
}

// What does not fit on the disk is not lost, and harms no other item.
void TestStreamCache::fullDisk()
{
    Store store(StreamCache::DiskStore);
    QVector<Item*> items;
    for (int i = 0; i < 4; ++i) {
        items << store.cache->addItem(QByteArray(1000, char('a' + i)), Silent, nullptr, 0);
    }
    rlimit old;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full = {4500, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    store.cache->setItemData(items[1], QByteArray(2000, 'B'), Silent, nullptr, 0);
    items << store.cache->addItem(QByteArray(900, 'e'), Silent, nullptr, 0);
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);

    const auto verify = [&](const QVector<QByteArray>& expected) {
        for (int i = 0; i < items.size(); ++i) {
            QCOMPARE(store.cache->itemData(items[i]), expected[i]);
        }
    };
    QVector<QByteArray> expected = {QByteArray(1000, 'a'), QByteArray(2000, 'B'),
                                    QByteArray(1000, 'c'), QByteArray(1000, 'd'),
                                    QByteArray(900, 'e')};
    verify(expected);
    for (const int i : {1, 4, 0, 1, 2}) {
        expected[i] = QByteArray(expected[i].size() + 300, char('A' + i));
        store.cache->setItemData(items[i], expected[i], Silent, nullptr, 0);
        verify(expected);
    }
}

void TestStreamCache::noTemporaryFile()
{
    const QByteArray place = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");  // where nobody can make a file
    DiskCache cache;
    qputenv("TMPDIR", place);
    QVERIFY(!cache.isOpen());
    Item* items[] = {cache.addItem({}, Silent, nullptr, 0),
                     cache.addItem("some", Silent, nullptr, 0),
                     cache.addItem("more", Plain, nullptr, 0)};
    for (const int size : {9, 2, 0, 7}) {
        for (Item* item : items) {
            cache.setItemData(item, QByteArray(size, 'x'), Silent, nullptr, 0);
            QCOMPARE(cache.itemData(item), QByteArray());
            QCOMPARE(cache.find(QByteArray(size, 'x'), nullptr), nullptr);
        }
    }
    cache.clear();
}

void TestStreamCache::defaultStore_data()
{
    columns<QVariant, StreamCache::Type>("setting", "type");
    QTest::newRow("none") << QVariant() << StreamCache::MemoryStore;
    QTest::newRow("0") << QVariant(0) << StreamCache::MemoryStore;
    QTest::newRow("1") << QVariant(QStringLiteral("1")) << StreamCache::MemoryStore;
    QTest::newRow("2") << QVariant(2) << StreamCache::DiskStore;
    QTest::newRow("3") << QVariant(QStringLiteral("3")) << StreamCache::DiskStore;
}

void TestStreamCache::defaultStore()
{
    const auto [setting, type] = fetched<QVariant, StreamCache::Type>();
    TestInterface host;
    host.options["cache_type"] = setting;
    const std::unique_ptr<StreamCache> cache(StreamCache::instance(StreamCache::DefaultCache));
    QCOMPARE(cache->type(), type);
    QCOMPARE(StreamCache::instance(static_cast<StreamCache::Type>(9)), nullptr);
}

void TestStreamCache::sharedRecords()
{
    MemoryCache cache;
    int disposed = 0;
    Record record(&cache, &disposed);
    QVERIFY(!record.isEqualToData("data", crcOf("data")));
    record.fromData("data", Plain, nullptr, 0);
    record.fromData("other", Plain, nullptr, 0);
    ++record.refCount;
    QCOMPARE(record.release(), 1);
    QCOMPARE(disposed, 0);
    QVERIFY(record.isEqualToData("other", crcOf("other")));
    QCOMPARE(record.release(), 0);
    QCOMPARE(disposed, 1);
    QCOMPARE(record.fileName(), QString());
    record.reset();
    QCOMPARE(cache.find("other", nullptr), nullptr);
    QCOMPARE(record.toData(false), QByteArray());
}

void TestStreamCache::borrowedBytes()
{
    Store store(StreamCache::MemoryStore);
    char bytes[] = "data";
    Item* item = store.cache->addItem(QByteArray::fromRawData(bytes, 4), Silent, nullptr, 0);
    bytes[0] = 'x';
    QCOMPARE(store.cache->itemData(item), QByteArray("data"));
}

void TestStreamCache::itemsThatStandTwice()
{
    NotingStore store;
    Item* a = store.addItem("a", Plain, nullptr, 0);
    for (const char* name : {"b", "c", "d"}) {
        store.addItem(name, Plain, nullptr, 0);
    }
    Item* const b = store.items().at(1);
    store.appendItem(a);
    store.appendItem(b);
    store.removeItem(b);
    QCOMPARE(store.deleted, QByteArray("b"));
    QCOMPARE(store.items().size(), 4);
    store.removeItem(nullptr);
    store.clear();
    QCOMPARE(store.deleted, QByteArray("badc"));
}

QTEST_GUILESS_MAIN(TestStreamCache)
#include "tst_streamcache.moc"
