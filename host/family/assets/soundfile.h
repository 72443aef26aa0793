#pragma once

#include "family/assets/assetlist.h"
#include "family/assets/assetsnapshot.h"
#include "family/assets/familysound.h"

#include <zorv/cache/sounds.h>
#include <zorv/core/filewatchobject.h>

#include <QStringList>

class QIODevice;

namespace Family {

class SampleStore;
struct SoundFileData;

using SoundListBase = AssetList<Zorv::Sounds, FamilySound>;

/// The sounds of a game, in a sound file (`.sounds`, see docs/formats.md).
///
/// A row shows "GROUP,NUMBER". Opening reads the table and takes packed samples over; they are
/// unpacked when they are asked for, and equal ones are stored once. Everything can be undone.
/// `modified()` and `changed()` come once a step, when all is true. A file that was not changed is
/// written back the same, and broken records stay in it. Ends by `release()`. Main thread only.
class SoundFile final : public SoundListBase, public Zorv::FileWatchObject
{
    Q_OBJECT

public:
    SoundFile();
    ~SoundFile() override;

    /// A line for each broken sound, for the person: what was found when the file was read.
    QStringList loadErrors() const;

    /// How many sounds are kept as the broken records of the file that they are.
    int brokenCount() const;

    /// Removes them all, as one step of undo.
    void removeBroken();

    unsigned count() const override { return unsigned(items().size()); }
    FamilySound* sound(int index) const override { return item(index); }
    void setCurrent(int index) override { currentIndex = index; }

    /// Takes any identifier that can be read, also one that is there already; else the next free
    /// one behind the last sound. Null for a form that a sound file cannot hold: 1 to 8
    /// channels of 8, 16, 24 or 32 bits, 1 to 384000 frames a second. Bytes behind the last whole
    /// frame are left out.
    FamilySound* add(int row, const QVariant& id, const Zorv::SoundSample& sample) override;
    std::function<std::shared_ptr<const void>(const QByteArray&)> packer() const override;
    int find(int from, const QVariant& id) const override;
    bool canName(const QVariant& id) const override;

    /// The first identifier of the group that no sound has, from a number on; the group is left if
    /// it is full.
    AssetId freeId(AssetId from) const;

    void beginChange(const QString& title) override;
    void endChange() override;
    void undo() override;
    void redo() override;
    bool canUndo() const override { return m_history.canUndo(); }
    bool canRedo() const override { return m_history.canRedo(); }
    QString undoTitle() const override { return m_history.undoTitle(); }
    QString redoTitle() const override { return m_history.redoTitle(); }

    /// Whether there is a step, and its title.
    const AssetHistory& steps() const { return m_history; }

    void move(unsigned from, unsigned to) override;
    void remove(unsigned index) override;

    /// Sorts by group and number.
    void autoOrganize() override;

    int checkErrors() override { return brokenCount(); }
    bool isModified() const override { return !m_history.isClean(); }
    bool isEmpty() const override { return items().isEmpty(); }
    void reset() override;

    /// Fails for what is no sound file, or is cut off in its table. Broken records are no
    /// failure, but `loadErrors()`.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override { return m_fileName; }

    /// The file has changed on disk, and the person wants it: reads it, without undo.
    bool reload() override;
    void release() override { delete this; }

    /// What is here now, in the form of a sound file.
    std::shared_ptr<AssetSnapshot> snapshot();

    /// Brings back what a snapshot has written: one step of undo. False, with `error` and all as it
    /// was, for what is no sound file.
    bool restore(QIODevice* device, QString* error);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// For sounds: the store of samples, and changes with undo.
    SampleStore* store() const { return m_store.get(); }
    AssetHistory& editHistory() { return m_history; }
    void change(FamilySound* sound, const FamilySound::State& state);
    void insertBehind(const FamilySound* sound, const ItemPtr& copy);

    /// Gives a state other samples; false for a form that a sound file cannot hold.
    bool setSamples(FamilySound::State* state, const Zorv::SampleInfo& info,
                    const QByteArray& data);

signals:
    /// There is something to save, or no longer.
    void modificationChanged(bool isModified);

    /// What is here has just been read from its file, or written to it.
    void synchronized();

private:
    struct Content
    {
        QVector<ItemPtr> sounds;
        QVector<SampleRef> rest;
    };

    void listChanged(bool count) override;
    void stepDone();
    void close();
    void tellModified();
    Content contentOf(const SoundFileData& data, QIODevice* device, SampleStore* newStore);
    void take(const SoundFileData& data, QIODevice* device);
    SoundFileData tables(QVector<SampleRef>* streams) const;
    bool write(Zorv::Archive& archive, const QString& fileName, QString* error);

    // Sounds die before the store of their samples, and steps of undo hold sounds.
    std::unique_ptr<SampleStore> m_store;
    AssetHistory m_history;
    QVector<SampleRef> m_rest;  // what broken records may have meant
    AssetSnapshots m_snapshots;
    QString m_fileName;
    bool m_changed = false;
    bool m_countChanged = false;
};

}  // namespace Family
