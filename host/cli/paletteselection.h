#pragma once

#include <QVector>

namespace Family {
class SpriteCollection;
}

namespace Cli {

struct Invocation;

/// The rows of the palettes that `--select` means. None, and that is told, if there is none such,
/// or if there are several and nothing tells which one is meant.
QVector<int> chosenPalettes(const Family::SpriteCollection& sprites, const Invocation& invocation);

}  // namespace Cli
