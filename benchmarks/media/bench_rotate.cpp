// Turning pictures against QImage::transformed.

#include "media/tools/rotateimage.h"
#include "picture.h"
#include "support/bench.h"

#include <QTransform>

#include <cmath>

using namespace Zorv;

namespace {

const int Rounds = 41;

void against(const QImage& image, const char* form, double angle, ImageResizeFilter filter)
{
    const bool smooth = filter == ImageResizeFilter::Bilinear;
    const auto mode = smooth ? Qt::SmoothTransformation : Qt::FastTransformation;
    const double ratio = Bench::pairedRatio(
        Rounds, [&] { rotateImage(image, float(angle), 0, filter); },
        [&] { image.transformed(QTransform().rotate(angle), mode); });
    const QByteArray name = QByteArray(form) + " 500 x 400 by " + QByteArray::number(angle) +
                            (smooth ? ", smooth" : ", nearest") + ", to QImage::transformed";
    // Quarter turns are QImage's own.
    Bench::ratio(name.constData(), ratio, 1, std::fmod(angle, 90) == 0 ? 1.1 : 1);
}

}  // namespace

int main()
{
    const QImage image = drawnPicture({500, 400});
    const QImage clear = image.convertToFormat(QImage::Format_ARGB32);
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    for (const double angle : {30.0, 90.0, 101.5, 180.0}) {
        for (const auto filter : {ImageResizeFilter::Nearest, ImageResizeFilter::Bilinear}) {
            against(image, "indexed", angle, filter);
            against(clear, "with alpha", angle, filter);
            against(opaque, "opaque", angle, filter);
        }
    }
    return 0;
}
