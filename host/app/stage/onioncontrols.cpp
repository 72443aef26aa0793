#include "app/stage/onioncontrols.h"

#include "app/look/language.h"

#include <zorv/core/interface.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <cmath>
#include <iterator>

namespace App {

namespace {

constexpr int LastNumber = 9999;

const char* const frameNames[] = {
    QT_TRANSLATE_NOOP("App::OnionControls", "Previous frame"),
    QT_TRANSLATE_NOOP("App::OnionControls", "Next frame"),
    QT_TRANSLATE_NOOP("App::OnionControls", "First frame"),
    QT_TRANSLATE_NOOP("App::OnionControls", "Frame number"),
};

const char* const effectNames[] = {
    QT_TRANSLATE_NOOP("App::OnionControls", "As it is"),
    QT_TRANSLATE_NOOP("App::OnionControls", "Shades of grey"),
    QT_TRANSLATE_NOOP("App::OnionControls", "Lighter"),
    QT_TRANSLATE_NOOP("App::OnionControls", "Darker"),
};

/// The entries get their texts with the language.
QComboBox* makeBox(size_t entries, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    for (size_t i = 0; i < entries; ++i) {
        box->addItem(QString());
    }
    return box;
}

/// As the field shows a share from 0 to 1; one between two percents stays what it is.
int percentsOf(const QVariant& share)
{
    return int(std::lround(qBound(0.0, share.toDouble(), 1.0) * 100));
}

}  // namespace

OnionControls::OnionControls(QWidget* parent)
    : QWidget(parent), m_on(new QCheckBox(this)), m_frame(makeBox(std::size(frameNames), this)),
      m_number(new QSpinBox(this)), m_effect(makeBox(std::size(effectNames), this)),
      m_opacity(new QSpinBox(this)), m_labels{new QLabel(this), new QLabel(this), new QLabel(this)}
{
    m_on->setObjectName(QStringLiteral("onion_on"));
    m_frame->setObjectName(QStringLiteral("onion_frame"));
    m_number->setObjectName(QStringLiteral("onion_number"));
    m_effect->setObjectName(QStringLiteral("onion_effect"));
    m_opacity->setObjectName(QStringLiteral("onion_opacity"));
    m_number->setRange(1, LastNumber);
    m_opacity->setRange(0, 100);
    m_opacity->setSuffix(QStringLiteral(" %"));
    auto* layout = new QGridLayout(this);
    layout->addWidget(m_on, 0, 0, 1, 3);
    QWidget* const fields[] = {m_frame, m_effect, m_opacity};
    for (int i = 0; i < 3; ++i) {
        layout->addWidget(m_labels[i], i + 1, 0);
        layout->addWidget(fields[i], i + 1, 1);
        m_labels[i]->setBuddy(fields[i]);
    }
    layout->addWidget(m_number, 1, 2);

    connect(m_on, &QCheckBox::toggled, this, [this](bool isOn) {
        updateEnabled();
        emit switched(isOn);
        emit changed();
    });
    connect(m_frame, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        updateEnabled();
        emit changed();
    });
    connect(m_number, QOverload<int>::of(&QSpinBox::valueChanged), this, &OnionControls::changed);
    connect(m_effect, QOverload<int>::of(&QComboBox::activated), this,
            &OnionControls::keepSettings);
    connect(m_opacity, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &OnionControls::keepSettings);
    reconfig();
    updateEnabled();
    followLanguage(this, [this] { retranslate(); });
}

bool OnionControls::isOn() const
{
    return m_on->isChecked();
}

void OnionControls::setOn(bool isOn)
{
    m_on->setChecked(isOn);
}

Zorv::GraphicsRenderer::OnionEffect OnionControls::effect() const
{
    return Zorv::GraphicsRenderer::OnionEffect(m_effect->currentIndex());
}

float OnionControls::opacity() const
{
    return float(m_opacity->value()) / 100;
}

int OnionControls::otherFrame(int present, int count) const
{
    if (count <= 0) {
        return -1;
    }
    switch (m_frame->currentIndex()) {
    case PreviousFrame:
        return (present + count - 1) % count;
    case NextFrame:
        return (present + 1) % count;
    case FirstFrame:
        return 0;
    default:
        return m_number->value() <= count ? m_number->value() - 1 : -1;
    }
}

void OnionControls::reconfig()
{
    const Zorv::Interface* host = Zorv::Interface::instance();
    const QSignalBlocker blocker(m_opacity);
    m_effect->setCurrentIndex(qBound(0, host->option(m_effect->objectName()).toInt(), 3));
    m_opacity->setValue(percentsOf(host->option(m_opacity->objectName())));
    emit changed();
}

void OnionControls::keepSettings()
{
    Zorv::Interface* host = Zorv::Interface::instance();
    host->setOption(m_effect->objectName(), m_effect->currentIndex());
    if (percentsOf(host->option(m_opacity->objectName())) != m_opacity->value()) {
        host->setOption(m_opacity->objectName(), m_opacity->value() / 100.0);
    }
    emit changed();
}

void OnionControls::updateEnabled()
{
    for (QWidget* widget : {static_cast<QWidget*>(m_frame), static_cast<QWidget*>(m_effect),
                            static_cast<QWidget*>(m_opacity)}) {
        widget->setEnabled(isOn());
    }
    m_number->setEnabled(isOn() && m_frame->currentIndex() == FixedFrame);
}

void OnionControls::retranslate()
{
    m_on->setText(tr("Show another frame behind this one"));
    m_labels[0]->setText(tr("Frame:"));
    m_labels[1]->setText(tr("Effect:"));
    m_labels[2]->setText(tr("Opacity:"));
    m_number->setAccessibleName(tr("Number of the frame, from 1"));
    m_number->setToolTip(m_number->accessibleName());
    for (int i = 0; i < m_frame->count(); ++i) {
        m_frame->setItemText(i, tr(frameNames[i]));
    }
    for (int i = 0; i < m_effect->count(); ++i) {
        m_effect->setItemText(i, tr(effectNames[i]));
    }
}

}  // namespace App
