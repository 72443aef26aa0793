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

/// Asks for another size of an image: the picture is scaled, by a filter, or keeps its pixels and
/// gets or loses room around it, from an anchor on. A preview shows what comes of it.
class ZORV_EXPORT ImgResizeDlg : public QDialog
{
    Q_OBJECT

public:
    enum Mode {
        ScalePicture,  ///< all pixels are scaled
        ChangeCanvas   ///< pixels stay, and there is more or less room around them
    };

    ImgResizeDlg(QWidget* parent, const QImage& picture);
    ~ImgResizeDlg() override;

    Mode mode() const;

    /// 1 to 32767 each way.
    QSize chosenSize() const;

    /// Of `ScalePicture`.
    Zorv::ImageResizeFilter filter() const;

    /// Where the corner of the old picture comes to stand, of `ChangeCanvas`.
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
