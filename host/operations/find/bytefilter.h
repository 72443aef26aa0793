#pragma once

#include <QByteArray>

#include <array>

namespace Operations {

class FindPattern;

/// What can be told of a file by its bytes alone.
enum class ByteKind {
    Ascii,
    Utf8,  ///< valid, and not only ASCII
    Other  ///< in an encoding that has to be detected
};

/// The bytes are those of a whole file.
ByteKind kindOfBytes(const char* data, int size);

/// Tells of most files that a pattern is not in them, without decoding them.
///
/// Whatever matches a text as it stands has a part of it that is the same bytes in every match,
/// case aside. Of expressions nothing is known: they may match anywhere. For any thread.
class ByteFilter
{
public:
    explicit ByteFilter(const FindPattern& pattern);

    /// False if nothing in a file of this kind can match.
    bool mayMatch(const char* data, int size, ByteKind kind) const;

private:
    /// A part that every match has, and how far to go on behind a byte that ends none.
    struct Part
    {
        void set(const QByteArray& bytes, bool matchesCase);
        bool isIn(const char* data, int size) const;

        QByteArray bytes;
        std::array<uchar, 256> folded;
        std::array<uchar, 256> steps;
    };

    Part m_inAscii;
    Part m_inUtf8;
};

}  // namespace Operations
