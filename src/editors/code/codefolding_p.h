#pragma once

#include <QTextBlock>

namespace Zorv {

/// Folding on the blocks of a document. Whoever calls these tells the layout
/// afterwards.
namespace CodeFolding {

/// The level of a line; 0 without data.
int indent(const QTextBlock& block);

/// True if the line has something below it that can be folded.
bool isHead(const QTextBlock& block);

/// Folds or unfolds what stands below a head; nothing for another line.
void toggle(const QTextBlock& block);

void foldAll(const QTextDocument* document);
void unfoldAll(const QTextDocument* document);

/// Unfolds the heads that hide a line.
void reveal(const QTextBlock& block);

}  // namespace CodeFolding

}  // namespace Zorv
