#include "operations/media/animationrender.h"

#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/stage/framecomposer.h"
#include "operations/media/assetnames.h"

#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/core/interface.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace Operations {

using Family::AnimationNode;
using Family::FrameComposer;
using Family::FrameData;
using Family::FrameNode;
using Family::FrameStyle;

namespace {

using Zorv::ContactBoxCode;

const int MaxSide = 32767;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AnimationRender)
};

const FrameNode& frameAt(const AnimationNode& animation, int index)
{
    return *static_cast<const FrameNode*>(animation.childAt(unsigned(index)));
}

/// The area of all frames. Missing sprites are ignored here and reported when their frame is drawn.
QRect areaOf(const AnimationNode& animation, const FrameComposer& composer)
{
    QString ignored;
    return composer.bounds(animation, &ignored);
}

QImage frameImage(const FrameNode& frame, const QRect& area, FrameComposer* composer,
                  QString* error)
{
    const QImage image = composer->composeIndexed(frame, area, error);
    return error->isEmpty() ? image : QImage();
}

QJsonArray boxesOf(const FrameNode& frame, ContactBoxCode::BoxType type)
{
    QJsonArray result;
    const Zorv::ContactBoxesCode* boxes = frame.contactBoxes(type);
    for (int i = 0; i < boxes->count(); ++i) {
        const QRect rect = boxes->at(i)->rect();
        result.append(QJsonObject{{QStringLiteral("left"), rect.left()},
                                  {QStringLiteral("top"), rect.top()},
                                  {QStringLiteral("right"), rect.right()},
                                  {QStringLiteral("bottom"), rect.bottom()}});
    }
    return result;
}

QJsonObject objectOf(const FrameNode& frame, const QRect& cell)
{
    const FrameData& data = frame.data();
    return {{QStringLiteral("x"), cell.x()},
            {QStringLiteral("y"), cell.y()},
            {QStringLiteral("width"), cell.width()},
            {QStringLiteral("height"), cell.height()},
            {QStringLiteral("group"), data.group},
            {QStringLiteral("number"), data.number},
            {QStringLiteral("delay"), data.delay},
            {QStringLiteral("loop"), data.loop},
            {QStringLiteral("attack"), boxesOf(frame, ContactBoxCode::Attack)},
            {QStringLiteral("body"), boxesOf(frame, ContactBoxCode::Collision)}};
}

QByteArray compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Writes one line per frame.
QByteArray withFrames(const QJsonObject& head, const QVector<QJsonObject>& frames)
{
    QByteArray text = compact(head);
    text.chop(1);
    text += ",\"frames\":[";
    for (int i = 0; i < frames.size(); ++i) {
        text += (i > 0 ? ",\n" : "\n") + compact(frames[i]);
    }
    return text + "\n]}\n";
}

/// Cells of equal size in rows.
class SheetGrid
{
public:
    SheetGrid(int count, int columns, QSize cell) : m_count(count), m_cell(cell)
    {
        const int square = int(std::ceil(std::sqrt(double(count))));
        m_columns = std::clamp(columns > 0 ? columns : square, 1, std::max(count, 1));
    }

    QRect cell(int index) const
    {
        return {QPoint(index % m_columns * m_cell.width(), index / m_columns * m_cell.height()),
                m_cell};
    }

    /// Empty if it exceeds the maximum size of a picture.
    QSize size() const
    {
        const qint64 width = qint64(m_columns) * m_cell.width();
        const qint64 height = qint64((m_count + m_columns - 1) / m_columns) * m_cell.height();
        const bool fits = width > 0 && height > 0 && width <= MaxSide && height <= MaxSide &&
                          width * height <= FrameComposer::MaxPixels;
        return fits ? QSize(int(width), int(height)) : QSize();
    }

private:
    int m_count;
    int m_columns;
    QSize m_cell;
};

bool haveOneTable(const QVector<QImage>& images)
{
    return std::all_of(images.begin(), images.end(), [&images](const QImage& image) {
        return image.format() == QImage::Format_Indexed8 &&
               image.colorTable() == images.first().colorTable();
    });
}

QImage assembled(const QVector<QImage>& images, const SheetGrid& grid)
{
    const bool isIndexed = haveOneTable(images);
    QImage sheet(grid.size(), isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
    if (sheet.isNull()) {
        return {};
    }
    uint ground = 0;
    if (isIndexed) {
        const QVector<QRgb> colors = images.first().colorTable();
        const auto clear = std::find_if(colors.begin(), colors.end(),
                                        [](QRgb color) { return qAlpha(color) == 0; });
        ground = clear == colors.end() ? 0 : uint(clear - colors.begin());
        sheet.setColorTable(colors);
    }
    sheet.fill(ground);
    for (int i = 0; i < images.size(); ++i) {
        const QImage image = images[i].convertToFormat(sheet.format());
        const QRect cell = grid.cell(i);
        const int depth = sheet.depth() / 8;
        for (int y = 0; y < cell.height(); ++y) {
            memcpy(sheet.scanLine(cell.y() + y) + qint64(cell.x()) * depth, image.constScanLine(y),
                   size_t(cell.width()) * size_t(depth));
        }
    }
    return sheet;
}

}  // namespace

FrameStyle stageStyle()
{
    const Zorv::Interface* const host = Zorv::Interface::instance();
    FrameStyle style;
    const QColor attack = host->colorOption(QStringLiteral("attackbox"));
    const QColor body = host->colorOption(QStringLiteral("collisionbox"));
    const QVariant opacity = host->option(QStringLiteral("box_opacity"));
    style.attack = attack.isValid() ? attack : style.attack;
    style.body = body.isValid() ? body : style.body;
    style.boxOpacity = opacity.isValid() ? opacity.toDouble() : style.boxOpacity;
    return style;
}

QImage renderFrame(const AnimationNode& animation, int frame, FrameComposer* composer,
                   QString* error)
{
    const int count = animation.childCount();
    if (frame < 0 || frame >= count) {
        *error = count == 0 ? Text::tr("The animation has no frame.")
                            : Text::tr("There is no frame %1. Expected a number from 0 to %2.")
                                  .arg(QString::number(frame), QString::number(count - 1));
        return {};
    }
    const QRect area = areaOf(animation, *composer);
    QImage image = frameImage(frameAt(animation, frame), area, composer, error);
    image.setText(
        QLatin1String(AxisText),
        QStringLiteral("%1,%2").arg(QString::number(-area.left()), QString::number(-area.top())));
    return image;
}

AnimationSheet renderSheet(const AnimationNode& animation, int columns, const QString& imageName,
                           FrameComposer* composer, QString* error)
{
    const int count = animation.childCount();
    const QRect area = areaOf(animation, *composer);
    const SheetGrid grid(count, columns, area.size());
    if (count == 0) {
        *error = Text::tr("The animation has no frame.");
    } else if (!area.isEmpty() && grid.size().isEmpty()) {
        *error = Text::tr("The sheet would be too large. Choose a smaller zoom.");
    }
    QVector<QImage> images;
    QVector<QJsonObject> frames;
    for (int i = 0; i < count && error->isEmpty(); ++i) {
        images.append(frameImage(frameAt(animation, i), area, composer, error));
        frames.append(objectOf(frameAt(animation, i), grid.cell(i)));
    }
    if (!error->isEmpty()) {
        return {};
    }
    AnimationSheet sheet{assembled(images, grid), {}};
    if (sheet.image.isNull()) {
        *error = Text::tr("The sheet is larger than the memory. Choose a smaller zoom.");
    }
    sheet.json = withFrames({{QStringLiteral("animation"), animation.identifier()},
                             {QStringLiteral("axisX"), -area.left()},
                             {QStringLiteral("axisY"), -area.top()},
                             {QStringLiteral("image"), imageName},
                             {QStringLiteral("name"), animation.name()},
                             {QStringLiteral("zoom"), double(composer->style().zoom)}},
                            frames);
    return sheet;
}

}  // namespace Operations
