#pragma once

#include <QVector>

namespace Family {
class SpriteCollection;
}

namespace Cli {

struct Invocation;

/// The rows of the palettes selected by `--select`. Prints an error and returns none if nothing
/// matches, or if there are several palettes and none was selected.
QVector<int> chosenPalettes(const Family::SpriteCollection& sprites, const Invocation& invocation);

}  // namespace Cli
