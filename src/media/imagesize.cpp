#include "media/imagesize_p.h"

#include <QIODevice>
#include <QtEndian>

namespace Zorv {

namespace {

const qint64 FreeMemory = 64 << 20;

/// A picture as its header tells it.
struct Declared
{
    qint64 width = 0;
    qint64 height = 0;
    int bits = 0;        ///< a pixel in the file
    qint64 packing = 1;  ///< bytes of pixels that one byte of the file can stand for
};

bool isHonest(const Declared& picture, const QIODevice* device)
{
    // In floating point: width by height by bits of wild headers passes 64 bits.
    const double pixels = double(picture.width) * double(picture.height);
    const int bytesInMemory = picture.bits <= 8 ? 1 : picture.bits <= 32 ? 4 : 8;
    if (pixels * bytesInMemory <= FreeMemory) {
        return true;
    }
    const double stored = pixels * picture.bits / 8;
    return stored <= double(device->bytesAvailable()) * double(picture.packing);
}

// Deflate stores no more than 1032 bytes in one.
const int DeflateRatio = 1032;

/// libpng takes the memory that a chunk declares before it reads it, but for pixels; and up to 8 MB
/// for each packed text.
bool hasHonestChunks(QIODevice* device)
{
    const int Signature = 8;
    const int Head = 8;
    const int Checksum = 4;
    const qint64 LargestText = 8000000;

    const qint64 end = device->size();
    qint64 texts = 0;
    QByteArray head;
    for (qint64 at = device->pos() + Signature; device->seek(at);) {
        head = device->read(Head);
        if (head.size() < Head || head.endsWith("IEND")) {
            return true;
        }
        const qint64 length = qFromBigEndian<quint32>(head.constData());
        if (length > end - at - Head && !head.endsWith("IDAT")) {
            return false;
        }
        if (head.endsWith("zTXt") || head.endsWith("iTXt")) {
            texts += qMin(LargestText, length * DeflateRatio);
        }
        if (texts > FreeMemory) {
            return false;
        }
        at += Head + length + Checksum;
        if (at > end) {
            return true;
        }
    }
    return true;
}

}  // namespace

SizedDevice::SizedDevice(QIODevice* device) : m_device(device)
{
    if (device->isSequential()) {
        m_whole.setData(device->readAll());
        m_whole.open(QIODevice::ReadOnly);
        m_device = &m_whole;
    }
}

bool isHonestPNG(QIODevice* device)
{
    const int IhdrEnd = 26;
    static const int channels[] = {1, 0, 3, 1, 2, 0, 4};

    const QByteArray head = device->peek(IhdrEnd);
    if (head.size() < IhdrEnd || head.mid(12, 4) != "IHDR") {
        return true;
    }
    const uchar type = uchar(head[25]);
    Declared picture;
    picture.width = qFromBigEndian<quint32>(head.constData() + 16);
    picture.height = qFromBigEndian<quint32>(head.constData() + 20);
    picture.bits = uchar(head[24]) * (type < 7 ? channels[type] : 0);
    picture.packing = DeflateRatio;
    if (!isHonest(picture, device)) {
        return false;
    }
    const qint64 start = device->pos();
    const bool honest = hasHonestChunks(device);
    return device->seek(start) && honest;
}

bool isHonestBMP(QIODevice* device)
{
    const int FileHeader = 14;
    const quint32 CoreHeader = 12;
    // A run of 255 pixels takes two bytes.
    const int RunRatio = 128;

    const QByteArray head = device->peek(FileHeader + 20);
    if (head.size() < FileHeader + 12) {
        return true;
    }
    const char* const info = head.constData() + FileHeader;
    Declared picture;
    if (qFromLittleEndian<quint32>(info) == CoreHeader) {
        picture.width = qFromLittleEndian<quint16>(info + 4);
        picture.height = qFromLittleEndian<quint16>(info + 6);
        picture.bits = qFromLittleEndian<quint16>(info + 10);
        return isHonest(picture, device);
    }
    if (head.size() < FileHeader + 20) {
        return true;
    }
    picture.width = qAbs(qint64(qFromLittleEndian<qint32>(info + 4)));
    picture.height = qAbs(qint64(qFromLittleEndian<qint32>(info + 8)));
    picture.bits = qFromLittleEndian<quint16>(info + 14);
    const quint32 compression = qFromLittleEndian<quint32>(info + 16);
    picture.packing = compression == 1 || compression == 2 ? RunRatio : 1;
    return isHonest(picture, device);
}

}  // namespace Zorv
