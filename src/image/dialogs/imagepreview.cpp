#include "image/dialogs/imagepreview_p.h"

#include "core/dialogs/dialogbuttons_p.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Side = 260;
constexpr int SourceSide = 512;
constexpr int SquareSide = 8;
constexpr double MostZoom = 8;

}  // namespace

ImagePreview::ImagePreview(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(Side / 2, Side / 2);
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(tr("Preview"));
}

void ImagePreview::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

QSize ImagePreview::sizeHint() const
{
    return {Side, Side};
}

void ImagePreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int y = 0; y < height(); y += SquareSide) {
        for (int x = 0; x < width(); x += SquareSide) {
            const bool isLight = (x / SquareSide + y / SquareSide) % 2 == 0;
            painter.fillRect(x, y, SquareSide, SquareSide, isLight ? Qt::white : Qt::lightGray);
        }
    }
    if (m_picture.isNull()) {
        return;
    }
    const double fit =
        std::min(double(width()) / m_picture.width(), double(height()) / m_picture.height());
    const double zoom = fit < 1 ? fit : std::min(std::floor(fit), MostZoom);
    const QSizeF size = QSizeF(m_picture.size()) * zoom;
    const QPointF corner(std::round((width() - size.width()) / 2),
                         std::round((height() - size.height()) / 2));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom < 1);
    painter.drawImage(QRectF(corner, size), m_picture);
    painter.setPen(Qt::gray);
    painter.drawRect(QRectF(corner, size).adjusted(-1, -1, 0, 0));
}

QImage previewSource(const QImage& picture, double* scale)
{
    const int side = std::max(picture.width(), picture.height());
    *scale = side > SourceSide ? double(SourceSide) / side : 1.0;
    return *scale < 1.0 ? picture.scaled(SourceSide, SourceSide, Qt::KeepAspectRatio) : picture;
}

void layOutBeside(ImagePreview* preview, QFormLayout* form, QDialog* dialog)
{
    auto* columns = new QHBoxLayout;
    columns->addLayout(form);
    columns->addWidget(preview, 1);
    auto* layout = new QVBoxLayout(dialog);
    layout->addLayout(columns);
    layout->addWidget(Zorv::makeOkCancel(dialog));
}
