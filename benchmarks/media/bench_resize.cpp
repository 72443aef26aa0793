// Resizing of pictures against QImage::scaled and the filters of ffmpeg.

#include "filtergraph.h"
#include "media/tools/resizeimage.h"
#include "picture.h"
#include "support/bench.h"

using namespace Zorv;

namespace {

const int Rounds = 41;

void nearest(const QImage& image, const QSize& size, const char* name)
{
    const double ratio = Bench::pairedRatio(
        Rounds, [&] { resizeImage(image, size, ImageResizeFilter::Nearest); },
        [&] { image.scaled(size); });
    Bench::ratio(name, ratio, 1, 0.2);
}

#ifdef ZORV_BENCH_AVFILTER
using Scale = QImage (*)(const QImage&, int);

void against(const char* filter, Scale scale, const QImage& picture, int factor, double limit)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    FilterGraph graph(image, filter, factor);
    if (!graph.isValid() || !graph.run()) {
        std::printf("ffmpeg has no filter %s\n", filter);
        return;
    }
    const double ratio = Bench::pairedRatio(
        Rounds, [&] { scale(picture, factor); }, [&graph] { graph.run(); });
    const QImage expected = graph.result();
    const QImage made = scale(picture, factor).convertToFormat(expected.format());
    const QByteArray name =
        QByteArray(picture.depth() == 8 ? "indexed " : "") + QByteArray::number(image.width()) +
        " x " + QByteArray::number(image.height()) + " by " + QByteArray::number(factor) +
        ", to ffmpeg's " + filter + (made == expected ? ", same pixels" : ", other pixels");
    Bench::ratio(name.constData(), ratio, 1, limit);
}

void againstFilters(const QImage& indexed)
{
    const QImage image = indexed.convertToFormat(QImage::Format_RGB32);
    for (const int side : {128, 256, 512}) {
        const QRect part(0, 0, side, side);
        against("epx", scaleEpx, indexed.copy(part), 2, 0.2);
        against("epx", scaleEpx, image.copy(part), 2, 0.2);
    }
    against("epx", scaleEpx, image, 3, 0);
    for (int factor = 2; factor <= 4; ++factor) {
        against("hqx", scaleHq, image.copy(0, 0, 128, 128), factor, 0.5);
        against("hqx", scaleHq, image, factor, 0.5);
    }
}
#else
void againstFilters(const QImage&)
{
    std::printf("libavfilter is not installed: no ratios to ffmpeg's epx and hqx\n");
}
#endif

}  // namespace

int main()
{
    const QImage image = drawnPicture({512, 512});
    nearest(image, {1024, 1024}, "indexed 512 x 512 to 1024 x 1024, to QImage::scaled");
    nearest(image, {700, 600}, "indexed 512 x 512 to 700 x 600, to QImage::scaled");
    nearest(image, {300, 400}, "indexed 512 x 512 to 300 x 400, to QImage::scaled");
    // The filters know no alpha.
    QImage opaque = image;
    opaque.setColor(0, qRgb(90, 120, 200));
    againstFilters(opaque);
    return 0;
}
