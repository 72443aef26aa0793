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

/// Draws the head-up display of a match: life, power, rounds, time and the winner. Its layout is
/// 640 by 360, scaled to the size of the window.
class Hud
{
    Q_DECLARE_TR_FUNCTIONS(Player::Hud)

public:
    static constexpr int Width = 640;
    static constexpr int Height = 360;

    Hud();

    /// The name of a character. If no font on this computer has its letters, the name of its file.
    QString readableName(const Rules::FighterData& data) const;

    void paint(QPainter* painter, const Rules::Game& game, const Rules::State& state) const;

    /// A page of lines with a title, on top of everything. Columns are separated by tabs.
    void paintPage(QPainter* painter, const QString& title, const QStringList& lines) const;

    /// Shows some lines above the lower edge, and the number of the others.
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
