#pragma once

#include <QByteArray>

namespace Family {

/// Packs samples into the blocks of a sound file (docs/formats.md).
QByteArray deflated(const QByteArray& samples);

/// Unpacks blocks that hold `size` bytes together; empty if they do not. Memory is taken for
/// bytes that are there, not for those that are declared.
QByteArray inflated(const QByteArray& blocks, qint64 size);

}  // namespace Family
