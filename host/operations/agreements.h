#pragma once

class QSettings;

namespace Family {
class GameProgram;
}  // namespace Family

namespace Operations {

/// What the person has said to the program of a game folder.
enum class Agreement {
    None,
    Outdated,  ///< to another content of the file
    Given
};

Agreement agreementTo(const Family::GameProgram& program, QSettings& settings);

/// Keeps the agreement in the settings, where no game folder reaches. False if it could not be
/// stored.
bool agreeTo(const Family::GameProgram& program, QSettings& settings);

/// As long as it lives, the program is the one that `ParentProject::run()` starts for its game. It
/// is looked at once more right before that, and not started if it has changed.
class NamedProgram
{
public:
    /// A program that is not there names none.
    explicit NamedProgram(const Family::GameProgram& program);
    ~NamedProgram();

private:
    NamedProgram(const NamedProgram&) = delete;
    NamedProgram& operator=(const NamedProgram&) = delete;
};

}  // namespace Operations
