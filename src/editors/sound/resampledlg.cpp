#include "editors/sound/resampledlg.h"

#include "core/dialogs/dialogbuttons_p.h"
#include "core/dialogs/itempicker_p.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

const int freqs[] = {8000,  11000, 11025, 12000, 16000, 22050,
                     24000, 32000, 44100, 48000, 96000, 192000};

/// The last value has no item in the box, so a sound with it starts at the first choice.
const quint16 bits[] = {8, 16, 24};
constexpr int ChosenBits = 2;

template <class Value, size_t Count>
int indexOf(const Value (&table)[Count], Value value)
{
    const auto* found = std::find(std::begin(table), std::end(table), value);
    return found == std::end(table) ? 0 : int(found - table);
}

}  // namespace

ResampleDlg::ResampleDlg(QWidget* parent, QAbstractItemModel* sounds, int row,
                         const Zorv::SampleInfo& info)
    : QDialog(parent), m_picker(new ItemPicker(sounds, row)), m_rate(addBox("samplerate")),
      m_bits(addBox("bits")), m_channels(addBox("channels"))
{
    setWindowTitle(tr("Resample"));
    for (const int freq : freqs) {
        m_rate->addItem(tr("%1 Hz").arg(freq));
    }
    for (int i = 0; i < ChosenBits; ++i) {
        m_bits->addItem(tr("%1 bits").arg(bits[i]));
    }
    m_channels->addItems({tr("Mono"), tr("Stereo")});
    const int first = indexOf(bits, info.bits);
    m_rate->setCurrentIndex(indexOf(freqs, info.sampleRate));
    m_bits->setCurrentIndex(first < ChosenBits ? first : 0);
    m_channels->setCurrentIndex(info.channels == 2 ? 1 : 0);

    auto* form = new QFormLayout;
    form->addRow(tr("Sample rate:"), m_rate);
    form->addRow(tr("Bits per sample:"), m_bits);
    form->addRow(tr("Channels:"), m_channels);
    auto* buttons = Zorv::makeOkCancel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_picker);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

ResampleDlg::~ResampleDlg() = default;

QComboBox* ResampleDlg::addBox(const char* name)
{
    auto* box = new QComboBox(this);
    box->setObjectName(QLatin1String(name));
    return box;
}

Zorv::SampleInfo ResampleDlg::info() const
{
    Zorv::SampleInfo result;
    result.channels = quint16(m_channels->currentIndex() + 1);
    result.bits = bits[m_bits->currentIndex()];
    result.sampleRate = freqs[m_rate->currentIndex()];
    return result;
}

QList<int> ResampleDlg::selected() const
{
    return m_picker->selected();
}
