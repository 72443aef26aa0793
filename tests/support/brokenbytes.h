#pragma once

#include <QByteArray>

namespace BrokenBytes {

/// What each byte is set to: the ends of the signed and of the unsigned range.
constexpr unsigned char values[] = {0x00, 0x7F, 0x80, 0xFF};

}  // namespace BrokenBytes

/// Calls `check(const QByteArray&)` with a file cut at each byte, and with each byte
/// of it set to 00, 7F, 80 and FF. Five calls a byte: the file should be small.
template <class Check>
void forEachBrokenForm(const QByteArray& whole, Check check)
{
    for (int length = 0; length < whole.size(); ++length) {
        check(whole.left(length));
    }
    QByteArray broken = whole;
    for (int i = 0; i < whole.size(); ++i) {
        for (const unsigned char value : BrokenBytes::values) {
            broken[i] = char(value);
            check(qAsConst(broken));
        }
        broken[i] = whole[i];
    }
}
