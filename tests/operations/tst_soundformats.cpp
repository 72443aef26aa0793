#include "operations/media/soundformats.h"

#include "operations/hostinterface.h"
#include "operations/media/soundwork.h"
#include "support/brokenbytes.h"
#include "support/testtable.h"

#include <zorv/core/extensionmanager.h>

#include <QBuffer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <sndfile.h>

using namespace Operations;
using Zorv::SoundSample;

namespace {

constexpr int Rate = 44100;

/// Two channels of a soft sine, as numbers of 32 bits.
QVector<int> waves(int frames)
{
    QVector<int> values;
    for (int i = 0; i < frames * 2; ++i) {
        values.append(int(std::sin(i / 2 * 0.05 + i % 2) * 0x40000000));
    }
    return values;
}

SoundSample decoded(QByteArray bytes, QString* error, qint64* missing = nullptr)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return decodeSound(&buffer, error, missing);
}

}  // namespace

class TestSoundFormats : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startHost(&m_host); }
    void reads_data();
    void reads();
    void refuses();
    void survivesBadBytes_data();
    void survivesBadBytes();
    void isAnExtension();

private:
    QString path(const QString& suffix) const { return m_folder.filePath("1-2." + suffix); }
    QByteArray written(const QString& suffix, int form, const QVector<int>& values) const;

    HostInterface m_host;
    QTemporaryDir m_folder;
};

QByteArray TestSoundFormats::written(const QString& suffix, int form,
                                     const QVector<int>& values) const
{
    SF_INFO info{};
    info.channels = 2;
    info.samplerate = (form & SF_FORMAT_SUBMASK) == SF_FORMAT_OPUS ? 48000 : Rate;
    info.format = form;
    SNDFILE* file = sf_open(path(suffix).toLocal8Bit().constData(), SFM_WRITE, &info);
    sf_command(file, SFC_SET_SCALE_INT_FLOAT_WRITE, nullptr, SF_TRUE);
    sf_writef_int(file, values.constData(), values.size() / 2);
    sf_close(file);
    QFile result(path(suffix));
    return result.open(QIODevice::ReadOnly) ? result.readAll() : QByteArray();
}

void TestSoundFormats::reads_data()
{
    columns<QString, int, int, int>("suffix", "form", "bits", "error");
    const auto with = [](int container, int form) { return container | form; };
    // The greatest error, in the bits that come out: none for plain numbers.
    row("wav of 8", "wav", with(SF_FORMAT_WAVEX, SF_FORMAT_PCM_U8), 8, 0);
    row("wav of 16", "wav", with(SF_FORMAT_WAVEX, SF_FORMAT_PCM_16), 16, 0);
    row("wav of 24", "wav", with(SF_FORMAT_WAVEX, SF_FORMAT_PCM_24), 24, 0);
    row("wav of 32", "wav", with(SF_FORMAT_WAVEX, SF_FORMAT_PCM_32), 32, 0);
    row("floats", "wav", with(SF_FORMAT_WAVEX, SF_FORMAT_FLOAT), 16, 1);
    row("doubles, not extensible", "wav", with(SF_FORMAT_WAV, SF_FORMAT_DOUBLE), 16, 1);
    row("mu-law", "wav", with(SF_FORMAT_WAV, SF_FORMAT_ULAW), 16, 1024);
    row("flac of 8", "flac", with(SF_FORMAT_FLAC, SF_FORMAT_PCM_S8), 8, 0);
    row("flac of 16", "flac", with(SF_FORMAT_FLAC, SF_FORMAT_PCM_16), 16, 0);
    row("flac of 24", "flac", with(SF_FORMAT_FLAC, SF_FORMAT_PCM_24), 24, 0);
    row("vorbis", "ogg", with(SF_FORMAT_OGG, SF_FORMAT_VORBIS), 16, 2000);
    row("opus", "opus", with(SF_FORMAT_OGG, SF_FORMAT_OPUS), 16, 3000);
}

void TestSoundFormats::reads()
{
    const auto [suffix, form, bits, most] = fetched<QString, int, int, int>();
    const QVector<int> values = waves(9000);
    QVERIFY(!written(suffix, form, values).isEmpty());
    SoundSample sample;
    const Outcome outcome = readSound(path(suffix), SoundExtent::AsTold, &sample);
    QCOMPARE(outcome.error + outcome.warning, QString());
    QCOMPARE(int(sample.channels), 2);
    QCOMPARE(int(sample.bits), bits);
    QCOMPARE(sample.data.size(), sample.frames * 2 * bits / 8);
    QVERIFY(suffix == "opus" || (sample.frames == 9000 && sample.sampleRate == Rate));
    const int bytes = bits / 8;
    for (int i = 0; i < 8000 * 2; ++i) {
        quint32 value = 0;
        for (int byte = 0; byte < bytes; ++byte) {
            value = value >> 8 | quint32(uchar(sample.data[i * bytes + byte])) << 24;
        }
        const qint64 found = int(bits == 8 ? value ^ 0x80000000U : value) >> (32 - bits);
        const qint64 wanted = values[i] >> (32 - bits);
        QVERIFY2(std::abs(found - wanted) <= most, qPrintable(QString::number(i)));
    }
}

void TestSoundFormats::refuses()
{
    const QByteArray flac = written("flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, waves(20000));
    QString error;
    qint64 missing = 0;
    const SoundSample half = decoded(flac.left(flac.size() / 2), &error, &missing);
    QVERIFY(half.frames > 0 && missing > 0 && half.frames + missing == 20000);
    // The count of frames is 36 bits in the first block: a sound of days.
    QByteArray endless = flac;
    endless[21] = char(endless[21] | 0x0F);
    QVERIFY(decoded(endless, &error).data.isEmpty());
    QVERIFY(error.contains("gigabyte"));
    QFile file(path("flac"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(flac.left(30)) == 30);
    file.close();
    for (const char* name : {"flac", "mp3", "ogg"}) {
        SoundSample sample;
        QFile::remove(path("ogg"));
        QFile::copy(path("flac"), path(name));
        const QString text = readSound(path(name), SoundExtent::AsTold, &sample).error;
        QVERIFY(text.contains(path(name)) && sample.data.isEmpty());
    }
    // Plain samples are the library's, whose sizes may be wrong.
    QVERIFY(decoded(written("wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, waves(10)), &error)
                .data.isEmpty());
    written("wav", SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM, waves(9000));
    SoundSample sample;
    QVERIFY(readSound(path("wav"), SoundExtent::AsTold, &sample).error.contains("ADPCM"));
}

void TestSoundFormats::survivesBadBytes_data()
{
    columns<int>("form");
    row("wav", int(SF_FORMAT_WAVEX | SF_FORMAT_FLOAT));
    row("flac", int(SF_FORMAT_FLAC | SF_FORMAT_PCM_16));
    row("ogg", int(SF_FORMAT_OGG | SF_FORMAT_VORBIS));
}

void TestSoundFormats::survivesBadBytes()
{
    const auto form = std::get<0>(fetched<int>());
    const QByteArray whole = written("x", form, waves(60));
    const auto check = [](const QByteArray& bytes) {
        QString error;
        const SoundSample sample = decoded(bytes, &error);
        QCOMPARE(sample.data.isEmpty(), !error.isEmpty());
        QCOMPARE(sample.data.size(), sample.frames * sample.channels * sample.bits / 8);
    };
    if (whole.size() < 1000) {
        forEachBrokenForm(whole, check);
        return;
    }
    QRandomGenerator random(5);
    for (int i = 0; i < 500; ++i) {
        QByteArray broken =
            whole.left(whole.size() - int(random.bounded(2) * random.bounded(whole.size())));
        for (int hits = 0; hits < 3 && !broken.isEmpty(); ++hits) {
            broken[int(random.bounded(broken.size()))] = char(random.generate());
        }
        check(broken);
    }
}

void TestSoundFormats::isAnExtension()
{
    startHost(&m_host);  // again, as the command line does
    QByteArrayList names;
    for (const Zorv::Extension* each :
         qAsConst(Zorv::ExtensionManager::list(Zorv::Extension::SoundLoader))) {
        names += each->name();
    }
    QCOMPARE(names, (QByteArrayList{"FLAC", "OGG", "OGA", "OPUS", "WAV"}));
}

QTEST_MAIN(TestSoundFormats)
#include "tst_soundformats.moc"
