#pragma once

#include "operations/media/soundwork.h"

#include <QStringList>

class QJsonObject;

namespace Family {
struct AssetId;
}  // namespace Family

namespace Cli {

struct Invocation;

/// The format of a sound as all commands print it: channels, bits, rate, frames, seconds.
QStringList columnsOf(const Zorv::SampleInfo& info);
QJsonObject objectOf(const Zorv::SampleInfo& info);

/// Adds the row and the identifier of a sound.
void addPlace(QJsonObject* object, int row, Family::AssetId id);

/// How much of WAV files to read.
Operations::SoundExtent extentOf(const Invocation& invocation);

/// Like `tell()`, plus a hint how to read all of a file that was read only partly.
int tellOfParts(const Operations::MediaResult& result);

}  // namespace Cli
