#pragma once

#include <QString>

namespace Operations {

/// The folder of the sample game that comes with the program; empty if it is not there.
QString sampleGame();

/// A page of the documentation that comes with the program, as in "first-character.md"; empty if it
/// is not there.
QString documentationPage(const QString& name);

/// Copies the sample game to a folder, where it can be changed. The copy is there whole or not at
/// all. Gives what is wrong, for the person, or nothing; nothing is done if a game is there.
QString copySample(const QString& folder);

}  // namespace Operations
