#pragma once

#include <QTextBlock>

namespace Zorv {

/// Folds and unfolds blocks of a document. The caller must update the layout afterwards. The
/// functions with a bool return false if they changed nothing.
namespace CodeFolding {

/// The folding level of a line; 0 without data.
int indent(const QTextBlock& block);

/// True if the lines below it can be folded.
bool isHead(const QTextBlock& block);

/// True if the next line is hidden.
bool hides(const QTextBlock& block);

/// The nearest visible line above; invalid if there is none. Logarithmic time.
QTextBlock visibleAbove(const QTextBlock& block);

/// Folds or unfolds the lines below a head; does nothing for other lines.
void toggle(const QTextBlock& block);

void foldAll(const QTextDocument* document);
void unfoldAll(const QTextDocument* document);

/// Unfolds the heads that hide a line.
bool reveal(const QTextBlock& block);

/// Shows the lines that a visible line hides, except those hidden by folded heads among them.
bool unfold(const QTextBlock& block);

/// Repairs the hidden lines below a visible line: shows those that its fold does not cover, which
/// no user could unfold. Logarithmic time if there is nothing to show.
bool mend(const QTextBlock& block);

}  // namespace CodeFolding

}  // namespace Zorv
