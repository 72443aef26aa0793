#include "core/interface.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageselection.h"
#include "image/spriteeditor_p.h"

#include <algorithm>

namespace Zorv {

namespace {

/// The status bar field for positions in the picture.
constexpr int PlaceField = 3;

QString colorText(QRgb color)
{
    const QString text = QColor(color).name();
    return qAlpha(color) == 255
               ? text
               : SpriteEditor::tr("%1, alpha %2").arg(text, QString::number(qAlpha(color)));
}

}  // namespace

void SpriteEditorPrivate::crop()
{
    endPreview();
    canvas()->crop();
}

void SpriteEditorPrivate::imgFlipH()
{
    canvas()->flip(true, false);
}

void SpriteEditorPrivate::imgFlipV()
{
    canvas()->flip(false, true);
}

void SpriteEditorPrivate::imgViewOrig(bool isOn)
{
    renderer->setVisibility(isOn, true);
}

void SpriteEditorPrivate::selectIn(const QImage& mask)
{
    if (hasCanvas()) {
        canvas()->setSelection(mask);
    }
}

void SpriteEditorPrivate::selAll()
{
    ImageSelection all;
    all.setSize(canvas()->size());
    selectIn(all.mask());
}

/// Selects everything, because with nothing selected nothing could be painted.
void SpriteEditorPrivate::selNone()
{
    selAll();
}

void SpriteEditorPrivate::selInv()
{
    QImage mask = canvas()->selection()->mask().copy();
    for (int y = 0; y < mask.height(); ++y) {
        uchar* line = mask.scanLine(y);
        std::transform(line, line + mask.width(), line,
                       [](uchar pixel) { return uchar(pixel == 0); });
    }
    selectIn(mask);
}

/// "12, 34: color 5, #c0a080"
void SpriteEditorPrivate::showPlace(const QPoint& pixel, int index, QRgb color)
{
    QString text =
        QStringLiteral("%1, %2").arg(QString::number(pixel.x()), QString::number(pixel.y()));
    if (QRect(QPoint(), canvas()->size()).contains(pixel)) {
        text +=
            QLatin1String(": ") +
            (index < 0
                 ? colorText(color)
                 : SpriteEditor::tr("color %1, %2").arg(QString::number(index), colorText(color)));
    }
    host->showStatus(PlaceField, text);
}

void SpriteEditorPrivate::hidePlace()
{
    host->showStatus(PlaceField, {});
}

}  // namespace Zorv
