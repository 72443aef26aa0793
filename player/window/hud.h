#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QRectF>
#include <QStringList>

class QPainter;

namespace Rules {
struct FighterData;
struct Game;
struct State;
}  // namespace Rules

namespace Player {

/// What is written and drawn above the picture of a match: life, power, rounds, the time, who has
/// won. It is laid out on 640 by 360, and scaled to whatever it is shown in.
class Hud
{
    Q_DECLARE_TR_FUNCTIONS(Player::Hud)

public:
    static constexpr int Width = 640;
    static constexpr int Height = 360;

    Hud();

    /// The name of a character; that of its file where no font of this computer has the letters.
    QString readableName(const Rules::FighterData& data) const;

    void paint(QPainter* painter, const Rules::Game& game, const Rules::State& state) const;

    /// A page of lines with a title, above all else. Tabs stand between columns.
    void paintPage(QPainter* painter, const QString& title, const QStringList& lines) const;

    /// Some lines above the lower edge, the rest as a number.
    void paintNotes(QPainter* painter, const QStringList& notes) const;

private:
    void paintSide(QPainter* painter, const Rules::Game& game, const Rules::State& state,
                   int index) const;
    QString announcement(const Rules::Game& game, const Rules::State& state) const;
    void paintText(QPainter* painter, const QRectF& area, int flags, const QString& text,
                   const QFont& font) const;

    QFont m_small;
    QFont m_usual;
    QFont m_large;
};

}  // namespace Player
