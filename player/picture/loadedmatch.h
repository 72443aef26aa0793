#pragma once

#include "picture/look.h"

#include <QCoreApplication>

namespace Player {

/// Who plays where, by names as `Rules::findMainFile()` takes them; empty ones are chosen.
struct MatchRequest
{
    QString game;  ///< the folder, from which comes what has no path
    QStringList characters;
    QString stage;
    bool hasIntro = true;

    /// What the one character or stage that is named was copied from, by an editor with unsaved
    /// work; empty for no copy. The other character is not that one again.
    QString original{};
};

/// The same with what a copy was made of in its place.
MatchRequest withOriginal(const MatchRequest& request);

/// What a file was copied from, for one that lies with the copy; any other file itself.
QString originalOf(const MatchRequest& request, const QString& file);

/// All that a match is made of.
struct LoadedMatch
{
    Q_DECLARE_TR_FUNCTIONS(Player::LoadedMatch)

public:
    Rules::Game game;
    FighterLook looks[2];
    StageLook stage;
    QStringList notes;  ///< what was passed over, a line each for the person
    QStringList files;  ///< all that was read, as absolute paths

    /// A game without a stage is played on a bare one. Files outside of the game, such as the
    /// copies that an editor makes, have their own folder around them. False, with `error`, if a
    /// main file cannot be read.
    bool load(const MatchRequest& request, QString* error);

private:
    bool loadFighter(const MatchRequest& request, int index, QString* error);
    bool loadStage(const MatchRequest& request, QString* error);
    void addFiles(const QStringList& paths);
};

}  // namespace Player
