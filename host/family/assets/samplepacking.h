#pragma once

#include <QByteArray>

namespace Family {

/// Packs samples into the blocks of a sound file (docs/formats.md).
QByteArray deflated(const QByteArray& samples);

/// Unpacks blocks that contain `size` bytes in total; empty if they do not. Allocates memory only
/// for bytes that exist, not for the declared size.
QByteArray inflated(const QByteArray& blocks, qint64 size);

}  // namespace Family
