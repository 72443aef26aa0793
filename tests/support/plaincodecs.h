#pragma once

#include "media/lz5.h"

#include <QByteArray>
#include <QVector>

class QImage;
class QIODevice;

/// The pixel codecs as plain loops, a byte and a step at a time: what the library's
/// are checked and measured against.
namespace Plain {

/// Bytes in memory; zeros behind the last one.
struct Bytes
{
    explicit Bytes(const QByteArray& bytes)
        : at(reinterpret_cast<const uchar*>(bytes.constData())), end(at + bytes.size())
    {
    }
    bool atEnd() const { return at == end; }
    int next()
    {
        if (at == end) {
            ranOut = true;
            return 0;
        }
        return *at++;
    }

    const uchar* at;
    const uchar* end;
    bool ranOut = false;
};

/// How many zeros have to stand in front of the pixels that `readLz5()` fills.
constexpr int Lz5Front = 1024;

/// Read until the pixels are full or the bytes end. They give how many pixels there were.
int readLz5(Bytes& in, uchar* pixels, int total);
int readRle5(Bytes& in, uchar* pixels, int total);
int readRle8(Bytes& in, uchar* pixels, int total);

/// `pixels` has a zero behind the last one.
Zorv::QPack lzFind(const uchar* pixels, int position, int total);
QByteArray writeLz5(const QByteArray& pixels, bool useLz);
QByteArray writeRle8(const QByteArray& pixels);

/// PCX by a stream a byte at a time; only formats that it has are given to be saved.
bool loadPcx(QImage& image, QIODevice* device);
bool savePcx(const QImage& image, QIODevice* device);

}  // namespace Plain
