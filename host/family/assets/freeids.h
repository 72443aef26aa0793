#pragma once

#include "family/assets/assetid.h"

#include <QSet>

#include <functional>

namespace Family {

/// Hands out unused identifiers, each once: the next free one at or after a given identifier.
/// Continues in the next group if the group is full.
///
/// If requests come in ascending order, each used identifier is examined only once.
class FreeIds
{
public:
    explicit FreeIds(std::function<bool(AssetId)> isTaken) : m_isTaken(std::move(isTaken)) {}

    /// True if it is used or already handed out.
    bool isTaken(AssetId id) const { return m_given.contains(id.key()) || m_isTaken(id); }

    /// Reserves an identifier.
    void keep(AssetId id) { m_given.insert(id.key()); }

    AssetId next(AssetId from);

private:
    std::function<bool(AssetId)> m_isTaken;
    QSet<quint32> m_given;
    AssetId m_asked;   // the last request,
    AssetId m_answer;  // and its answer: everything between is used
    bool m_hasAnswer = false;
};

}  // namespace Family
