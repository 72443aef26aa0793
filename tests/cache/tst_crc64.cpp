#include "cache/crc64.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Zorv;

namespace {

// The checksum by its definition, a bit a step.
unsigned long long slowCrc(const QByteArray& data)
{
    unsigned long long result = ~0ULL;
    for (const char byte : data) {
        result ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            result = (result >> 1) ^ ((result & 1) ? 0x95AC9329AC4BC9B5ULL : 0);
        }
    }
    return result;
}

unsigned long long fastCrc(const QByteArray& data)
{
    return crc64(reinterpret_cast<const unsigned char*>(data.constData()), unsigned(data.size()));
}

}  // namespace

class TestCrc64 : public QObject
{
    Q_OBJECT

private slots:
    void knownValues()
    {
        QCOMPARE(crc64(nullptr, 0), 0xFFFFFFFFFFFFFFFFULL);
        QCOMPARE(fastCrc("123456789"), 0xCAA717168609F281ULL);
    }

    // Each length around the step of the fast form, from each alignment.
    void sameAsBitByBit()
    {
        QRandomGenerator random(64);
        QByteArray bytes(200, Qt::Uninitialized);
        for (char& byte : bytes) {
            byte = char(random.bounded(256));
        }
        for (int start = 0; start < 17; ++start) {
            for (int length = 0; start + length <= bytes.size(); ++length) {
                const auto part = QByteArray::fromRawData(bytes.constData() + start, length);
                QCOMPARE(fastCrc(part), slowCrc(part));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestCrc64)
#include "tst_crc64.moc"
