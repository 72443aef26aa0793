#include "rules/state.h"

#include <cstddef>
#include <cstring>

namespace Rules {

namespace {

class Hash
{
public:
    void add(quint32 value)
    {
        m_hash ^= value;
        m_hash *= 0x100000001b3u;
        m_hash ^= m_hash >> 29;
    }

    /// Adds 32-bit values as numbers, so that the byte order of the machine does not matter.
    void addWords(const void* data, size_t bytes)
    {
        for (size_t at = 0; at < bytes; at += sizeof(quint32)) {
            quint32 value;
            memcpy(&value, static_cast<const char*>(data) + at, sizeof value);
            add(value);
        }
    }

    void addBytes(const quint8* data, size_t bytes)
    {
        for (size_t at = 0; at < bytes; ++at) {
            add(data[at]);
        }
    }

    quint64 value() const { return m_hash; }

private:
    quint64 m_hash = 0xcbf29ce484222325u;
};

}  // namespace

quint64 hashOf(const State& state)
{
    Hash hash;
    hash.addWords(&state, offsetof(State, fighters));
    for (const FighterState& fighter : state.fighters) {
        hash.addWords(&fighter, offsetof(FighterState, commands));
        hash.addBytes(fighter.commands, sizeof fighter.commands);
        hash.addBytes(fighter.history, sizeof fighter.history);
    }
    return hash.value();
}

}  // namespace Rules
