#pragma once

#include <functional>

class QString;

namespace Family {
class FamilyDocument;
}

namespace Cli {

struct Invocation;
class Output;

/// Edits the document; false, with `error`, if that fails.
using Edit = std::function<bool(Family::FamilyDocument* document, QString* error)>;

/// A second file that an edit changes. It is written before the document. If the document then
/// cannot be written, the second file is restored.
struct Companion
{
    std::function<int()> save;  ///< returns the status
    std::function<void()> takeBack;
};

/// Opens the file named by the first operand, edits it, and saves it if its text has changed.
/// Changes by other programs meanwhile are detected. With `--dry-run` it prints the difference
/// instead. Returns the exit status. `edit` may be called several times.
int editFile(const Invocation& invocation, Output& output, const Edit& edit,
             const Companion& companion = {});

/// Like `editFile()`, for edits of whole animations: with `--leave-comments` the comments above
/// them stay where they are.
int arrangeFile(const Invocation& invocation, Output& output, const Edit& edit,
                const Companion& companion = {});

/// Like `editFile()`, but only reads the document.
int readFile(const Invocation& invocation, const Edit& look);

}  // namespace Cli
