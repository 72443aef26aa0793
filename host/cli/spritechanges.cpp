#include "cli/cli.h"
#include "cli/command.h"
#include "cli/results.h"
#include "cli/spriteediting.h"
#include "operations/media/spriteedits.h"
#include "operations/media/spriteexport.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace Cli {

namespace {

using Operations::AxisBase;
using Operations::MediaResult;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// An edit of the sprites in these rows.
using SpriteEdit = std::function<MediaResult(Family::SpriteCollection*, const QVector<int>& rows)>;

/// Edits the selected sprites of the first operand.
int editSprites(const Invocation& invocation, const SpriteEdit& edit)
{
    return editSpriteFile(invocation.operands.first(), OpenSprites::There, [&](auto* sprites) {
        const QVector<int> rows = Operations::selectedRows(*sprites, invocation.selection);
        return rows.isEmpty() ? notDone(Text::tr("There is no such sprite."))
                              : tell(edit(sprites, rows));
    });
}

bool readOffset(const QString& text, QPoint* offset)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*([+-]?\\d{1,5})\\s*,\\s*([+-]?\\d{1,5})\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    *offset = {match.captured(1).toInt(), match.captured(2).toInt()};
    return match.hasMatch();
}

bool readNumbering(const QString& text, Operations::Renumbering* renumbering)
{
    static const QRegularExpression form(QStringLiteral("^([+-]?)(\\d{1,5})(?:,(\\d{1,5}))?$"));
    const QRegularExpressionMatch match = form.match(text);
    renumbering->isShift = !match.captured(1).isEmpty();
    renumbering->group = (match.captured(1) + match.captured(2)).toInt();
    renumbering->number = match.captured(3).isEmpty() ? -1 : match.captured(3).toInt();
    return match.hasMatch();
}

}  // namespace

int setSpriteAxes(const Invocation& invocation, Output&)
{
    const QString& place = invocation.operands.at(1);
    AxisBase base = AxisBase::TopLeft;
    QPoint offset;
    const bool isPair = invocation.operands.size() == 2 && readOffset(place, &offset);
    if (!isPair && !Operations::readAxisBase(place, &base)) {
        return wrongUsage(Text::tr("Expected a place such as 'bottom', 'top-left' or 'current', or "
                                   "two numbers such as 32,96; found '%1'.")
                              .arg(place));
    }
    if (invocation.operands.size() > 2 && !readOffset(invocation.operands.at(2), &offset)) {
        return wrongUsage(Text::tr("Expected two numbers such as 32,96; found '%1'.")
                              .arg(invocation.operands.at(2)));
    }
    return editSprites(invocation, [&](auto* sprites, const QVector<int>& rows) {
        return Operations::setAxes(sprites, rows, base, offset);
    });
}

int renumberSprites(const Invocation& invocation, Output&)
{
    Operations::Renumbering renumbering;
    if (!readNumbering(invocation.operands.at(1), &renumbering)) {
        return wrongUsage(Text::tr("Expected a group such as 300, a group and number such as "
                                   "300,0, or a shift such as +100; found '%1'.")
                              .arg(invocation.operands.at(1)));
    }
    return editSprites(invocation, [&](auto* sprites, const QVector<int>& rows) {
        return Operations::renumberSprites(sprites, rows, renumbering);
    });
}

int recolorSprites(const Invocation& invocation, Output&)
{
    const auto keep =
        invocation.adapts ? Operations::PixelsKeep::Looks : Operations::PixelsKeep::Indices;
    return editSprites(invocation, [&](auto* sprites, const QVector<int>& rows) {
        return Operations::recolorSprites(sprites, rows, invocation.operands.at(1), keep);
    });
}

}  // namespace Cli
