#pragma once

#include <QImage>
#include <QWidget>

class QDialog;
class QFormLayout;

/// Shows a picture in the middle, as large as whole multiples of its pixels fit; what is too large
/// is made smaller.
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

/// A picture of which previews are made: one that is small enough for each change of a field.
/// `scale` takes by how much it is smaller.
QImage previewSource(const QImage& picture, double* scale);

/// Fills a dialog: the form with the preview beside it, and below them what ends the dialog.
void layOutBeside(ImagePreview* preview, QFormLayout* form, QDialog* dialog);
