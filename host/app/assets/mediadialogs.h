#pragma once

class QString;

namespace Operations {
struct MediaResult;
}

namespace App {

/// Tells how a piece of work ended: what was done in the status bar, what was not in a box.
void tellResult(const QString& title, const QString& done, const Operations::MediaResult& result);

}  // namespace App
