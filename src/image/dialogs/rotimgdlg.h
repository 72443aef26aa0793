#pragma once

#include "media/tools/imageresizefilter.h"
#include "zorv_export.h"

#include <QDialog>
#include <QImage>

class ImagePreview;
class QComboBox;
class QDoubleSpinBox;

/// Asks for a rotation angle and a filter. A preview shows the result.
class ZORV_EXPORT RotImgDlg : public QDialog
{
    Q_OBJECT

public:
    /// `fill` is the pixel for the empty corners, see `Zorv::rotateImage()`.
    RotImgDlg(QWidget* parent, const QImage& picture, unsigned fill);
    ~RotImgDlg() override;

    /// In degrees clockwise.
    float angle() const;
    Zorv::ImageResizeFilter filter() const;

private:
    void build();
    void update();

    QImage m_source;
    unsigned m_fill;
    QDoubleSpinBox* m_angle;
    QComboBox* m_filter;
    ImagePreview* m_preview;
};
