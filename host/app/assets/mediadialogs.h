#pragma once

class QString;

namespace Operations {
struct MediaResult;
}

namespace App {

/// Reports the result of an operation: successes in the status bar, failures in a message box.
void tellResult(const QString& title, const QString& done, const Operations::MediaResult& result);

}  // namespace App
