#include "family/assets/familysound.h"

#include "family/assets/samplestore.h"
#include "family/assets/soundfile.h"
#include "family/assets/soundfiledata.h"

namespace Family {

FamilySound::FamilySound(SoundFile* sounds) : m_sounds(sounds) {}

FamilySound::~FamilySound() = default;

SamplePacking FamilySound::packing() const
{
    return state.samples ? state.samples->packing : SamplePacking::Plain;
}

int FamilySound::packedSize() const
{
    return state.samples ? state.samples->item->size : 0;
}

QByteArray FamilySound::sampleData() const
{
    return sampleReader()();
}

std::function<QByteArray()> FamilySound::sampleReader() const
{
    if (state.samples && state.record.isEmpty()) {
        return m_sounds->store()->reader(state.samples.get());
    }
    return [] { return QByteArray(); };
}

void FamilySound::setSample(const Zorv::SampleInfo& info, const QByteArray& data)
{
    State changed = state;
    if (!m_sounds->setSamples(&changed, info, data)) {
        return;
    }
    const AssetHistory::Step step(m_sounds->editHistory(), SoundFile::tr("Change sound"));
    m_sounds->change(this, changed);
}

void FamilySound::duplicate()
{
    auto copy = std::make_shared<FamilySound>(m_sounds);
    copy->state = state;
    copy->state.id = m_sounds->freeId({state.id.group, quint16(state.id.number + 1)});
    const AssetHistory::Step step(m_sounds->editHistory(), SoundFile::tr("Duplicate sound"));
    m_sounds->insertBehind(this, copy);
}

QStringList FamilySound::propertyNames() const
{
    return {QStringLiteral("Identifier"), QStringLiteral("Group"), QStringLiteral("Number"),
            QStringLiteral("Channels"),   QStringLiteral("Bits"),  QStringLiteral("Rate"),
            QStringLiteral("Frames")};
}

QVariant FamilySound::property(const QString& name) const
{
    const QVariant values[] = {state.id.text(),     state.id.group,  state.id.number,
                               state.info.channels, state.info.bits, state.info.sampleRate,
                               state.info.frames};
    const int which = propertyNames().indexOf(name);
    return which < 0 ? QVariant() : values[which];
}

void FamilySound::setProperty(const QString& name, const QVariant& value)
{
    AssetId id = state.id;
    bool isFine = false;
    if (name == QLatin1String("Identifier")) {
        isFine = AssetId::read(value, &id);
    } else if (name == QLatin1String("Group")) {
        id.group = value.toString().toUShort(&isFine);
    } else if (name == QLatin1String("Number")) {
        id.number = value.toString().toUShort(&isFine);
    }
    if (isFine && id != state.id && state.record.isEmpty()) {
        State changed = state;
        changed.id = id;
        const AssetHistory::Step step(m_sounds->editHistory(), SoundFile::tr("Renumber sound"));
        m_sounds->change(this, changed);
    }
}

}  // namespace Family
