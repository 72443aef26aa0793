#include "sound/soundbank.h"

#include "family/assets/soundfile.h"
#include "sound/mixer.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/soundconversion.h>
#include <zorv/media/wav.h>

#include <QFile>
#include <QFileInfo>
#include <QtConcurrent>

namespace Player {

namespace {

constexpr qint64 MostBytes = qint64(256) * 1024 * 1024;  // of one sound

}  // namespace

SoundBank::SoundBank() = default;

SoundBank::~SoundBank()
{
    m_isCanceled = true;
    m_future.waitForFinished();
}

quint64 SoundBank::keyOf(int owner, int group, int number)
{
    return quint64(owner) << 32 | Family::AssetId{quint16(group), quint16(number)}.key();
}

void SoundBank::addFile(int owner, const QString& path, const QVector<quint32>& ids)
{
    if (path.isEmpty() || ids.isEmpty()) {
        return;
    }
    Family::SoundFile file;
    if (!file.fromFile(*Zorv::FileSystemArchive::instance(), path, false)) {
        m_notes.append(file.errorString());
        return;
    }
    for (const quint32 key : ids) {
        const auto id = Family::AssetId::fromKey(key);
        const int row = file.find(0, id.text());
        const Family::FamilySound* sound = row < 0 ? nullptr : file.sound(row);
        auto item = std::make_shared<Item>();
        if (sound && sound->fault().isEmpty()) {
            static_cast<Zorv::SampleInfo&>(item->source) = sound->sampleInfo();
            item->source.data = sound->sampleData();
        }
        if (item->source.data.isEmpty() || item->source.data.size() > MostBytes) {
            m_notes.append(tr("%1: there is no sound %2, or it is broken.")
                               .arg(QFileInfo(path).fileName(), id.text()));
            continue;
        }
        m_items.insert(keyOf(owner, id.group, id.number), item);
    }
}

void SoundBank::addWave(quint64 key, const QString& path)
{
    QFile file(path);
    if (path.isEmpty()) {
        return;
    }
    auto item = std::make_shared<Item>();
    if (QFileInfo(path).isFile() && file.size() <= MostBytes) {
        item->source = Zorv::soundFromWAV(&file);
    }
    if (item->source.data.isEmpty()) {
        m_notes.append(tr("Cannot play '%1'.").arg(QFileInfo(path).fileName()));
        return;
    }
    m_items.insert(key, item);
}

void SoundBank::convert(int sampleRate)
{
    Zorv::SampleInfo form;
    form.channels = Mixer::Channels;
    form.bits = 16;
    form.sampleRate = sampleRate;
    const auto items = m_items.values();
    m_future = QtConcurrent::run([items, form, this] {
        for (const auto& item : items) {
            if (!m_isCanceled) {
                item->samples = Zorv::convertSound(item->source, form, &m_isCanceled).sample.data;
                item->isReady = true;
            }
        }
    });
}

int SoundBank::rateOf(quint64 key) const
{
    const std::shared_ptr<Item> item = m_items.value(key);
    return item ? item->source.sampleRate : 0;
}

QByteArray SoundBank::find(quint64 key) const
{
    const std::shared_ptr<Item> item = m_items.value(key);
    return item && item->isReady ? item->samples : QByteArray();
}

}  // namespace Player
