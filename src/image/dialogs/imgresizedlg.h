#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QDialog>
#include <QImage>
#include <QPoint>

class ImagePreview;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QSpinBox;

/// Asks for a new image size. The picture is either scaled with a filter, or keeps its pixels and
/// gains or loses space around it, from an anchor. A preview shows the result.
class ZORV_EXPORT ImgResizeDlg : public QDialog
{
    Q_OBJECT

public:
    enum Mode {
        ScalePicture,  ///< all pixels are scaled
        ChangeCanvas   ///< pixels stay, and the space around them changes
    };

    ImgResizeDlg(QWidget* parent, const QImage& picture);
    ~ImgResizeDlg() override;

    Mode mode() const;

    /// From 1 to 32767 on each side.
    QSize chosenSize() const;

    /// For `ScalePicture`.
    Zorv::ImageResizeFilter filter() const;

    /// The new place of the old picture's top left corner, for `ChangeCanvas`.
    QPoint position() const;

private:
    void build();
    void connectAll();
    void sideChanged(bool isWidth);
    void setSides(int width, int height);
    void update();
    QPoint positionIn(const QSize& before, const QSize& after) const;

    QSize m_before;
    QImage m_source;
    double m_sourceScale = 1.0;
    QComboBox* m_mode;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QDoubleSpinBox* m_factor;
    QCheckBox* m_keepsRatio;
    QComboBox* m_filter;
    QButtonGroup* m_anchor;
    QWidget* m_anchors;
    ImagePreview* m_preview;
};
