#include "operations/media/animationgif.h"

#include "assets/spritecollection.h"
#include "code/codedoc/animationcode.h"
#include "media/tools/resizeimage.h"
#include "media/tools/rotateimage.h"
#include "media/tools/savegif.h"
#include "nodes/framenode.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Family {

namespace {

// Of one picture, and of the canvas around all of them.
const double MaxPixels = 1 << 26;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::AnimationGif)
};

/// A picture and the place of its axis on it, which need not be a whole pixel.
struct Posed
{
    QImage image;
    QPointF axis;
};

void flip(Posed* posed, bool horizontal, bool vertical)
{
    posed->image = posed->image.mirrored(horizontal, vertical);
    if (horizontal) {
        posed->axis.setX(posed->image.width() - posed->axis.x());
    }
    if (vertical) {
        posed->axis.setY(posed->image.height() - posed->axis.y());
    }
}

/// False if the result would be too large.
bool scale(Posed* posed, double x, double y)
{
    const QSizeF wanted(posed->image.width() * std::abs(x), posed->image.height() * std::abs(y));
    if (wanted.width() * wanted.height() > MaxPixels) {
        return false;
    }
    flip(posed, x < 0, y < 0);
    const QSize size = wanted.toSize().expandedTo({1, 1});
    posed->axis.rx() *= double(size.width()) / posed->image.width();
    posed->axis.ry() *= double(size.height()) / posed->image.height();
    posed->image = Zorv::resizeImage(posed->image, size, Zorv::ImageResizeFilter::Nearest);
    return !posed->image.isNull();
}

/// What stands in the corners of a turned image: nothing, as far as it has that.
uint nothingOf(const QImage& image)
{
    const QVector<QRgb> table = image.colorTable();
    const auto clear =
        std::find_if(table.begin(), table.end(), [](QRgb color) { return qAlpha(color) == 0; });
    return clear == table.end() ? 0 : uint(clear - table.begin());
}

bool turn(Posed* posed, double degrees)
{
    const QPointF center(posed->image.width() / 2.0, posed->image.height() / 2.0);
    const QPointF fromCenter = posed->axis - center;
    const double angle = qDegreesToRadians(-degrees);
    posed->image = Zorv::rotateImage(posed->image, float(-degrees), nothingOf(posed->image),
                                     Zorv::ImageResizeFilter::Nearest);
    const QPointF turned(fromCenter.x() * std::cos(angle) - fromCenter.y() * std::sin(angle),
                         fromCenter.x() * std::sin(angle) + fromCenter.y() * std::cos(angle));
    posed->axis = QPointF(posed->image.width() / 2.0, posed->image.height() / 2.0) + turned;
    return !posed->image.isNull();
}

bool pose(Posed* posed, const FrameData& frame)
{
    if (frame.scaleX == 0 || frame.scaleY == 0 ||
        ((frame.scaleX != 1 || frame.scaleY != 1) && !scale(posed, frame.scaleX, frame.scaleY))) {
        return false;
    }
    flip(posed, frame.flip & Zorv::FrameCode::FlipHorizontally,
         frame.flip & Zorv::FrameCode::FlipVertically);
    return frame.angle == 0 || turn(posed, frame.angle);
}

/// A picture of the GIF. False, with `error`, if it cannot be made.
bool frameOf(const FrameData& data, const SpriteCollection& sprites, const PaletteColors* colors,
             Zorv::GIFFrame* frame, QString* error)
{
    const AssetId id{quint16(data.group), quint16(data.number)};
    const FamilySprite* sprite = sprites.byId(id);
    Posed posed{sprite ? sprite->image() : QImage(), sprite ? QPointF(sprite->axis()) : QPointF()};
    if (posed.image.isNull()) {
        *error = sprite ? Text::tr("Sprite %1 has no pixels, or they are broken.").arg(id.text())
                        : Text::tr("There is no sprite %1.").arg(id.text());
        return false;
    }
    if (colors && posed.image.format() == QImage::Format_Indexed8) {
        posed.image.setColorTable(tableOfColors(*colors));
    }
    if (!pose(&posed, data)) {
        *error =
            Text::tr("The frame with sprite %1 is scaled too large, or to nothing.").arg(id.text());
        return false;
    }
    frame->image = posed.image;
    frame->position = data.offset - posed.axis.toPoint();
    frame->ticks = qMax(data.delay, 1);
    return true;
}

/// What the GIF shows, one after another; a frame without any time is never seen. Empty, with
/// `error`, if one of them cannot be made.
QVector<Zorv::GIFFrame> framesOf(const Zorv::AnimationCode& animation,
                                 const SpriteCollection& sprites, const PaletteColors* colors,
                                 bool* stays, QString* error)
{
    QVector<Zorv::GIFFrame> frames;
    QRect canvas;
    const QList<Zorv::FrameCode*> lines = animation.frames();
    for (const Zorv::FrameCode* line : lines) {
        const FrameData& data = static_cast<const FrameNode*>(line)->data();
        if (data.delay == 0 || *stays) {
            continue;
        }
        Zorv::GIFFrame frame;
        if (!frameOf(data, sprites, colors, &frame, error)) {
            return {};
        }
        canvas |= QRect(frame.position, frame.image.size());
        frames.append(frame);
        *stays = data.delay < 0;
    }
    if (double(canvas.width()) * canvas.height() > MaxPixels) {
        *error = Text::tr("The frames are too far from each other for one picture.");
        return {};
    }
    return frames;
}

}  // namespace

QByteArray animationGif(const Zorv::AnimationCode& animation, const SpriteCollection& sprites,
                        const PaletteColors* colors, QString* error)
{
    bool stays = false;
    const QVector<Zorv::GIFFrame> frames = framesOf(animation, sprites, colors, &stays, error);
    Zorv::GIFOptions options;
    options.loops = stays ? -1 : 0;
    if (!error->isEmpty()) {
        return {};
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (frames.isEmpty()) {
        *error = Text::tr("The animation has no frame to show.");
    } else if (!Zorv::saveGIF(&buffer, frames, options)) {
        *error = Text::tr("The animation is larger than a GIF file can be, 65535 by 65535.");
    }
    return error->isEmpty() ? bytes : QByteArray();
}

QString spritesBeside(const QString& codeFile, QString* error)
{
    const QDir folder = QFileInfo(codeFile).dir();
    const QStringList names =
        folder.entryList({QStringLiteral("*.sprites")}, QDir::Files, QDir::Name);
    if (names.size() != 1) {
        *error = names.isEmpty()
                     ? Text::tr("There is no sprite file beside '%1'. Name one with '--sprites'.")
                           .arg(codeFile)
                     : Text::tr("There are several sprite files beside '%1': %2. Name one "
                                "with '--sprites'.")
                           .arg(codeFile, names.join(QLatin1String(", ")));
        return {};
    }
    return folder.filePath(names.first());
}

}  // namespace Family
