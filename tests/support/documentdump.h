#pragma once

#include <QStringList>

namespace Zorv {
class CodeDocument;
}

/// Chain and tree of a document in any grammar, as lines to compare. Orders count.
QStringList nodesOf(const Zorv::CodeDocument& document);

/// Everything that follows from the text: these, the messages, the folding levels.
QStringList dumpOf(const Zorv::CodeDocument& document);

/// The first line in which two dumps differ, as "found ..., expected ..."; empty for none.
QString firstDifference(const QStringList& found, const QStringList& expected);
