#pragma once

#include "family/assets/assetid.h"
#include "family/assets/sampledata.h"

#include <zorv/cache/sound.h>

namespace Family {

class SoundFile;

/// One sound of a collection. Every change is an undo step.
///
/// Its address is stable as long as the collection or its undo history knows it.
class FamilySound final : public Zorv::Sound
{
public:
    /// Everything in a sound that can change.
    struct State
    {
        AssetId id;
        Zorv::SampleInfo info;
        SampleRef samples;  ///< null if it has none
        QByteArray record;  ///< original bytes, if broken in the file
        QString fault;      ///< if broken: the reason, for display
    };

    explicit FamilySound(SoundFile* sounds);
    ~FamilySound() override;

    AssetId id() const { return state.id; }

    /// Why the sound is broken, as a text; empty if it is not.
    QString fault() const { return state.fault; }

    /// How the samples are stored, and their size in bytes.
    SamplePacking packing() const;
    int packedSize() const;

    QByteArray sampleData() const override;
    std::function<QByteArray()> sampleReader() const override;
    Zorv::SampleInfo sampleInfo() const override { return state.info; }

    /// Does nothing for a format that a sound file cannot hold, see `SoundFile::add()`. Repairs a
    /// broken sound.
    void setSample(const Zorv::SampleInfo& info, const QByteArray& data) override;

    /// Appends a copy with the next free number in the group.
    void duplicate() override;

    /// "Identifier", "Group", "Number", "Channels", "Bits", "Rate", "Frames". Only the first three
    /// can be set.
    QStringList propertyNames() const override;
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

    State state;   ///< changed only by the collection
    int row = -1;  ///< in the list; -1 outside of it

private:
    SoundFile* m_sounds;
};

}  // namespace Family
