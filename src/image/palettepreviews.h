#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QRgb>
#include <QString>
#include <QVector>
#include <QWidget>

#include <memory>

namespace Zorv {

class ImageCanvas;
class PalettePreviewsPrivate;

/// The picture of a canvas in several palettes at once: the costumes of a character, side by side.
///
/// There is one flattened picture for all of them, and each is drawn with its own colour table. It
/// follows the canvas by the parts that change; while the widget is hidden nothing is worked out.
/// Pictures are as large as the widget has room for, by whole pixels of the screen. A canvas of
/// true colour has no palette to exchange, which the widget says.
///
/// A click on a picture, or Return on the one that the arrows have reached, chooses it.
///
/// Main thread only.
class ZORV_EXPORT PalettePreviews : public QWidget
{
    Q_OBJECT

public:
    /// A palette with the name that stands below its picture.
    struct Preview
    {
        QString name;
        QVector<QRgb> colors;  ///< 256 entries; those that are missing are transparent
    };

    static constexpr int MaxCount = 12;

    explicit PalettePreviews(QWidget* parent = nullptr);
    ~PalettePreviews() override;

    /// The canvas to show, or null. It is not owned, is never changed, and may go at any time.
    void setCanvas(const ImageCanvas* canvas);

    /// The palettes to show; those behind `MaxCount` are left out. Call it again when one of them
    /// changes: the picture is not flattened anew for it.
    void setPreviews(const QVector<Preview>& previews);

    /// Paints the pictures as somebody else sees them.
    void setColorSight(const ColorSight& sight);

    /// The one with the frame; -1 for none, as at first and where there are fewer.
    int currentIndex() const;
    void setCurrentIndex(int index);

    /// The preview at a place, -1 for none.
    int indexAt(const QPoint& place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// Flattens the canvas anew. Needed if its palette has other colours of which some are half
    /// transparent: layers mix by them, and a palette tells nobody that it changes.
    void refresh();

signals:
    /// The person wants this palette. It is the current one by then.
    void chosen(int index);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    std::unique_ptr<PalettePreviewsPrivate> d;
};

}  // namespace Zorv
