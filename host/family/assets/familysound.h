#pragma once

#include "family/assets/assetid.h"
#include "family/assets/sampledata.h"

#include <zorv/cache/sound.h>

namespace Family {

class SoundFile;

/// One sound of a collection. Every change is a step of undo.
///
/// Its address stays the same as long as the collection or its undo knows it.
class FamilySound final : public Zorv::Sound
{
public:
    /// All that can change in a sound.
    struct State
    {
        AssetId id;
        Zorv::SampleInfo info;
        SampleRef samples;  ///< null for a sound without samples
        QByteArray record;  ///< as the file has it, if it is broken there
        QString fault;      ///< then: why, in words
    };

    explicit FamilySound(SoundFile* sounds);
    ~FamilySound() override;

    AssetId id() const { return state.id; }

    /// Why the sound is broken, in words; empty if it is not.
    QString fault() const { return state.fault; }

    /// How the samples are stored, and in how many bytes.
    SamplePacking packing() const;
    int packedSize() const;

    QByteArray sampleData() const override;
    std::function<QByteArray()> sampleReader() const override;
    Zorv::SampleInfo sampleInfo() const override { return state.info; }

    /// Nothing for a form that a sound file cannot hold; see `SoundFile::add()`. A broken sound is
    /// whole again by it.
    void setSample(const Zorv::SampleInfo& info, const QByteArray& data) override;

    /// Appends a copy with the next free number of the group.
    void duplicate() override;

    /// "Identifier", "Group", "Number", "Channels", "Bits", "Rate", "Frames". The first three can
    /// be set.
    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    State state;   ///< changed by the collection alone
    int row = -1;  ///< in the list; -1 outside of it

private:
    SoundFile* m_sounds;
};

}  // namespace Family
