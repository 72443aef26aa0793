#include "script/script.h"

#include "rules/tick.h"

namespace Player {

using Rules::FighterState;
using Rules::State;

bool Script::read(const QString& text, QString* error)
{
    m_lines.clear();
    const QStringList lines = text.split(QLatin1Char('\n'));
    qint64 ticks = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QString content = lines.at(i).section(QLatin1Char('#'), 0, 0).simplified();
        Line line;
        if (content.isEmpty()) {
            continue;
        }
        if (!readLine(content, &line)) {
            *error = tr("Line %1: expected a number of ticks and what is held, as in '20 F+L -', "
                        "or 'places', 'life' or 'power' with two numbers; found '%2'.")
                         .arg(QString::number(i + 1), content);
            return false;
        }
        ticks += line.ticks;
        if (ticks > MostTicks) {
            *error = tr("Line %1: the script takes more than %2 ticks.")
                         .arg(QString::number(i + 1), QString::number(MostTicks));
            return false;
        }
        m_lines.append(line);
    }
    return true;
}

bool Script::readLine(const QString& text, Line* line) const
{
    static constexpr struct
    {
        const char* word;
        Line::Kind kind;
    } words[] = {{"places", Line::Places}, {"life", Line::Life}, {"power", Line::Power}};
    const QStringList parts = text.split(QLatin1Char(' '));
    for (const auto& word : words) {
        if (parts.first() == QLatin1String(word.word)) {
            bool isFirst = false;
            bool isSecond = false;
            line->kind = word.kind;
            line->numbers[0] = parts.value(1).toInt(&isFirst);
            line->numbers[1] = parts.value(2).toInt(&isSecond);
            return isFirst && isSecond && parts.size() == 3;
        }
    }
    bool isNumber = false;
    line->ticks = parts.first().toInt(&isNumber);
    return isNumber && line->ticks > 0 && parts.size() >= 2 && parts.size() <= 3 &&
           Family::readSigns(parts.at(1), &line->signs[0]) &&
           Family::readSigns(parts.value(2, QStringLiteral("-")), &line->signs[1]);
}

/// Values out of range are clamped.
void Script::set(const Rules::Game& game, const Line& line, State* state) const
{
    for (int i = 0; i < 2; ++i) {
        FighterState& fighter = state->fighters[i];
        const Rules::FighterData& data = game.fighters[i];
        if (line.kind == Line::Places) {
            fighter.x = qBound(game.stage.left, line.numbers[i], game.stage.right) * Rules::One;
        } else if (line.kind == Line::Life) {
            fighter.life = qBound(1, line.numbers[i], data.life);
        } else {
            fighter.power = qBound(0, line.numbers[i], data.power);
        }
    }
}

void Script::run(const Rules::Game& game, State* state,
                 const std::function<bool(const State&)>& see) const
{
    for (const Line& line : m_lines) {
        if (line.kind != Line::Hold) {
            set(game, line, state);
        }
        for (int tick = 0; tick < line.ticks; ++tick) {
            Rules::Inputs inputs;
            for (int i = 0; i < 2; ++i) {
                inputs.signs[i] = Rules::mirrored(line.signs[i], state->fighters[i].facing);
            }
            Rules::tick(game, inputs, state);
            if (!see(*state)) {
                return;
            }
        }
    }
}

}  // namespace Player
