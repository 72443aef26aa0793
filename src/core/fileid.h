#pragma once

#include <QtGlobal>

namespace Zorv {

/// The kinds under which a project registers a file: a set of 32 flags.
///
/// A file can have several kinds at once. Bit value 1 is the project's main
/// code document and belongs to the library. All other bits belong to the host;
/// the ones named below are those for which the library has an icon.
/// `Project::FileID` is this class.
class FileID
{
public:
    /// One bit of the set. A host casts its own bits to this type.
    enum Type : quint32 {
        MainCode = 1,    ///< the main `CodeDocument` of a project
        Sprites = 2,     ///< a sprite collection
        Sounds = 4,      ///< a sound collection
        Animations = 8,  ///< a list of animations
        Commands = 16,   ///< a command file
        Code = 32        ///< a further code file
    };

    constexpr FileID(quint32 bits = 0) : m_bits(bits) {}

    /// The flags as a number; 0 for the empty set.
    constexpr operator quint32() const { return m_bits; }

    /// True if the set contains this kind.
    constexpr bool has(Type type) const { return (m_bits & type) != 0; }

    /// The lowest kind in the set; 0 if it is empty.
    constexpr Type lowest() const { return static_cast<Type>(m_bits & (~m_bits + 1)); }

private:
    quint32 m_bits;
};

}  // namespace Zorv
