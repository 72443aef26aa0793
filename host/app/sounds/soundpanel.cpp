#include "app/sounds/soundpanel.h"

#include "app/look/language.h"
#include "family/assets/soundfile.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/editors/framework/rowlist.h>

#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace App {

using Family::SoundFile;
using Zorv::RowList;

namespace {

constexpr int UsesDelay = 200;  // milliseconds; merges many changes
constexpr int ListShare = 2;    // two thirds of the height

QString textOf(const Family::SoundUse& use)
{
    return SoundPanel::tr("%1: %2, %3, line %4")
        .arg(use.move, use.key, QFileInfo(use.place.document->fileName()).fileName(),
             QString::number(use.place.line + 1));
}

/// The full text, in case the panel is too narrow, and the animation of the move.
QString tipOf(const Family::SoundUse& use)
{
    return use.animation.isEmpty()
               ? textOf(use)
               : SoundPanel::tr("%1 (animation %2)").arg(textOf(use), use.animation);
}

}  // namespace

SoundPanel::SoundPanel(QWidget* parent)
    : QWidget(parent), m_list(new RowList), m_text(new QLabel), m_usesTitle(new QLabel),
      m_uses(new QListWidget), m_timer(new QTimer(this))
{
    m_list->setUniformItemSizes(true);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_list, ListShare);
    layout->addWidget(m_text);
    layout->addWidget(m_usesTitle);
    layout->addWidget(m_uses, 1);
    m_usesTitle->setWordWrap(true);
    m_uses->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_usesTitle->setBuddy(m_uses);
    m_timer->setSingleShot(true);
    m_timer->setInterval(UsesDelay);
    connect(m_timer, &QTimer::timeout, this, &SoundPanel::updateUses);
    connect(m_uses, &QAbstractItemView::activated, this,
            [this](const QModelIndex& index) { activateUse(index.row()); });
    setFocusProxy(m_list);
    connect(m_list, &RowList::currentRowChanged, this, &SoundPanel::updateCurrent);
    connect(m_list, &QAbstractItemView::activated, this,
            [this](const QModelIndex& index) { emit soundActivated(index.row()); });
    followLanguage(this, [this] {
        m_list->setAccessibleName(tr("Sounds of the project"));
        m_uses->setAccessibleName(tr("Moves that play the sound"));
        m_text->setText(currentText());
        updateUses();
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

void SoundPanel::setProject(const Family::FamilyProject* project)
{
    m_project = project;
    updateUsesSoon();
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
    updateUsesSoon();
    emit changed();
}

void SoundPanel::updateUsesSoon()
{
    if (!m_timer->isActive()) {
        m_timer->start();
    }
}

void SoundPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    updateUsesSoon();
}

QVector<Family::SoundUse> SoundPanel::findUses() const
{
    const Family::FamilySound* sound = m_sounds ? m_sounds->sound(currentRow()) : nullptr;
    if (!sound || !m_project) {
        return {};
    }
    const Family::ProjectNames names(m_project->mainDocument(), m_project);
    return names.soundUses(sound->id().group, sound->id().number);
}

/// If nothing changed, the list keeps its current row.
void SoundPanel::updateUses()
{
    if (!isVisible()) {
        return;
    }
    const QVector<Family::SoundUse> uses = findUses();
    QStringList texts;
    for (const Family::SoundUse& use : uses) {
        texts.append(textOf(use));
    }
    QStringList shown;
    for (int row = 0; row < m_uses->count(); ++row) {
        shown.append(m_uses->item(row)->text());
    }
    if (texts != shown) {
        m_uses->clear();
        m_uses->addItems(texts);
    }
    for (int row = 0; row < uses.size(); ++row) {
        m_uses->item(row)->setToolTip(tipOf(uses[row]));
    }
    m_uses->setEnabled(!texts.isEmpty());
    m_usesTitle->setText(currentRow() < 0  ? QString()
                         : texts.isEmpty() ? tr("No move of the project plays this sound.")
                                           : tr("Played by:"));
}

/// Searches again, because the lines may have changed since.
void SoundPanel::activateUse(int row)
{
    const QString wanted = m_uses->item(row)->text();
    const QVector<Family::SoundUse> uses = findUses();
    updateUses();
    if (row < uses.size() && textOf(uses[row]) == wanted) {
        emit useActivated(uses[row].place);
    }
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
