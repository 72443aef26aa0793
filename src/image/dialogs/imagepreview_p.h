#pragma once

#include <QImage>
#include <QWidget>

class QDialog;
class QFormLayout;

/// Shows a picture in the middle, enlarged by the largest whole factor that fits. A picture that is
/// too large is scaled down.
class ImagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit ImagePreview(QWidget* parent = nullptr);

    void setPicture(const QImage& picture);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
};

/// A picture small enough to compute a preview at each change of a field. `scale` receives its size
/// relative to the original.
QImage previewSource(const QImage& picture, double* scale);

/// Fills a dialog: the form with the preview beside it, and below them the dialog buttons.
void layOutBeside(ImagePreview* preview, QFormLayout* form, QDialog* dialog);
