#include "media/wav.h"

#include "media/soundfile.h"
#include "media/wavecontents.h"
#include "support/brokenbytes.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <cmath>

using Zorv::SampleInfo;
using Zorv::SoundSample;

namespace {

template <class Integer>
QByteArray little(Integer value)
{
    QByteArray bytes(sizeof value, 0);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray format(int tag, int channels, int bits, quint32 byteRate = 44100)
{
    return "fmt " + little(quint32(16)) + little(quint16(tag)) + little(quint16(channels)) +
           little(quint32(22050)) + little(byteRate) + little(quint16(channels * bits / 8)) +
           little(quint16(bits));
}

QByteArray chunk(const char* id, const QByteArray& bytes)
{
    return id + little(quint32(bytes.size())) + bytes;
}

QByteArray riff(const QByteArray& chunks)
{
    return "RIFF" + little(quint32(chunks.size() + 4)) + "WAVE" + chunks;
}

SoundSample read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    return Zorv::soundFromWAV(&buffer);
}

SampleInfo info(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    return Zorv::soundInfoFromWAV(&buffer);
}

SoundSample wholeSound(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return Zorv::wholeSoundFromWAV(&buffer);
}

Zorv::WaveContents contents(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return Zorv::waveContents(&buffer);
}

QByteArray written(const SoundSample& sample)
{
    QBuffer buffer;
    return Zorv::soundToWAV(sample, &buffer) ? buffer.data() : QByteArray("failed");
}

QByteArray text(const SampleInfo& sample)
{
    return QByteArray::number(sample.channels) + " x " + QByteArray::number(sample.bits) + ", " +
           QByteArray::number(sample.sampleRate) + " Hz, " + QByteArray::number(sample.frames);
}

/// In a folder; words are parted by blanks.
void runSox(const QTemporaryDir& folder, const QString& words)
{
    QProcess sox;
    sox.setWorkingDirectory(folder.path());
    sox.start(QStringLiteral("sox"), words.split(QLatin1Char(' ')));
    const bool hasRun = sox.waitForFinished() && sox.exitCode() == 0;
    QVERIFY2(hasRun, ("sox has to be installed: " + sox.readAllStandardError()).constData());
}

}  // namespace

class TestWAV : public QObject
{
    Q_OBJECT

private slots:
    void filesOfSox_data();
    void filesOfSox();
    void byHand_data();
    void byHand();
    void hugeSizes();
    void longSoundsAreSearchedInPieces();
    void failingDevices();
    void gateways();
    void brokenBytes();
    void wholeWhateverTheSizes();
};

void TestWAV::filesOfSox_data()
{
    columns<int, int>("bits", "channels");
    for (const int bits : {8, 16, 24, 32}) {
        for (const int channels : {1, 2}) {
            QTest::addRow("%d bits, %d channels", bits, channels) << bits << channels;
        }
    }
}

/// The samples are those that sox writes without a header, and sox reads what is written here.
void TestWAV::filesOfSox()
{
    QFETCH(const int, bits);
    QFETCH(const int, channels);
    const QTemporaryDir folder;
    // The plain form of a WAV file, which sox leaves otherwise for samples of more than 16 bits.
    runSox(folder,
           QStringLiteral("-D -R -r 22050 -n -b %1 -c %2 -t wavpcm a.wav synth 1001s sine 440")
               .arg(bits)
               .arg(channels));
    const QString raw = QStringLiteral("-D %3 -t raw -e %1-integer -b %2 %3.raw")
                            .arg(bits == 8 ? QStringLiteral("unsigned") : QStringLiteral("signed"))
                            .arg(bits);
    runSox(folder, raw.arg(QStringLiteral("a.wav")));
    const QByteArray samples = readFile(folder.filePath(QStringLiteral("a.wav.raw")));

    const QByteArray bytes = readFile(folder.filePath(QStringLiteral("a.wav")));
    const SoundSample sample = read(bytes);
    const QByteArray expected =
        QByteArray::number(channels) + " x " + QByteArray::number(bits) + ", 22050 Hz, 1001";
    QCOMPARE(text(sample), expected);
    QCOMPARE(text(info(bytes)), expected);
    QCOMPARE(sample.data, samples);

    QFile file(folder.filePath(QStringLiteral("b.wav")));
    QVERIFY(Zorv::soundToWAV(sample, &file));
    QVERIFY(!file.isOpen());
    runSox(folder, raw.arg(QStringLiteral("b.wav")));
    QCOMPARE(readFile(folder.filePath(QStringLiteral("b.wav.raw"))), samples);
}

void TestWAV::byHand_data()
{
    columns<QByteArray, QByteArray, QByteArray, QByteArray>("bytes", "sound", "data",
                                                            "information");
    const QByteArray pcm = format(1, 2, 16);
    const QByteArray eight = "12345678";
    const QByteArray plain = "2 x 16, 22050 Hz, 2";
    const QByteArray none = "0 x 0, 0 Hz, 0";
    const auto row = [](const char* name, const QByteArray& bytes, const QByteArray& sound,
                        const QByteArray& data, const QByteArray& information) {
        QTest::newRow(name) << bytes << sound << data << information;
    };
    row("plain", riff(pcm + chunk("data", eight)), plain, eight, plain);
    row("chunks between",
        riff(pcm + chunk("LIST", "INFOICMT\1\0\0\0x") + chunk("fact", "12") + chunk("data", eight)),
        plain, eight, plain);
    row("chunks behind", riff(pcm + chunk("data", eight) + chunk("LIST", "more")), plain, eight,
        plain);
    row("a longer form chunk",
        riff(QByteArray(pcm).replace(4, 1, QByteArray(1, 18)) + "\0\0" + chunk("data", eight)),
        plain, eight, plain);
    row("float", riff(format(3, 2, 16) + chunk("data", eight)), none, {}, none);
    row("no byte rate", riff(format(1, 2, 16, 0) + chunk("data", eight)), "2 x 16, 22050 Hz, 0",
        eight, "2 x 16, 22050 Hz, 0");
    row("no bits", riff(format(1, 2, 0) + chunk("data", eight)), "2 x 0, 22050 Hz, 0", eight,
        "2 x 0, 22050 Hz, 0");
    row("\"data\" in another chunk",
        riff(pcm + chunk("LIST", QByteArray("data\4\0\0\0wrong", 13)) + chunk("data", eight)),
        "2 x 16, 22050 Hz, 1", "wron", "2 x 16, 22050 Hz, 1");
    row("without \"data\"", riff(pcm + chunk("LIST", eight)), plain, eight, "2 x 16, 22050 Hz, 0");
    row("the information asks for no names", "????....????????" + pcm.mid(4) + chunk("data", eight),
        none, {}, plain);
    row("more than the RIFF size", riff(pcm) + chunk("data", eight), "2 x 16, 22050 Hz, 0", {},
        plain);
    row("nothing", {}, none, {}, none);
}

void TestWAV::byHand()
{
    QFETCH(const QByteArray, bytes);
    const SoundSample sample = read(bytes);
    QTEST(text(sample), "sound");
    QTEST(sample.data, "data");
    QTEST(text(info(bytes)), "information");
}

/// Sizes of four billion are cut to the bytes that are there.
void TestWAV::hugeSizes()
{
    QByteArray bytes = riff(format(1, 1, 8) + "data" + little(~0U) + "1234567");
    bytes.replace(4, 4, little(~0U));
    const SoundSample sample = read(bytes);
    QCOMPARE(sample.data, QByteArray("1234567"));
    QCOMPARE(sample.frames, 7);
    QCOMPARE(info(bytes).frames, std::numeric_limits<int>::max());
    QVERIFY(sample.data.capacity() < 100);
}

void TestWAV::longSoundsAreSearchedInPieces()
{
    for (int length = 65536 - 50; length < 65536 + 10; ++length) {
        const QByteArray bytes =
            riff(format(1, 1, 8) + chunk("LIST", QByteArray(length, 'd')) + chunk("data", "123"));
        QCOMPARE(info(bytes).frames, 3);
    }
}

void TestWAV::failingDevices()
{
    QCOMPARE(written({}).size(), 44);
    SoundSample sample;
    sample.data = QByteArray(1 << 20, 'x');
    QFile full(QStringLiteral("/dev/full"));
    QVERIFY(!Zorv::soundToWAV(sample, &full));
    QFile missing(QStringLiteral("/nowhere/at/all.wav"));
    QVERIFY(!Zorv::soundToWAV(sample, &missing));
    QVERIFY(Zorv::soundFromWAV(&missing).data.isEmpty());
    QByteArray bytes = written(sample);
    QBuffer writeOnly(&bytes);
    writeOnly.open(QIODevice::WriteOnly | QIODevice::Append);
    QVERIFY(Zorv::soundFromWAV(&writeOnly).data.isEmpty());
    QCOMPARE(Zorv::soundInfoFromWAV(&writeOnly).frames, 0);
    QBuffer readOnly(&bytes);
    readOnly.open(QIODevice::ReadOnly);
    QVERIFY(!Zorv::soundToWAV(sample, &readOnly));
}

void TestWAV::gateways()
{
    SoundSample sample;
    sample.data = "data";
    QBuffer buffer;
    QVERIFY(!Zorv::saveSound(&buffer, "WAV", sample));
    buffer.open(QIODevice::ReadWrite);
    QVERIFY(Zorv::saveSound(&buffer, "WAV", sample));
    QVERIFY(!Zorv::saveSound(&buffer, "OGG", sample));

    SoundSample loaded;
    buffer.seek(0);
    QVERIFY(!Zorv::loadSound(&buffer, "wav", loaded));
    QVERIFY(Zorv::loadSound(&buffer, "WAV", loaded));
    QCOMPARE(loaded.data, sample.data);

    // What counts is whether there are samples afterwards.
    QVERIFY(Zorv::loadSound(&buffer, "wav", loaded));
    buffer.close();
    QVERIFY(!Zorv::loadSound(&buffer, "WAV", loaded));
}

void TestWAV::brokenBytes()
{
    const QByteArray whole =
        riff(format(1, 2, 16) + chunk("LIST", "some") + chunk("data", "12345678"));
    forEachBrokenForm(whole, [&whole](const QByteArray& broken) {
        const SoundSample sample = read(broken);
        QVERIFY(sample.data.size() <= whole.size());
        const qint64 frameSize = qint64(sample.bits) * sample.channels / 8;
        QVERIFY(sample.frames * frameSize <= sample.data.size());
        info(broken);
        const SoundSample all = wholeSound(broken);
        QVERIFY(all.data.isEmpty() || all.frames == contents(broken).info.frames);
        QVERIFY(all.frames * frameSize <= whole.size());
        // What is read is written and read as the same.
        const SoundSample again = read(written(sample));
        QCOMPARE(again.data, sample.data);
    });
}

/// All samples are found where programs that record without an end left the sizes.
void TestWAV::wholeWhateverTheSizes()
{
    const QByteArray samples(800, 'x');
    const QByteArray bytes =
        riff(format(1, 2, 16) + chunk("LIST", "data") + chunk("data", samples));
    const int at = bytes.size() - samples.size() - 4;
    for (const quint32 riffSize : {quint32(bytes.size() - 8), 36U, 0U, 0x7FFFF024U, ~0U}) {
        for (const quint32 dataSize : {800U, 0U, 0x7FFFF000U, ~0U}) {
            QByteArray wrong = bytes;
            wrong.replace(4, 4, little(riffSize)).replace(at, 4, little(dataSize));
            // An empty sound with other bytes behind it is a good file.
            const bool isEmpty = dataSize == 0 && int(riffSize) == bytes.size() - 8;
            QCOMPARE(wholeSound(wrong).data, isEmpty ? QByteArray() : samples);
            QCOMPARE(contents(wrong).info.frames, isEmpty ? 0 : 200);
            QCOMPARE(contents(wrong).missing, 0);
            QCOMPARE(contents(wrong).reached, isEmpty ? 0 : read(wrong).frames);
        }
    }
    QCOMPARE(contents(bytes.left(bytes.size() - 400)).missing, 100);
    QCOMPARE(contents(riff(format(65534, 2, 16) + chunk("data", samples))).formatTag, 65534);
}

QTEST_GUILESS_MAIN(TestWAV)

#include "tst_wav.moc"
