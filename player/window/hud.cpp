#include "window/hud.h"

#include "rules/state.h"

#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace Player {

using Rules::FighterData;
using Rules::FighterState;
using Rules::Game;
using Rules::Phase;
using Rules::State;

namespace {

constexpr qreal Margin = 12;
constexpr qreal BarWidth = 270;
constexpr qreal LifeTop = 12;
constexpr qreal LifeHeight = 12;
constexpr qreal PowerHeight = 6;
constexpr int TicksASecond = 60;
constexpr int FightShownTicks = 60;
constexpr int MostNotes = 5;
constexpr int SecondColumn = 130;
constexpr int ColumnWidth = 60;

const QColor Frame(0, 0, 0, 200);
const QColor LifeLeft(0xf0, 0xc8, 0x30);
const QColor LifeLost(0x80, 0x20, 0x18);
const QColor PowerLeft(0x40, 0xa0, 0xff);
const QColor PowerLost(0x20, 0x28, 0x38);
const QColor Won(0xff, 0xe0, 0x60);
const QColor Veil(0, 0, 0, 190);

QFont fontOf(int pixels, QFont::Weight weight)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

/// A bar that empties from the outer side, so that both meet in the middle of the screen.
void paintBar(QPainter* painter, const QRectF& area, qreal share, int index, const QColor& left,
              const QColor& lost)
{
    painter->fillRect(area.adjusted(-1.5, -1.5, 1.5, 1.5), Frame);
    painter->fillRect(area, lost);
    QRectF full = area;
    full.setWidth(area.width() * qBound<qreal>(0, share, 1));
    if (index == 0) {
        full.moveRight(area.right());
    }
    painter->fillRect(full, left);
}

qreal shareOf(int part, int whole)
{
    return whole > 0 ? qreal(part) / whole : 0;
}

}  // namespace

Hud::Hud()
    : m_small(fontOf(9, QFont::Normal)), m_usual(fontOf(11, QFont::DemiBold)),
      m_large(fontOf(34, QFont::Bold))
{
}

QString Hud::readableName(const FighterData& data) const
{
    const QFontMetrics metrics(m_usual);
    const QVector<uint> letters = data.name.toUcs4();
    const bool isReadable = std::all_of(letters.cbegin(), letters.cend(), [&metrics](uint letter) {
        return !QChar::isLetterOrNumber(letter) || metrics.inFontUcs4(letter);
    });
    // A copy made by the editor has no suffix, but is in the folder of the character.
    const QFileInfo file(data.mainFile);
    return isReadable                ? data.name
           : file.suffix().isEmpty() ? file.dir().dirName()
                                     : file.completeBaseName();
}

/// Draws a dark outline to be readable on any background.
void Hud::paintText(QPainter* painter, const QRectF& area, int flags, const QString& text,
                    const QFont& font) const
{
    painter->setFont(font);
    painter->setPen(Qt::black);
    painter->drawText(area.translated(1, 1), flags, text);
    painter->setPen(Qt::white);
    painter->drawText(area, flags, text);
}

void Hud::paint(QPainter* painter, const Game& game, const State& state) const
{
    paintSide(painter, game, state, 0);
    paintSide(painter, game, state, 1);
    const int seconds = (state.clock + TicksASecond - 1) / TicksASecond;
    paintText(painter, QRectF(Width / 2 - 40, 6, 80, 26), Qt::AlignCenter,
              state.clock < 0 ? QString(QChar(0x221e)) : QString::number(seconds),
              fontOf(22, QFont::Bold));
    paintText(painter, QRectF(0, 110, Width, 60), Qt::AlignCenter, announcement(game, state),
              m_large);
}

void Hud::paintSide(QPainter* painter, const Game& game, const State& state, int index) const
{
    const FighterData& data = game.fighters[index];
    const FighterState& fighter = state.fighters[index];
    const qreal left = index == 0 ? Margin : Width - Margin - BarWidth;
    const QRectF life(left, LifeTop, BarWidth, LifeHeight);
    const QRectF power(left, Height - 18, BarWidth, PowerHeight);
    paintBar(painter, life, shareOf(fighter.life, data.life), index, LifeLeft, LifeLost);
    paintBar(painter, power, shareOf(fighter.power, data.power), index, PowerLeft, PowerLost);
    const int side = index == 0 ? Qt::AlignLeft : Qt::AlignRight;
    const QRectF names(left, LifeTop + LifeHeight + 3, BarWidth, 16);
    paintText(painter, names, side | Qt::AlignTop, data.name, m_usual);
    for (int i = 0; i < game.stage.rounds; ++i) {
        const qreal x = index == 0 ? life.right() - 5 - i * 11 : life.left() + 5 + i * 11;
        painter->setPen(Frame);
        painter->setBrush(i < fighter.wins ? Won : PowerLost);
        painter->drawEllipse(QPointF(x, names.center().y()), 4, 4);
    }
    // The combo counter belongs to the attacker, the count is stored with the victim.
    const FighterState& other = state.fighters[1 - index];
    if (other.combo > 1) {
        paintText(painter, QRectF(left, 60, BarWidth, 40), side | Qt::AlignTop,
                  tr("%n hits", nullptr, other.combo) + QLatin1Char('\n') +
                      tr("%n damage", nullptr, other.comboDamage),
                  m_usual);
    }
}

QString Hud::announcement(const Game& game, const State& state) const
{
    const auto winner = [&] { return game.fighters[state.winner].name; };
    switch (state.phase) {
    case Phase::Fight:
        return state.phaseTick < FightShownTicks ? tr("Round %1").arg(state.round + 1) : QString();
    case Phase::RoundOver:
        return state.winner < 0 ? tr("Draw") : state.isByTime != 0 ? tr("Time over") : tr("K.O.");
    case Phase::Victory:
        return state.winner < 0 ? tr("Draw") : tr("%1 wins").arg(winner());
    case Phase::MatchOver:
        return state.winner < 0 ? tr("A drawn match") : tr("%1 wins the match").arg(winner());
    default:
        return {};
    }
}

void Hud::paintPage(QPainter* painter, const QString& title, const QStringList& lines) const
{
    const QRectF page(70, 40, Width - 140, Height - 70);
    // Many lines are set closer together.
    const qreal room = page.height() - 36;
    const qreal lineHeight = qBound<qreal>(11, room / qMax(lines.size(), 1), 14);
    painter->fillRect(page, Veil);
    paintText(painter, page.adjusted(14, 8, -14, 0), Qt::AlignLeft | Qt::AlignTop, title, m_usual);
    const int most = int(room / lineHeight + 0.01);
    for (int i = 0; i < qMin(lines.size(), most); ++i) {
        const QRectF area(page.left() + 14, page.top() + 28 + i * lineHeight, page.width() - 28,
                          lineHeight);
        const QStringList columns = lines.at(i).split(QLatin1Char('\t'));
        for (int column = 0; column < columns.size(); ++column) {
            const int left = column == 0 ? 0 : SecondColumn + (column - 1) * ColumnWidth;
            paintText(painter, area.adjusted(left, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      columns.at(column), m_small);
        }
    }
}

void Hud::paintNotes(QPainter* painter, const QStringList& notes) const
{
    QStringList shown = notes.mid(0, MostNotes);
    if (notes.size() > MostNotes) {
        shown.append(tr("and %n more", nullptr, notes.size() - MostNotes));
    }
    if (shown.isEmpty()) {
        return;
    }
    const qreal height = 12.0 * shown.size() + 6;
    const QRectF area(0, Height - 26 - height, Width, height);
    painter->fillRect(area, Veil);
    paintText(painter, area.adjusted(Margin, 3, -Margin, -3), Qt::AlignLeft | Qt::AlignTop,
              shown.join(QLatin1Char('\n')), m_small);
}

}  // namespace Player
