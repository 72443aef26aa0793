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
/// A row shows "GROUP,NUMBER". Opening reads the table and copies packed samples; they are unpacked
/// on demand, and equal ones are stored once. Everything can be undone. `modified()` and
/// `changed()` are emitted once per step, when everything is consistent. An unchanged file is
/// written back identically, broken records included. Destroy it by `release()`. Main thread only.
class SoundFile final : public SoundListBase, public Zorv::FileWatchObject
{
    Q_OBJECT

public:
    SoundFile();
    ~SoundFile() override;

    /// One line per broken sound, for the user: the problems found when reading the file.
    QStringList loadErrors() const;

    /// The number of sounds kept as broken records of the file.
    int brokenCount() const;

    /// Removes all of them as one undo step.
    void removeBroken();

    unsigned count() const override { return unsigned(items().size()); }
    FamilySound* sound(int index) const override { return item(index); }
    void setCurrent(int index) override { currentIndex = index; }

    /// Uses `id` if it is a valid identifier, even a used one; otherwise the next free one after
    /// the last sound. Null for a format that a sound file cannot hold: it holds 1 to 8 channels of
    /// 8, 16, 24 or 32 bits and 1 to 384000 frames per second. Bytes after the last whole frame are
    /// dropped.
    FamilySound* add(int row, const QVariant& id, const Zorv::SoundSample& sample) override;
    std::function<std::shared_ptr<const void>(const QByteArray&)> packer() const override;
    int find(int from, const QVariant& id) const override;
    bool canName(const QVariant& id) const override;

    /// The first identifier in the group that no sound has, from a number on; moves to another
    /// group if it is full.
    AssetId freeId(AssetId from) const;

    void beginChange(const QString& title) override;
    void endChange() override;
    void undo() override;
    void redo() override;
    bool canUndo() const override { return m_history.canUndo(); }
    bool canRedo() const override { return m_history.canRedo(); }
    QString undoTitle() const override { return m_history.undoTitle(); }
    QString redoTitle() const override { return m_history.redoTitle(); }

    /// The undo history, for the state and titles of its steps.
    const AssetHistory& steps() const { return m_history; }

    void move(unsigned from, unsigned to) override;
    void remove(unsigned index) override;

    /// Sorts by group and number.
    void autoOrganize() override;

    int checkErrors() override { return brokenCount(); }
    bool isModified() const override { return !m_history.isClean(); }
    bool isEmpty() const override { return items().isEmpty(); }
    void reset() override;

    /// Fails if it is not a sound file or its table is truncated. Broken records are no failure;
    /// see `loadErrors()`.
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override { return m_fileName; }

    /// Reads the file again, without undo, after it has changed on disk and the user agreed.
    bool reload() override;
    void release() override { delete this; }

    /// The current content in the format of a sound file.
    std::shared_ptr<AssetSnapshot> snapshot();

    /// Restores what a snapshot has written, as one undo step. False, with `error` and without a
    /// change, if it is not a sound file.
    bool restore(QIODevice* device, QString* error);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// For sounds: the store of samples, and changes with undo.
    SampleStore* store() const { return m_store.get(); }
    AssetHistory& editHistory() { return m_history; }
    void change(FamilySound* sound, const FamilySound::State& state);
    void insertBehind(const FamilySound* sound, const ItemPtr& copy);

    /// Changes the samples of a state; false for a format that a sound file cannot hold.
    bool setSamples(FamilySound::State* state, const Zorv::SampleInfo& info,
                    const QByteArray& data);

signals:
    /// There are unsaved changes, or no longer.
    void modificationChanged(bool isModified);

    /// The content was just read from or written to its file.
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

    // Order matters: sounds must die before the store of their samples, and undo steps hold sounds.
    std::unique_ptr<SampleStore> m_store;
    AssetHistory m_history;
    QVector<SampleRef> m_rest;  // possible samples of broken records
    AssetSnapshots m_snapshots;
    QString m_fileName;
    bool m_changed = false;
    bool m_countChanged = false;
};

}  // namespace Family
