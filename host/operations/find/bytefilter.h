#pragma once

#include <QByteArray>

#include <array>

namespace Operations {

class FindPattern;

/// What the raw bytes of a file reveal about its encoding.
enum class ByteKind {
    Ascii,
    Utf8,  ///< valid, and not only ASCII
    Other  ///< in an encoding that must be detected
};

/// Classifies the bytes of a whole file.
ByteKind kindOfBytes(const char* data, int size);

/// Quickly rules out most files that cannot match a pattern, without decoding them.
///
/// Every match of a plain text contains a part with the same bytes, case aside. The filter searches
/// for that part. Regular expressions cannot be ruled out: they may match anything. For any thread.
class ByteFilter
{
public:
    explicit ByteFilter(const FindPattern& pattern);

    /// False if nothing in a file of this kind can match.
    bool mayMatch(const char* data, int size, ByteKind kind) const;

private:
    /// A part that every match contains, and the skip distance after a byte that ends no match.
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
