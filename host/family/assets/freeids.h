#pragma once

#include "family/assets/assetid.h"

#include <QSet>

#include <functional>

namespace Family {

/// Gives out identifiers that nobody has, each once: the next one from an identifier on. The group
/// is left if it is full.
///
/// Whoever asks in the order of identifiers pays for each of those that are taken once.
class FreeIds
{
public:
    explicit FreeIds(std::function<bool(AssetId)> isTaken) : m_isTaken(std::move(isTaken)) {}

    /// True if somebody has it, or will.
    bool isTaken(AssetId id) const { return m_given.contains(id.key()) || m_isTaken(id); }

    /// Keeps one for somebody who has to have it.
    void keep(AssetId id) { m_given.insert(id.key()); }

    AssetId next(AssetId from);

private:
    std::function<bool(AssetId)> m_isTaken;
    QSet<quint32> m_given;
    AssetId m_asked;   // the last question,
    AssetId m_answer;  // and what was free: nothing is between the two
    bool m_hasAnswer = false;
};

}  // namespace Family
