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

/// Shows the picture of a canvas in several palettes at once: the costumes of a character, side by
/// side.
///
/// The picture is flattened once and drawn with each colour table. Only changed parts of the canvas
/// are flattened again, and nothing is computed while the widget is hidden. Pictures are as large
/// as the widget allows, scaled by a whole number of screen pixels. A true-colour canvas has no
/// palette to exchange; the widget shows a text instead.
///
/// A click on a picture chooses it; so does Return on the one reached with the arrow keys.
///
/// Main thread only.
class ZORV_EXPORT PalettePreviews : public QWidget
{
    Q_OBJECT

public:
    /// A palette with the name shown below its picture.
    struct Preview
    {
        QString name;
        QVector<QRgb> colors;  ///< 256 entries; missing ones are transparent
    };

    static constexpr int MaxCount = 12;

    explicit PalettePreviews(QWidget* parent = nullptr);
    ~PalettePreviews() override;

    /// The canvas to show, or null. Not owned and never changed; it may be deleted at any time.
    void setCanvas(const ImageCanvas* canvas);

    /// The palettes to show; entries after `MaxCount` are ignored. Call it again when one of them
    /// changes: this is cheap, because the picture is not flattened again.
    void setPreviews(const QVector<Preview>& previews);

    /// Simulates how a viewer with this colour sight sees the pictures.
    void setColorSight(const ColorSight& sight);

    /// The framed preview; -1 for none, as initially and when there are fewer previews.
    int currentIndex() const;
    void setCurrentIndex(int index);

    /// The preview at a point, or -1.
    int indexAt(const QPoint& place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// Flattens the canvas again. Needed when half transparent colours of its palette change: the
    /// flattened indices depend on them, and a palette does not signal changes.
    void refresh();

signals:
    /// The user chose this palette. It is already the current one.
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
