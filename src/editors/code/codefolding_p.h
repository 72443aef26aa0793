#pragma once

#include <QTextBlock>

namespace Zorv {

/// Folding on the blocks of a document. Whoever calls these tells the layout
/// afterwards; those that can find nothing to do give false then.
namespace CodeFolding {

/// The level of a line; 0 without data.
int indent(const QTextBlock& block);

/// True if the line has something below it that can be folded.
bool isHead(const QTextBlock& block);

/// True if the line is followed by hidden ones.
bool hides(const QTextBlock& block);

/// The nearest visible line above a line; invalid if there is none. Logarithmic.
QTextBlock visibleAbove(const QTextBlock& block);

/// Folds or unfolds what stands below a head; nothing for another line.
void toggle(const QTextBlock& block);

void foldAll(const QTextDocument* document);
void unfoldAll(const QTextDocument* document);

/// Unfolds the heads that hide a line.
bool reveal(const QTextBlock& block);

/// Shows all that a visible line hides, but what folded heads in it hide.
bool unfold(const QTextBlock& block);

/// Shows what is hidden below a visible line, but is not its to unfold. Logarithmic if there
/// is nothing to show.
bool mend(const QTextBlock& block);

}  // namespace CodeFolding

}  // namespace Zorv
