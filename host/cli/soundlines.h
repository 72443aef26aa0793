#pragma once

#include "operations/media/soundwork.h"

#include <QStringList>

class QJsonObject;

namespace Family {
struct AssetId;
}  // namespace Family

namespace Cli {

struct Invocation;

/// The form of a sound as all commands print it: channels, bits, rate, frames, seconds.
QStringList columnsOf(const Zorv::SampleInfo& info);
QJsonObject objectOf(const Zorv::SampleInfo& info);

/// Adds which sound of a file it is.
void addPlace(QJsonObject* object, int row, Family::AssetId id);

/// How much of WAV files is read.
Operations::SoundExtent extentOf(const Invocation& invocation);

/// As `tell()`; and how to get all of a file of which a part was read.
int tellOfParts(const Operations::MediaResult& result);

}  // namespace Cli
