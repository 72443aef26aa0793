#include "app/sounds/soundpanel.h"

#include "app/look/language.h"
#include "family/assets/soundfile.h"

#include <zorv/editors/framework/rowlist.h>

#include <QLabel>
#include <QVBoxLayout>

namespace App {

using Family::SoundFile;
using Zorv::RowList;

SoundPanel::SoundPanel(QWidget* parent) : QWidget(parent), m_list(new RowList), m_text(new QLabel)
{
    m_list->setUniformItemSizes(true);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_list);
    layout->addWidget(m_text);
    setFocusProxy(m_list);
    connect(m_list, &RowList::currentRowChanged, this, &SoundPanel::updateCurrent);
    connect(m_list, &QAbstractItemView::activated, this,
            [this](const QModelIndex& index) { emit soundActivated(index.row()); });
    followLanguage(this, [this] {
        m_list->setAccessibleName(tr("Sounds of the project"));
        m_text->setText(currentText());
    });
}

void SoundPanel::setSounds(SoundFile* sounds)
{
    if (sounds == m_sounds) {
        return;
    }
    if (m_sounds) {
        m_sounds->disconnect(this);
    }
    m_sounds = sounds;
    m_list->setModel(sounds);
    if (sounds) {
        connect(sounds, &SoundFile::changed, this, &SoundPanel::updateCurrent);
        connect(sounds, &QObject::destroyed, this, &SoundPanel::updateCurrent);
        setCurrentRow(0);
    }
    updateCurrent();
}

SoundFile* SoundPanel::sounds() const
{
    return m_sounds;
}

int SoundPanel::currentRow() const
{
    return m_sounds ? m_list->currentIndex().row() : -1;
}

QVector<int> SoundPanel::selectedRows() const
{
    return m_list->selectedRows();
}

void SoundPanel::setCurrentRow(int row)
{
    if (m_sounds) {
        m_list->setCurrentIndex(m_sounds->index(row));
    }
}

void SoundPanel::updateCurrent()
{
    m_text->setText(currentText());
    emit changed();
}

QString SoundPanel::currentText() const
{
    const Family::FamilySound* sound = m_sounds ? m_sounds->sound(currentRow()) : nullptr;
    if (!sound) {
        return !m_sounds ? tr("No sound file") : tr("%n sound(s)", nullptr, int(m_sounds->count()));
    }
    const Zorv::SampleInfo info = sound->sampleInfo();
    const double seconds = info.sampleRate > 0 ? double(info.frames) / info.sampleRate : 0;
    return tr("Sound %1: %2 Hz, %3 bits, %4, %5 s")
        .arg(sound->property(QStringLiteral("Identifier")).toString(),
             QString::number(info.sampleRate), QString::number(info.bits),
             info.channels == 1   ? tr("mono")
             : info.channels == 2 ? tr("stereo")
                                  : tr("%1 channels").arg(info.channels),
             QString::number(seconds, 'f', 2));
}

}  // namespace App
