#include "image/dialogs/imgresizedlg.h"

#include "image/canvas/imagecanvas.h"
#include "image/dialogs/imagepreview_p.h"
#include "image/dialogs/resizefilters_p.h"
#include "media/tools/resizeimage.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QSignalBlocker>
#include <QToolButton>

#include <cmath>

using Zorv::ImageCanvas;

namespace {

constexpr int AnchorSides = 3;
constexpr double MostFactor = 100.0;
constexpr double LeastFactor = 0.01;

QSpinBox* makeSide(const char* name, int value)
{
    auto* field = new QSpinBox;
    field->setObjectName(QLatin1String(name));
    field->setRange(1, ImageCanvas::MaxSide);
    field->setValue(value);
    return field;
}

int scaledSide(int side, double factor)
{
    return int(qBound(1.0, std::round(side * factor), double(ImageCanvas::MaxSide)));
}

/// The part of the new space that goes before the picture: none, half or all.
int shareOf(int room, int column)
{
    return column == 0 ? 0 : column == 1 ? room >> 1 : room;
}

/// The picture as it looks after a change of the canvas size.
QImage placed(const QImage& picture, const QSize& size, const QPoint& position)
{
    return picture.convertToFormat(QImage::Format_ARGB32).copy(QRect(-position, size));
}

}  // namespace

ImgResizeDlg::ImgResizeDlg(QWidget* parent, const QImage& picture)
    : QDialog(parent), m_before(picture.size()), m_source(previewSource(picture, &m_sourceScale)),
      m_mode(new QComboBox), m_width(makeSide("width", picture.width())),
      m_height(makeSide("height", picture.height())), m_factor(new QDoubleSpinBox),
      m_keepsRatio(new QCheckBox(tr("&Keep proportions"))), m_filter(makeFilterBox()),
      m_anchor(new QButtonGroup(this)), m_anchors(new QWidget), m_preview(new ImagePreview)
{
    setWindowTitle(tr("Resize"));
    build();
    connectAll();
    update();
}

ImgResizeDlg::~ImgResizeDlg() = default;

void ImgResizeDlg::build()
{
    m_mode->setObjectName(QStringLiteral("mode"));
    m_mode->addItems({tr("Scale the picture"), tr("Change the room around the picture")});
    m_factor->setObjectName(QStringLiteral("factor"));
    m_factor->setRange(LeastFactor, MostFactor);
    m_factor->setDecimals(2);
    m_factor->setSingleStep(0.5);
    m_factor->setValue(1.0);
    m_keepsRatio->setObjectName(QStringLiteral("ratio"));
    m_keepsRatio->setChecked(true);
    auto* grid = new QGridLayout(m_anchors);
    grid->setContentsMargins({});
    grid->setSpacing(1);
    const QString names[] = {tr("Top left"),    tr("Top"),    tr("Top right"),
                             tr("Left"),        tr("Middle"), tr("Right"),
                             tr("Bottom left"), tr("Bottom"), tr("Bottom right")};
    for (int i = 0; i < AnchorSides * AnchorSides; ++i) {
        auto* button = new QToolButton;
        button->setCheckable(true);
        button->setToolTip(names[i]);
        button->setAccessibleName(names[i]);
        grid->addWidget(button, i / AnchorSides, i % AnchorSides);
        m_anchor->addButton(button, i);
    }
    m_anchor->button(AnchorSides * AnchorSides / 2)->setChecked(true);
    auto* form = new QFormLayout;
    form->addRow(m_mode);
    form->addRow(tr("&Width:"), m_width);
    form->addRow(tr("&Height:"), m_height);
    form->addRow(tr("&Factor:"), m_factor);
    form->addRow(m_keepsRatio);
    form->addRow(tr("F&ilter:"), m_filter);
    form->addRow(tr("Picture at:"), m_anchors);
    layOutBeside(m_preview, form, this);
}

void ImgResizeDlg::connectAll()
{
    const auto changed = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_mode, changed, this, &ImgResizeDlg::update);
    connect(m_filter, changed, this, &ImgResizeDlg::update);
    connect(m_width, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this] { sideChanged(true); });
    connect(m_height, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this] { sideChanged(false); });
    connect(m_factor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double factor) {
                setSides(scaledSide(m_before.width(), factor),
                         scaledSide(m_before.height(), factor));
            });
    connect(m_anchor, &QButtonGroup::idClicked, this, &ImgResizeDlg::update);
}

/// Adapts the other side if the picture keeps its proportions.
void ImgResizeDlg::sideChanged(bool isWidth)
{
    int width = m_width->value();
    int height = m_height->value();
    if (mode() == ScalePicture && m_keepsRatio->isChecked()) {
        const double factor =
            isWidth ? double(width) / m_before.width() : double(height) / m_before.height();
        isWidth ? height = scaledSide(m_before.height(), factor)
                : width = scaledSide(m_before.width(), factor);
        const QSignalBlocker blocker(m_factor);
        m_factor->setValue(factor);
    }
    setSides(width, height);
}

void ImgResizeDlg::setSides(int width, int height)
{
    const QSignalBlocker ofWidth(m_width);
    const QSignalBlocker ofHeight(m_height);
    m_width->setValue(width);
    m_height->setValue(height);
    update();
}

ImgResizeDlg::Mode ImgResizeDlg::mode() const
{
    return Mode(m_mode->currentIndex());
}

QSize ImgResizeDlg::chosenSize() const
{
    return {m_width->value(), m_height->value()};
}

Zorv::ImageResizeFilter ImgResizeDlg::filter() const
{
    return Zorv::ImageResizeFilter(m_filter->currentIndex());
}

QPoint ImgResizeDlg::positionIn(const QSize& before, const QSize& after) const
{
    const int anchor = m_anchor->checkedId();
    return {shareOf(after.width() - before.width(), anchor % AnchorSides),
            shareOf(after.height() - before.height(), anchor / AnchorSides)};
}

QPoint ImgResizeDlg::position() const
{
    return positionIn(m_before, chosenSize());
}

/// Updates fields and preview. The preview is made from the reduced picture, to be fast.
void ImgResizeDlg::update()
{
    const bool scales = mode() == ScalePicture;
    m_filter->setEnabled(scales);
    m_factor->setEnabled(scales);
    m_keepsRatio->setEnabled(scales);
    m_anchors->setEnabled(!scales);
    const QSize size = chosenSize();
    if (scales) {
        const QSize most = m_preview->size().expandedTo(m_preview->sizeHint());
        const bool isLarge = size.width() > most.width() || size.height() > most.height();
        const QSize shown = isLarge ? size.scaled(most, Qt::KeepAspectRatio) : size;
        m_preview->setPicture(Zorv::resizeImage(m_source, shown.expandedTo({1, 1}), filter()));
        return;
    }
    const double most = 2.0 * qMax(m_source.width(), m_source.height());
    const double scale = qMin(m_sourceScale, qMax(most, 256.0) / qMax(size.width(), size.height()));
    const QSize before = (QSizeF(m_before) * scale).toSize().expandedTo({1, 1});
    const QSize after = (QSizeF(size) * scale).toSize().expandedTo({1, 1});
    m_preview->setPicture(placed(m_source.scaled(before), after, positionIn(before, after)));
}
