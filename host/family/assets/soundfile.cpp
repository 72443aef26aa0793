#include "family/assets/soundfile.h"

#include "family/assets/samplestore.h"
#include "family/assets/soundfiledata.h"

#include <QSet>

#include <algorithm>
#include <limits>
#include <numeric>

namespace Family {

using Zorv::SampleInfo;

SoundFile::SoundFile()
    : SoundListBase(&m_history), m_store(std::make_unique<SampleStore>()),
      m_history([this] { stepDone(); })
{
    setCache(m_store->cache());
}

SoundFile::~SoundFile()
{
    close();
}

QStringList SoundFile::loadErrors() const
{
    QStringList lines;
    for (const ItemPtr& sound : items()) {
        if (!sound->state.record.isEmpty()) {
            lines.append(SoundFileData::faultLine(sound->row + 1, sound->id(), sound->fault()));
        }
    }
    return lines;
}

int SoundFile::brokenCount() const
{
    return int(std::count_if(items().begin(), items().end(),
                             [](const ItemPtr& sound) { return !sound->state.record.isEmpty(); }));
}

void SoundFile::removeBroken()
{
    const AssetHistory::Step step(m_history, tr("Remove broken sounds"));
    for (int row = items().size() - 1; row >= 0; --row) {
        if (!items()[row]->state.record.isEmpty()) {
            removeItems(row, 1);
        }
    }
}

FamilySound* SoundFile::add(int row, const QVariant& id, const Zorv::SoundSample& sample)
{
    auto sound = std::make_shared<FamilySound>(this);
    if (!setSamples(&sound->state, sample, sample.data)) {
        return nullptr;
    }
    if (!AssetId::read(id, &sound->state.id)) {
        const AssetId last = items().isEmpty() ? AssetId() : items().last()->id();
        sound->state.id = items().isEmpty() ? last : freeId(last);
    }
    const AssetHistory::Step step(m_history, tr("Add sound"));
    insertItems(qBound(0, row, items().size()), {sound});
    return sound.get();
}

std::function<std::shared_ptr<const void>(const QByteArray&)> SoundFile::packer() const
{
    return m_store->packer();
}

bool SoundFile::canName(const QVariant& id) const
{
    AssetId read;
    return AssetId::read(id, &read);
}

int SoundFile::find(int from, const QVariant& id) const
{
    AssetId wanted;
    if (!AssetId::read(id, &wanted)) {
        return -1;
    }
    for (int row = std::max(from, 0); row < items().size(); ++row) {
        if (items()[row]->id() == wanted) {
            return row;
        }
    }
    return -1;
}

AssetId SoundFile::freeId(AssetId from) const
{
    QSet<quint32> taken;
    for (const ItemPtr& sound : items()) {
        taken.insert(sound->id().key());
    }
    quint32 key = from.key();
    while (taken.contains(key)) {
        ++key;
    }
    return AssetId::fromKey(key);
}

void SoundFile::beginChange(const QString& title)
{
    m_history.begin(title);
}

void SoundFile::endChange()
{
    m_history.end();
}

void SoundFile::undo()
{
    m_history.undo();
}

void SoundFile::redo()
{
    m_history.redo();
}

void SoundFile::move(unsigned from, unsigned to)
{
    const AssetHistory::Step step(m_history, tr("Move sound"));
    moveItem(int(from), int(to));
}

void SoundFile::remove(unsigned index)
{
    if (index < count()) {
        const AssetHistory::Step step(m_history, tr("Delete sound"));
        removeItems(int(index), 1);
    }
}

void SoundFile::autoOrganize()
{
    QVector<int> order(items().size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [this](int a, int b) { return items()[a]->id() < items()[b]->id(); });
    const AssetHistory::Step step(m_history, tr("Sort sounds"));
    reorderItems(order);
}

QVariant SoundFile::data(const QModelIndex& index, int role) const
{
    const FamilySound* sound = index.isValid() ? item(index.row()) : nullptr;
    if (sound && role == Qt::DisplayRole) {
        return sound->id().text();
    }
    return sound && role == Qt::ToolTipRole && !sound->fault().isEmpty() ? QVariant(sound->fault())
                                                                         : QVariant();
}

bool SoundFile::setSamples(FamilySound::State* state, const SampleInfo& info,
                           const QByteArray& data)
{
    SampleInfo form = info;
    form.frames = 1;
    if (!SoundFileData::isFine(form)) {
        return false;
    }
    form.frames = qint32(quint64(data.size()) / SoundFileData::plainSize(form));
    state->info = form;
    state->samples = m_store->add(data.left(int(SoundFileData::plainSize(form))));
    state->record.clear();
    state->fault.clear();
    return true;
}

void SoundFile::change(FamilySound* sound, const FamilySound::State& state)
{
    changeItem(sound, state);
}

void SoundFile::insertBehind(const FamilySound* sound, const ItemPtr& copy)
{
    insertItems(sound->row + 1, {copy});
}

void SoundFile::listChanged(bool count)
{
    m_changed = true;
    m_countChanged = m_countChanged || count;
}

void SoundFile::stepDone()
{
    if (m_changed) {
        const bool count = m_countChanged;
        m_changed = false;
        m_countChanged = false;
        emit changed(count);
        emit modified();
    }
    tellModified();
}

void SoundFile::tellModified()
{
    if (m_history.hasCleanChanged()) {
        emit modificationChanged(isModified());
    }
}

void SoundFile::close()
{
    m_snapshots.cancel();
    m_history.clear();
    resetItems({});
    m_rest.clear();
}

}  // namespace Family
