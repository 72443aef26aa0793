// Animated GIF: reading against giflib's DGifSlurp, writing against bare giflib, and the size of
// the files against ImageMagick's "convert -layers optimize".

#include "animations.h"
#include "media/tools/gifimage.h"
#include "support/bench.h"

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gif_lib.h>

using namespace Zorv;

namespace {

const int Rounds = 21;

// One call is too short for a clock on a busy machine.
const int Calls = 10;

struct Source
{
    const QByteArray* bytes;
    int position;
};

int readSource(GifFileType* file, GifByteType* to, int count)
{
    auto* const source = static_cast<Source*>(file->UserData);
    const int part = qMin(count, source->bytes->size() - source->position);
    std::copy_n(source->bytes->constData() + source->position, part, to);
    source->position += part;
    return part;
}

void slurp(const QByteArray& bytes)
{
    Source source{&bytes, 0};
    GifFileType* const file = DGifOpen(&source, readSource, nullptr);
    if (!file || DGifSlurp(file) == GIF_ERROR) {
        std::printf("giflib cannot read it\n");
    }
    DGifCloseFile(file, nullptr);
}

int appendBytes(GifFileType* file, const GifByteType* from, int count)
{
    static_cast<QByteArray*>(file->UserData)->append(reinterpret_cast<const char*>(from), count);
    return count;
}

ColorMapObject* mapOf(QVector<QRgb> colors)
{
    colors.resize(1 << GifBitSize(colors.size()));
    ColorMapObject* const map = GifMakeMapObject(colors.size(), nullptr);
    for (int i = 0; i < colors.size(); ++i) {
        map->Colors[i] = {GifByteType(qRed(colors[i])), GifByteType(qGreen(colors[i])),
                          GifByteType(qBlue(colors[i]))};
    }
    return map;
}

void writePlainFrame(GifFileType* file, const QImage& image, bool sharedTable)
{
    const bool transparent = qAlpha(image.color(0)) == 0;
    const GraphicsControlBlock control = {transparent ? DISPOSE_BACKGROUND : DISPOSE_DO_NOT, false,
                                          7, transparent ? 0 : -1};
    GifByteType extension[4];
    EGifGCBToExtension(&control, extension);
    EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, 4, extension);
    ColorMapObject* const map = sharedTable ? nullptr : mapOf(image.colorTable());
    EGifPutImageDesc(file, 0, 0, image.width(), image.height(), false, map);
    GifFreeMapObject(map);
    for (int y = 0; y < image.height(); ++y) {
        QByteArray line(reinterpret_cast<const char*>(image.constScanLine(y)), image.width());
        EGifPutLine(file, reinterpret_cast<GifPixelType*>(line.data()), line.size());
    }
}

/// Whole frames, one after the other, as a program writes them that gives no thought to it.
QByteArray writePlainly(const QVector<GIFFrame>& frames)
{
    QByteArray bytes;
    const QImage& first = frames.first().image;
    ColorMapObject* const map = mapOf(first.colorTable());
    GifFileType* const file = EGifOpen(&bytes, appendBytes, nullptr);
    EGifSetGifVersion(file, true);
    EGifPutScreenDesc(file, first.width(), first.height(), 8, 0, map);
    for (const GIFFrame& frame : frames) {
        writePlainFrame(file, frame.image, frame.image.colorTable() == first.colorTable());
    }
    EGifCloseFile(file, nullptr);
    GifFreeMapObject(map);
    return bytes;
}

QByteArray write(const QVector<GIFFrame>& frames)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    saveGIF(&buffer, frames);
    return bytes;
}

void read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    GIFImage gif;
    if (!gif.load(&buffer)) {
        std::printf("the library cannot read it\n");
    }
}

/// The size of what ImageMagick makes of a file; 0 if it is not there.
int optimizedSize(const QByteArray& plain)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("plain.gif")));
    if (!file.open(QIODevice::WriteOnly)) {
        return 0;
    }
    file.write(plain);
    file.close();
    const QString result = folder.filePath(QStringLiteral("optimized.gif"));
    QProcess::execute(QStringLiteral("convert"), {file.fileName(), QStringLiteral("-layers"),
                                                  QStringLiteral("optimize"), result});
    return int(QFileInfo(result).size());
}

/// The median of the ratios of rounds that are taken by turns, so that a busy machine counts for
/// both.
template <class Own, class Peer>
double fairRatio(Own own, Peer peer)
{
    const auto several = [](auto& call) {
        for (int i = 0; i < Calls; ++i) {
            call();
        }
    };
    return Bench::medianOf(Rounds, [&] {
        return Bench::once([&] { several(own); }) / Bench::once([&] { several(peer); });
    });
}

}  // namespace

int main()
{
    double worstSize = 0;
    for (const Animations::Animation& animation : Animations::all()) {
        const QByteArray plain = writePlainly(animation.frames);
        const QByteArray own = write(animation.frames);
        const int peer = optimizedSize(plain);
        std::printf("-- %s: %d bytes, plainly %d, ImageMagick %d\n", animation.name, own.size(),
                    plain.size(), peer);
        Bench::ratio("reading whole frames to DGifSlurp",
                     fairRatio([&] { read(plain); }, [&] { slurp(plain); }), 1, 1.1);
        Bench::ratio("reading changes to DGifSlurp",
                     fairRatio([&] { read(own); }, [&] { slurp(own); }), 1, 1.1);
        Bench::ratio(
            "writing to bare giflib writing whole frames",
            fairRatio([&] { write(animation.frames); }, [&] { writePlainly(animation.frames); }), 1,
            1.2);
        if (peer > 0) {
            const double ratio = double(own.size()) / peer;
            Bench::ratio("size to convert -layers optimize", ratio, 1);
            worstSize = qMax(worstSize, ratio);
        }
    }
    if (worstSize > 0) {
        Bench::ratio("the largest of these sizes", worstSize, 1, 1.05);
    } else {
        std::printf("ImageMagick is not installed: no ratio to convert -layers optimize\n");
    }
    return 0;
}
