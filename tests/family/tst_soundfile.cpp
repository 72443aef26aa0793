#include "family/assets/soundfile.h"
#include "support/brokenbytes.h"
#include "support/folders.h"
#include "support/memoryarchive.h"
#include "support/testinterface.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <zorv/cache/crc64.h>
#include <zorv/core/filesystemarchive.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <future>

using namespace Family;
using Zorv::SoundSample;

namespace {

const int HeadSize = 32;
const int RecordSize = 64;

Zorv::Archive& disk()
{
    return *Zorv::FileSystemArchive::instance();
}

/// Contents of a few kinds, that pack well or not at all.
QByteArray randomData(QRandomGenerator& random)
{
    QByteArray data(random.bounded(4) ? random.bounded(60) * 4 : 70000, 'x');
    if (random.bounded(2)) {
        const quint32 seed = random.bounded(3U);
        QRandomGenerator noise(seed);
        std::generate(data.begin(), data.end(), [&noise] { return char(noise.bounded(256)); });
    }
    return data;
}

/// A sound as it was put in.
struct Plain
{
    QString id;
    int channels;
    int bits;
    QByteArray data;

    bool operator==(const Plain& other) const
    {
        return id == other.id && channels == other.channels && bits == other.bits &&
               data == other.data;
    }
};

QVector<Plain> plainOf(const SoundFile& file)
{
    QVector<Plain> result;
    for (unsigned i = 0; i < file.count(); ++i) {
        const FamilySound* sound = file.sound(int(i));
        const Zorv::SampleInfo info = sound->sampleInfo();
        const QByteArray data = sound->sampleData();
        result.append({file.index(int(i)).data().toString(), info.channels, info.bits, data});
    }
    return result;
}

void put(QByteArray& file, int at, quint64 value, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        file[at + i] = char(value >> (8 * i));
    }
}

/// Sets the checksum at the end of a piece of the file.
void seal(QByteArray& file, int start, int size)
{
    const auto* bytes = reinterpret_cast<const uchar*>(file.constData()) + start;
    put(file, start + size - 8, Zorv::crc64(bytes, unsigned(size - 8)), 8);
}

}  // namespace

class TestSoundFile : public QObject
{
    Q_OBJECT

private slots:
    void randomOperations();
    void equalSamplesAreStoredOnce();
    void otherThreadsPackAndUnpack();
    void savedInAStep();
    void brokenForms();
    void brokenRecords_data();
    void brokenRecords();
    void noSoundFile_data();
    void noSoundFile();
    void everyKindOfCache_data();
    void everyKindOfCache();
    void identity();
    void formsThatAreRefused();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QByteArray smallFile();

    QTemporaryDir m_folder;
};

// Every operation against a plain list, every step undone and done again, every state saved and
// opened.
void TestSoundFile::randomOperations()
{
    QRandomGenerator random(1835);
    SoundFile file;
    const QAbstractItemModelTester tester(&file,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    QVector<Plain> plain;
    QVector<QVector<Plain>> states{plain};
    for (int step = 0; step < 120; ++step) {
        const int row = random.bounded(plain.size() + 1);
        const bool isRow = row < plain.size();
        const QByteArray data = randomData(random);
        const quint16 channels = quint16(1 + random.bounded(2));
        const QString id = QString("%1,%2").arg(random.bounded(3)).arg(random.bounded(65536));
        const QSignalSpy changes(&file, &SoundFile::modified);
        switch (isRow ? random.bounded(7) : 0) {
        case 0:
        case 1:
            QVERIFY(file.add(row, id, soundOf(data, channels)));
            plain.insert(row, {id, channels, 16, data});
            break;
        case 2:
            file.remove(unsigned(row));
            plain.remove(row);
            break;
        case 3: {
            const int to = random.bounded(plain.size());
            file.move(unsigned(row), unsigned(to));
            plain.move(row, to);
            break;
        }
        case 4:
            file.sound(row)->setSample(soundOf(data, channels, 8), data);
            plain[row] = {plain[row].id, channels, 8, data};
            break;
        case 5:
            file.sound(row)->setProperty("Identifier", id);
            plain[row].id = id;
            break;
        case 6:
            file.beginChange("both");
            file.sound(row)->duplicate();
            plain.insert(row + 1, plain[row]);
            plain[row + 1].id = file.sound(row + 1)->id().text();
            file.autoOrganize();
            std::stable_sort(plain.begin(), plain.end(), [](const Plain& a, const Plain& b) {
                AssetId left;
                AssetId right;
                return AssetId::read(a.id, &left) && AssetId::read(b.id, &right) && left < right;
            });
            file.endChange();
            break;
        }
        QCOMPARE(plainOf(file), plain);
        if (plain != states.last()) {
            QCOMPARE(changes.count(), 1);
            states.append(plain);
        } else if (changes.count() > 0) {
            states.append(plain);
        }
        if (step % 10 == 0) {
            SoundFile other;
            QVERIFY(file.toFile(disk(), path("a.sounds"), true));
            QVERIFY2(other.fromFile(disk(), path("a.sounds"), false),
                     qPrintable(other.errorString()));
            QCOMPARE(plainOf(other), plain);
            QCOMPARE(other.loadErrors(), QStringList());
            QVERIFY(other.toFile(disk(), path("b.sounds"), true));
            QCOMPARE(readFile(path("b.sounds")), readFile(path("a.sounds")));
        }
    }
    for (int i = states.size() - 2; i >= 0; --i) {
        file.undo();
        QCOMPARE(plainOf(file), states[i]);
    }
    QVERIFY(!file.isModified());
    for (int i = 1; i < states.size(); ++i) {
        file.redo();
        QCOMPARE(plainOf(file), states[i]);
    }
}

void TestSoundFile::equalSamplesAreStoredOnce()
{
    SoundFile file;
    QRandomGenerator noise(7);
    QByteArray data(40000, '\0');
    std::generate(data.begin(), data.end(), [&noise] { return char(noise.bounded(256)); });
    file.add(0, "0,0", soundOf(data));
    QVERIFY(file.toFile(disk(), path("one.sounds"), false));
    file.add(1, "0,1", soundOf(data, 2));
    file.sound(0)->duplicate();
    QVERIFY(file.toFile(disk(), path("three.sounds"), false));
    QCOMPARE(readFile(path("three.sounds")).size(),
             readFile(path("one.sounds")).size() + 2 * RecordSize);
}

QByteArray TestSoundFile::smallFile()
{
    SoundFile file;
    file.add(0, "1,2", soundOf(QByteArray(200, 'a')));
    file.add(1, "3,4", soundOf("noise!", 1, 8));
    file.add(2, "5,6", soundOf("noise!", 2, 8));
    file.add(3, "7,8", soundOf({}));
    file.toFile(disk(), path("small.sounds"), false);
    return readFile(path("small.sounds"));
}

// Whatever became of a byte: the sounds that are whole play what they did, the others are told, and
// saving loses no byte and changes nothing.
/// The bytes of a file do not depend on who has packed them, nor on when.
void TestSoundFile::otherThreadsPackAndUnpack()
{
    QRandomGenerator random(4);
    SoundFile plain;
    auto ahead = std::make_unique<SoundFile>();
    QVector<std::function<QByteArray()>> readers;
    QVector<QByteArray> contents;
    const auto packer = ahead->packer();
    for (int i = 0; i < 60; ++i) {
        const QByteArray data = randomData(random);
        const auto packed = std::async(std::launch::async, packer, data).get();
        const QByteArray copy(data.constData(), data.size());
        if (i % 3 == 2) {
            ahead->sound(i / 3)->setSample(soundOf(data), i % 2 ? data : copy);
            plain.sound(i / 3)->setSample(soundOf(data), data);
        } else {
            ahead->add(i, {}, soundOf(i % 2 ? data : copy));
            plain.add(i, {}, soundOf(data));
        }
        const FamilySound* sound = ahead->sound(i % int(ahead->count()));
        readers.append(sound->sampleReader());
        contents.append(sound->sampleData());
    }
    MemoryArchive files[] = {MemoryArchive({}), MemoryArchive({})};
    QVERIFY(ahead->toFile(files[0], "a", false) && plain.toFile(files[1], "a", false));
    QCOMPARE(files[0].bytes(), files[1].bytes());
    ahead.reset();
    QVERIFY(packer("after the list has gone"));
    for (int i = 0; i < readers.size(); ++i) {
        QCOMPARE(std::async(std::launch::async, readers[i]).get(), contents[i]);
    }
}

// The person saves while a batch goes on: undo does not lead to what is on the disk.
void TestSoundFile::savedInAStep()
{
    SoundFile file;
    file.add(0, {}, soundOf("one"));
    file.add(1, {}, soundOf("two"));
    QVERIFY(file.toFile(disk(), path("step.sounds"), false));
    file.beginChange("batch");
    file.sound(0)->setSample(soundOf("half"), "half");
    QVERIFY(file.toFile(disk(), path("step.sounds"), false));
    file.sound(1)->setSample(soundOf("whole"), "whole");
    file.endChange();
    QVERIFY(file.isModified());
    file.undo();
    QVERIFY(file.isModified());
    QVERIFY(file.toFile(disk(), path("step.sounds"), false) && !file.isModified());
}

void TestSoundFile::brokenForms()
{
    const QByteArray whole = smallFile();
    SoundFile sound;
    QVERIFY(sound.fromFile(disk(), path("small.sounds"), false));
    const QVector<Plain> plain = plainOf(sound);
    int opened = 0;
    forEachBrokenForm(whole, [&](const QByteArray& form) {
        MemoryArchive archive(form);
        SoundFile file;
        if (!file.fromFile(archive, "form.sounds", false)) {
            QVERIFY(file.errorString().contains("form.sounds"));
            return;
        }
        ++opened;
        QCOMPARE(file.brokenCount() == 0, form == whole);
        const QVector<Plain> now = plainOf(file);
        QCOMPARE(now.size(), plain.size());
        for (int i = 0; i < now.size(); ++i) {
            QVERIFY(file.sound(i)->fault().isEmpty() ? now[i] == plain[i] : now[i].data.isEmpty());
        }
        QVERIFY(file.toFile(archive, "form.sounds", false));
        QCOMPARE(archive.bytes().size(), form.size());
        SoundFile again;
        QVERIFY(again.fromFile(archive, "form.sounds", false));
        QCOMPARE(again.loadErrors(), file.loadErrors());
        QCOMPARE(plainOf(again), now);
    });
    QVERIFY(opened > 4 * RecordSize * 4);
}

void TestSoundFile::brokenRecords_data()
{
    columns<int, quint64, int, QString>("at", "value", "bytes", "fault");
    QTest::newRow("no channels") << 4 << quint64(0) << 2 << "form";
    QTest::newRow("no bits") << 6 << quint64(0) << 2 << "form";
    QTest::newRow("odd bits") << 6 << quint64(12) << 2 << "form";
    QTest::newRow("no rate") << 8 << quint64(0) << 4 << "form";
    QTest::newRow("4 GiB") << 12 << quint64(0x7fffffff) << 4 << "form";
    QTest::newRow("negative frames") << 12 << quint64(0xffffffff) << 4 << "form";
    QTest::newRow("outside") << 16 << quint64(1) << 8 << "outside";
    QTest::newRow("far outside") << 16 << ~quint64(0) << 8 << "outside";
    QTest::newRow("overlap") << 16 << quint64(HeadSize + 4 * RecordSize + 1) << 8 << "overlap";
    QTest::newRow("too long") << 24 << quint64(0xffffffff) << 4 << "outside";
    QTest::newRow("no bytes") << 24 << quint64(0) << 4 << "missing";
    QTest::newRow("unknown packing") << 28 << quint64(2) << 1 << "form";
    QTest::newRow("other bytes") << 40 << quint64(5) << 8 << "damaged";
}

// Values that no damage makes, but a program that writes such files could.
void TestSoundFile::brokenRecords()
{
    const auto [at, value, bytes, fault] = fetched<int, quint64, int, QString>();
    QByteArray form = smallFile();
    put(form, HeadSize + RecordSize + at, value, bytes);
    // What deflated bytes could hold, plain ones are refused for at once.
    if (at == 12 || at == 24) {
        put(form, HeadSize + RecordSize + 28, 1, 1);
        put(form, HeadSize + RecordSize + 4, 8, 2);
    }
    seal(form, HeadSize + RecordSize, RecordSize);
    writeFile(path("form.sounds"), form);
    SoundFile file;
    QVERIFY(file.fromFile(disk(), path("form.sounds"), false));
    QVERIFY2(file.sound(1)->fault().contains(fault), qPrintable(file.sound(1)->fault()));
    QCOMPARE(file.loadErrors().size(), 1);
    QVERIFY(file.loadErrors().first().startsWith("Sound 2 (3,4): "));
    QVERIFY(file.toFile(disk(), path("saved.sounds"), false));
    QCOMPARE(readFile(path("saved.sounds")).mid(HeadSize + RecordSize, 16),
             form.mid(HeadSize + RecordSize, 16));

    file.removeBroken();
    QCOMPARE(file.loadErrors(), QStringList());
    QCOMPARE(file.count(), 3U);
    file.undo();
    QCOMPARE(file.brokenCount(), 1);
    file.sound(1)->setSample(soundOf("whole again!"), "whole again!");
    QCOMPARE(file.brokenCount(), 0);
    QCOMPARE(file.sound(1)->sampleData(), QByteArray("whole again!"));
}

void TestSoundFile::noSoundFile_data()
{
    columns<QByteArray, QString>("data", "reason");
    QByteArray newer = smallFile();
    put(newer, 8, 2, 2);
    seal(newer, 0, HeadSize);
    QTest::newRow("empty") << QByteArray() << "not a sound file";
    QTest::newRow("text") << QByteArray("zorv 1\n[info]\n") << "not a sound file";
    QTest::newRow("cut head") << smallFile().left(20) << "damaged";
    QTest::newRow("cut table") << smallFile().left(100) << "end is missing";
    QTest::newRow("newer") << newer << "newer version";
}

void TestSoundFile::noSoundFile()
{
    const auto [data, reason] = fetched<QByteArray, QString>();
    writeFile(path("none.sounds"), data);
    SoundFile file;
    file.add(0, {}, soundOf("old sound."));
    const QVector<Plain> old = plainOf(file);
    QVERIFY(!file.fromFile(disk(), path("none.sounds"), false));
    QVERIFY2(file.errorString().contains(reason) && file.errorString().contains("none.sounds"),
             qPrintable(file.errorString()));
    QCOMPARE(plainOf(file), old);
    QVERIFY(file.steps().canUndo());
}

void TestSoundFile::everyKindOfCache_data()
{
    columns<int, bool>("type", "hasPlace");
    QTest::newRow("memory") << 1 << true;
    QTest::newRow("temporary file") << 2 << true;
    QTest::newRow("no place for a temporary file") << 2 << false;
}

void TestSoundFile::everyKindOfCache()
{
    const auto [type, hasPlace] = fetched<int, bool>();
    TestInterface host;
    host.options["cache_type"] = type;
    const QByteArray place = qgetenv("TMPDIR");
    if (!hasPlace) {
        writeFile(path("no folder"), "x");
        qputenv("TMPDIR", path("no folder").toLocal8Bit());
    }
    SoundFile file;
    qputenv("TMPDIR", place);
    QCOMPARE(int(file.cache()->type()), hasPlace ? type : 1);
    file.add(0, "0,0", soundOf("some samples"));
    file.add(1, "0,1", soundOf(QByteArray(1000, 'x')));
    file.sound(0)->setSample(soundOf("others"), "others");
    QCOMPARE(file.sound(0)->sampleData(), QByteArray("others"));
    QCOMPARE(file.sound(1)->sampleData(), QByteArray(1000, 'x'));
}

void TestSoundFile::identity()
{
    smallFile();
    SoundFile file;
    QVERIFY(file.fromFile(disk(), path("small.sounds"), false));
    QVERIFY(!file.isModified());
    file.remove(0);
    QVERIFY(file.isModified());
    QVERIFY(file.toFile(disk(), path("copy.sounds"), true));
    QVERIFY(file.isModified());
    QCOMPARE(file.fileName(), path("small.sounds"));
    QVERIFY(file.toFile(disk(), path("copy.sounds"), false));
    QVERIFY(!file.isModified());
    QCOMPARE(file.fileName(), path("copy.sounds"));
    file.undo();
    QVERIFY(file.isModified());
    file.redo();
    QVERIFY(!file.isModified());
    QVERIFY(file.fromFile(disk(), path("small.sounds"), true));
    QVERIFY(file.isModified());
    QCOMPARE(file.fileName(), path("copy.sounds"));

    QDir().mkdir(path("folder.sounds"));
    QVERIFY(!file.toFile(disk(), path("folder.sounds"), false));
    QVERIFY(file.errorString().contains("folder.sounds"));
    QCOMPARE(file.fileName(), path("copy.sounds"));
    file.reset();
    QVERIFY(file.isEmpty() && !file.isModified() && file.fileName().isEmpty());
}

void TestSoundFile::formsThatAreRefused()
{
    SoundFile file;
    const auto isTaken = [&file](quint16 channels, quint16 bits, qint32 rate) {
        SoundSample form;
        form.channels = channels;
        form.bits = bits;
        form.sampleRate = rate;
        form.data = QByteArray(97, 'x');
        return file.add(0, {}, form) != nullptr;
    };
    QVERIFY(!isTaken(0, 16, 22050) && !isTaken(9, 16, 22050));
    QVERIFY(!isTaken(1, 0, 22050) && !isTaken(1, 12, 22050) && !isTaken(1, 40, 22050));
    QVERIFY(!isTaken(1, 16, 0) && !isTaken(1, 16, 400000) && !isTaken(1, 16, -1));
    QVERIFY(file.isEmpty() && !file.isModified());
    QVERIFY(isTaken(8, 32, 384000));
    QCOMPARE(file.sound(0)->sampleInfo().frames, 3);
    QCOMPARE(file.sound(0)->sampleData().size(), 96);
    QVERIFY(isTaken(1, 8, 1));
    QCOMPARE(file.sound(0)->id().text(), QString("0,1"));
}

QTEST_GUILESS_MAIN(TestSoundFile)
#include "tst_soundfile.moc"
