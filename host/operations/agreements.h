#pragma once

class QSettings;

namespace Family {
class GameProgram;
}  // namespace Family

namespace Operations {

/// The user's consent to run the program that a game folder names.
enum class Agreement {
    None,
    Outdated,  ///< given, but the file has changed since
    Given
};

Agreement agreementTo(const Family::GameProgram& program, QSettings& settings);

/// Stores the consent in the settings, which no game folder can write to. False if that failed.
bool agreeTo(const Family::GameProgram& program, QSettings& settings);

/// While this object lives, `ParentProject::run()` starts the program for its game. The file is
/// checked once more right before the start. If it has changed, the program is not started.
class NamedProgram
{
public:
    /// A program that does not exist counts as none.
    explicit NamedProgram(const Family::GameProgram& program);
    ~NamedProgram();

private:
    NamedProgram(const NamedProgram&) = delete;
    NamedProgram& operator=(const NamedProgram&) = delete;
};

}  // namespace Operations
