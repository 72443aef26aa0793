#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/rounding_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace Zorv {

namespace {

using CrossImages = std::array<QPixmap, 3>;

struct ResolutionPicture
{
    int below;  // screens narrower than this use the file
    const char* file;
    QPoint position;
};

const ResolutionPicture s_resolutionPictures[] = {
    {640, ":/zorvl_icons/icons/240p.png", {-212, -206}},
    {1280, ":/zorvl_icons/icons/480p.png", {-424, -414}},
    {1920, ":/zorvl_icons/icons/720p.png", {-638, -622}},
    {std::numeric_limits<int>::max(), ":/zorvl_icons/icons/1080p.png", {-958, -935}},
};

const char* const s_crossFiles[2][3] = {
    {":/zorvl_icons/icons/sff.png", ":/zorvl_icons/icons/air.png", ":/zorvl_icons/icons/extra.png"},
    {":/zorvl_icons/icons/cruz.png", ":/zorvl_icons/icons/cruz2.png",
     ":/zorvl_icons/icons/cruz3.png"},
};

QBrush verticalGradient(const Background& background, int height)
{
    QLinearGradient gradient(0, 0, 0, height);
    gradient.setColorAt(0, background.start);
    gradient.setColorAt(1, background.end);
    return gradient;
}

QPixmap crossFile(int type, size_t place)
{
    return QPixmap(QString::fromLatin1(s_crossFiles[type][place]));
}

/// Pictures shared by all stages. They must be destroyed before the application is.
struct SharedPictures
{
    SharedPictures()
    {
        background.start = QColor(0x2e, 0x33, 0x3b);
        background.end = QColor(0x4a, 0x52, 0x5e);
        background.gradient = verticalGradient(background, 256);
        for (size_t place = 0; place < crosses.size(); ++place) {
            crosses[place] = crossFile(GraphicsRenderer::SmallCrosses, place);
        }
    }

    Background background;
    CrossImages crosses;
};

SharedPictures& sharedPictures()
{
    static std::unique_ptr<SharedPictures> pictures;
    if (!pictures) {
        pictures = std::make_unique<SharedPictures>();
        qAddPostRoutine([] { pictures.reset(); });
    }
    return *pictures;
}

}  // namespace

Background& GraphicsRendererPrivate::background()
{
    return sharedPictures().background;
}

QPixmap& GraphicsRendererPrivate::crossImage(Cross::Type type)
{
    return sharedPictures().crosses[static_cast<size_t>(type)];
}

void GraphicsRenderer::setBackground(QColor start, QColor end, BackgroundType type, QPoint position,
                                     const QString& file, QSize resolution)
{
    Background& background = GraphicsRendererPrivate::background();
    background.start = start;
    background.end = end;
    background.gradient = verticalGradient(background, 256);
    background.position = position;
    background.image = QPixmap();
    if (type == FileBackground) {
        background.image.load(file);
    } else if (type == ResolutionBackground) {
        const auto picture = std::find_if(
            std::begin(s_resolutionPictures), std::end(s_resolutionPictures) - 1,
            [resolution](const ResolutionPicture& row) { return resolution.width() < row.below; });
        background.image.load(QString::fromLatin1(picture->file));
        background.position = picture->position;
    }
    update();
}

void GraphicsRenderer::setGroundFitted(bool isOn)
{
    d->groundFitted = isOn;
    update();
}

void GraphicsRenderer::setCrossHair(CrossHairType type, const QString& main,
                                    const QString& secondary, const QString& extra)
{
    if (type < SmallCrosses || type > FileCrosses) {
        return;
    }
    const QString files[] = {main, secondary, extra};
    CrossImages& images = sharedPictures().crosses;
    for (size_t place = 0; place < images.size(); ++place) {
        if (type == FileCrosses && QFile::exists(files[place])) {
            images[place] = QPixmap(files[place]);
        } else {
            images[place] = crossFile(type == LargeCrosses ? LargeCrosses : SmallCrosses, place);
        }
    }
    update();
}

void GraphicsRenderer::sizeChanged(int width, int height)
{
    d->widgetSize = QSize(width, height);
    d->widgetCentre = QPoint(width / 2, height / 2);
    Background& background = GraphicsRendererPrivate::background();
    background.gradient = verticalGradient(background, height);
}

void GraphicsRendererPrivate::renderBackground(QPainter& painter)
{
    const Background& ground = background();
    painter.fillRect(QRect(QPoint(), widgetSize),
                     groundFitted ? verticalGradient(ground, widgetSize.height())
                                  : ground.gradient);
    if (!ground.image.isNull()) {
        const QPoint place = stageSum(m_origin, scaled(ground.position));
        const QSize size(scaled(ground.image.width()), scaled(ground.image.height()));
        painter.drawPixmap(QRect(place, size), ground.image, ground.image.rect());
    }
}

}  // namespace Zorv
