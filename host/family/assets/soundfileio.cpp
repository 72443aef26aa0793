#include "family/assets/assetreload.h"
#include "family/assets/samplestore.h"
#include "family/assets/soundfile.h"
#include "family/assets/soundfiledata.h"

#include <zorv/core/archive.h>

#include <QDir>
#include <QHash>

namespace Family {

namespace {

SoundFileData::Stream streamOf(const SampleData& data)
{
    SoundFileData::Stream stream;
    stream.size = quint32(data.item->size);
    stream.plainSize = quint64(data.plainSize);
    stream.packing = data.packing;
    stream.plainCrc = data.plainCrc;
    stream.streamCrc = data.streamCrc;
    return stream;
}

}  // namespace

void SoundFile::reset()
{
    close();
    m_fileName.clear();
    setArchive(nullptr);
    currentIndex = -1;
    emit changed(true);
    tellModified();
}

bool SoundFile::fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly, &reason);
    if (!device) {
        setErrorString(reason);
        return false;
    }
    SoundFileData data;
    const bool done = data.read(device, &reason);
    if (done) {
        take(data, device);
    }
    archive.closeFile(device);
    if (!done) {
        setErrorString(tr("Cannot open the sounds of %1: %2.")
                           .arg(QDir::toNativeSeparators(fileName), reason));
        return false;
    }
    FileWatchObject::fromFile(archive, fileName, asCopy);
    if (asCopy) {
        m_history.setDirty();
    } else {
        m_fileName = fileName;
        setArchive(&archive);
    }
    setErrorString({});
    emit changed(true);
    tellModified();
    if (!asCopy) {
        emit synchronized();
    }
    return true;
}

SoundFile::Content SoundFile::contentOf(const SoundFileData& data, QIODevice* device,
                                        SampleStore* newStore)
{
    const auto adopt = [&](const SoundFileData::Stream& stream) {
        return newStore->adopt(stream.packing, SoundFileData::readStream(device, stream),
                               qint64(stream.plainSize), stream.plainCrc, stream.streamCrc);
    };
    QVector<SampleRef> streams;
    for (const SoundFileData::Stream& stream : data.streams) {
        streams.append(adopt(stream));
    }
    Content content;
    for (const SoundFileData::Stream& stream : data.rest) {
        content.rest.append(adopt(stream));
    }
    for (const SoundFileData::Sound& record : data.sounds) {
        auto sound = std::make_shared<FamilySound>(this);
        sound->state = {record.id, record.info, streams.value(record.stream), record.broken,
                        record.fault};
        content.sounds.append(sound);
    }
    return content;
}

void SoundFile::take(const SoundFileData& data, QIODevice* device)
{
    auto newStore = std::make_unique<SampleStore>();
    const Content content = contentOf(data, device, newStore.get());
    close();
    m_store = std::move(newStore);
    setCache(m_store->cache());
    m_rest = content.rest;
    currentIndex = -1;
    resetItems(content.sounds);
    m_changed = false;
    m_countChanged = false;
}

std::shared_ptr<AssetSnapshot> SoundFile::snapshot()
{
    QVector<SampleRef> streams;
    const SoundFileData data = tables(&streams);
    return m_snapshots.add(
        streams.size(),
        [store = m_store.get(), streams](int i) { return store->stream(streams[i].get()); },
        [data](QIODevice* device, const AssetSnapshot::BytesOf& bytesOf) {
            QString reason;
            return data.write(device, bytesOf, &reason);
        });
}

bool SoundFile::restore(QIODevice* device, QString* error)
{
    SoundFileData data;
    if (!data.read(device, error)) {
        return false;
    }
    const Content content = contentOf(data, device, m_store.get());
    const AssetHistory::Step step(m_history, tr("Restore unsaved sounds"));
    removeItems(0, items().size());
    m_history.record(
        std::make_unique<AssetHistory::Swap<QVector<SampleRef>>>(&m_rest, content.rest));
    insertItems(0, content.sounds);
    return true;
}

SoundFileData SoundFile::tables(QVector<SampleRef>* streams) const
{
    SoundFileData data;
    QHash<const SampleData*, int> known;
    for (const ItemPtr& item : items()) {
        const FamilySound::State& state = item->state;
        SoundFileData::Sound sound;
        sound.id = state.id;
        sound.info = state.info;
        sound.broken = state.record;
        if (state.samples) {
            const auto found = known.constFind(state.samples.get());
            sound.stream = found != known.constEnd() ? *found : data.streams.size();
            if (found == known.constEnd()) {
                known.insert(state.samples.get(), sound.stream);
                data.streams.append(streamOf(*state.samples.get()));
                streams->append(state.samples);
            }
        }
        data.sounds.append(sound);
    }
    for (const SampleRef& part : brokenCount() > 0 ? m_rest : QVector<SampleRef>()) {
        data.rest.append(streamOf(*part.get()));
        streams->append(part);
    }
    return data;
}

bool SoundFile::reload()
{
    return reloadAssets(*this, steps(), tr("Sounds"));
}

bool SoundFile::toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    QString reason;
    const QString oldName = m_fileName;
    FileWatchObject::toFile(archive, fileName, asCopy);
    if (!write(archive, fileName, &reason)) {
        setErrorString(reason);
        renewWatch(oldName);
        return false;
    }
    if (!asCopy) {
        m_fileName = fileName;
        setArchive(&archive);
        m_history.setClean();
        renewWatch(fileName);
        tellModified();
        emit synchronized();
    }
    setErrorString({});
    return true;
}

bool SoundFile::write(Zorv::Archive& archive, const QString& fileName, QString* error)
{
    QVector<SampleRef> streams;
    const SoundFileData data = tables(&streams);
    const auto bytesOf = [&](int stream) { return m_store->stream(streams[stream].get()); };
    // Check before touching the old file: a temporary file may have disappeared.
    for (int i = 0; i < streams.size(); ++i) {
        if (bytesOf(i).size() != streams[i]->item->size) {
            *error =
                tr("Cannot save %1: the sounds cannot be read from the temporary file any more. "
                   "The old file is unchanged.")
                    .arg(QDir::toNativeSeparators(fileName));
            return false;
        }
    }
    QIODevice* device = archive.openFile(fileName, QIODevice::WriteOnly, error);
    if (!device) {
        return false;
    }
    QString reason;
    const bool isWritten = data.write(device, bytesOf, &reason);
    return archive.closeFile(device, error) && isWritten;
}

}  // namespace Family
