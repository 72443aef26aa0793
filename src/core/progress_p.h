#pragma once

class QString;

namespace Zorv {

class ProgressReporter;

/// What a person sees of a piece of work of a known length, as long as the
/// object lives. Without a host nothing is shown.
class Progress
{
public:
    Progress(const QString& title, int maximum);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Another step is done. False once the person has given the work up.
    bool step();

    bool isCanceled() const { return m_isCanceled; }

private:
    ProgressReporter* m_reporter;
    int m_value = 0;
    bool m_isCanceled = false;
};

}  // namespace Zorv
