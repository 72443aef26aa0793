#include "image/dialogs/rotimgdlg.h"

#include "image/dialogs/imagepreview_p.h"
#include "image/dialogs/resizefilters_p.h"
#include "media/tools/rotateimage.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QPushButton>

namespace {

constexpr double WholeTurn = 360.0;
constexpr int QuarterTurn = 90;

}  // namespace

RotImgDlg::RotImgDlg(QWidget* parent, const QImage& picture, unsigned fill)
    : QDialog(parent), m_fill(fill), m_angle(new QDoubleSpinBox), m_filter(makeFilterBox()),
      m_preview(new ImagePreview)
{
    double scale = 1.0;
    m_source = previewSource(picture, &scale);
    setWindowTitle(tr("Rotation"));
    build();
    connect(m_angle, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &RotImgDlg::update);
    connect(m_filter, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &RotImgDlg::update);
    update();
}

RotImgDlg::~RotImgDlg() = default;

void RotImgDlg::build()
{
    m_angle->setObjectName(QStringLiteral("angle"));
    m_angle->setRange(-WholeTurn, WholeTurn);
    m_angle->setDecimals(2);
    m_angle->setSingleStep(1.0);
    m_angle->setSuffix(tr("\u00b0 clockwise"));
    m_angle->setValue(QuarterTurn);
    auto* turns = new QHBoxLayout;
    for (const int turn : {-QuarterTurn, QuarterTurn, 2 * QuarterTurn}) {
        auto* button = new QPushButton(QString::number(turn) + QChar(0xb0));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, turn] { m_angle->setValue(turn); });
        turns->addWidget(button);
    }
    auto* form = new QFormLayout;
    form->addRow(tr("&Angle:"), m_angle);
    form->addRow(turns);
    form->addRow(tr("F&ilter:"), m_filter);
    layOutBeside(m_preview, form, this);
}

float RotImgDlg::angle() const
{
    return float(m_angle->value());
}

Zorv::ImageResizeFilter RotImgDlg::filter() const
{
    return Zorv::ImageResizeFilter(m_filter->currentIndex());
}

void RotImgDlg::update()
{
    m_preview->setPicture(Zorv::rotateImage(m_source, angle(), m_fill, filter()));
}
