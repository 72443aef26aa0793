#pragma once

#include "picture/look.h"

#include <QCoreApplication>

namespace Player {

/// Who plays and where. Names are those of `Rules::findMainFile()`; empty ones are chosen
/// automatically.
struct MatchRequest
{
    QString game;  ///< the game folder, searched for names without a path
    QStringList characters;
    QString stage;
    bool hasIntro = true;

    /// Set if the named character or stage is an editor's copy with unsaved work: the original main
    /// file. Otherwise empty. The other fighter is then a different character.
    QString original{};
};

/// The same request with the original instead of the copy.
MatchRequest withOriginal(const MatchRequest& request);

/// The original of a file that belongs to the copy; any other file unchanged.
QString originalOf(const MatchRequest& request, const QString& file);

/// Everything that a match consists of.
struct LoadedMatch
{
    Q_DECLARE_TR_FUNCTIONS(Player::LoadedMatch)

public:
    Rules::Game game;
    FighterLook looks[2];
    StageLook stage;
    QStringList notes;  ///< what was skipped, one line each for the user
    QStringList files;  ///< absolute paths of all files that were read

    /// Loads the match. A game without a stage uses a bare one. For a file outside of the game,
    /// such as a copy by an editor, the folder around it is the root. False, with `error`, if a
    /// main file cannot be read.
    bool load(const MatchRequest& request, QString* error);

private:
    bool loadFighter(const MatchRequest& request, int index, QString* error);
    bool loadStage(const MatchRequest& request, QString* error);
    void addFiles(const QStringList& paths);
};

}  // namespace Player
