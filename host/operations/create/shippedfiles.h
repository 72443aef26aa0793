#pragma once

#include <QString>

namespace Operations {

/// The folder of the shipped sample game; empty if it is not installed.
QString sampleGame();

/// A page of the shipped documentation, such as "first-character.md"; empty if it is not installed.
QString documentationPage(const QString& name);

/// Copies the sample game to a folder where the user can change it, completely or not at all.
/// Returns an error message for the user, or nothing on success. Does nothing if the folder already
/// holds a game.
QString copySample(const QString& folder);

}  // namespace Operations
