#include "family/assets/assetsnapshot.h"

#include <QElapsedTimer>

#include <algorithm>

namespace Family {

AssetSnapshot::AssetSnapshot(int streams, BytesOf bytesOf, Write write)
    : m_count(streams), m_bytesOf(std::move(bytesOf)), m_write(std::move(write))
{
    m_bytes.reserve(streams);
}

void AssetSnapshot::gather(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (m_bytesOf && !isWhole() && (milliseconds < 0 || timer.elapsed() < milliseconds)) {
        m_bytes.append(m_bytesOf(m_bytes.size()));
    }
    if (isWhole()) {
        m_bytesOf = nullptr;
    }
}

bool AssetSnapshot::write(QIODevice* device) const
{
    return isWhole() && m_write(device, [this](int stream) { return m_bytes[stream]; });
}

std::shared_ptr<AssetSnapshot> AssetSnapshots::add(int streams, AssetSnapshot::BytesOf bytesOf,
                                                   AssetSnapshot::Write write)
{
    m_all.erase(std::remove_if(m_all.begin(), m_all.end(),
                               [](const auto& snapshot) { return snapshot.expired(); }),
                m_all.end());
    auto added = std::make_shared<AssetSnapshot>(streams, std::move(bytesOf), std::move(write));
    m_all.push_back(added);
    return added;
}

void AssetSnapshots::cancel()
{
    for (const auto& weak : m_all) {
        if (const auto snapshot = weak.lock()) {
            snapshot->m_bytesOf = nullptr;
            snapshot->m_isCanceled = !snapshot->isWhole();
        }
    }
    m_all.clear();
}

}  // namespace Family
