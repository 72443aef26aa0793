#pragma once

#include <functional>

class QString;

namespace Family {
class FamilyDocument;
}

namespace Cli {

struct Invocation;
class Output;

/// Edits the document; false, with the reason, if it cannot.
using Edit = std::function<bool(Family::FamilyDocument* document, QString* error)>;

/// Another file that an edit changes. It is written in front of the document, and taken back if
/// that cannot be written then.
struct Companion
{
    std::function<int()> save;  ///< gives the status
    std::function<void()> takeBack;
};

/// Opens the file that is the first operand, edits it, and saves it if its text
/// has changed, as one beside other programs; with `--dry-run` it prints the difference
/// instead. Gives the exit status. `edit` may be called several times.
int editFile(const Invocation& invocation, Output& output, const Edit& edit,
             const Companion& companion = {});

/// As `editFile()`, for what is done with animations: with `--leave-comments` the comments above
/// them stay.
int arrangeFile(const Invocation& invocation, Output& output, const Edit& edit,
                const Companion& companion = {});

/// As `editFile()`, but only looks at the document.
int readFile(const Invocation& invocation, const Edit& look);

}  // namespace Cli
