#include "operations/frameedits.h"

#include "family/familyanimations.h"
#include "family/nodes/animationnode.h"
#include "operations/animationedits.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace Operations {

using Family::FamilyAnimations;
using Zorv::Alignment;
using Zorv::FramePlace;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::FrameEdits)
};

constexpr int Least = -32768;
constexpr int Most = 32767;

}  // namespace

bool readAlignment(const QString& mode, const QString& numbers, Alignment* alignment,
                   QString* error)
{
    static const QStringList modes{QStringLiteral("axis"), QStringLiteral("boxes"),
                                   QStringLiteral("top-left"), QStringLiteral("bottom-right"),
                                   QStringLiteral("scale")};
    static const QRegularExpression pair(QStringLiteral("^\\s*(-?\\d{1,5})\\s*,\\s*(-?\\d{1,5})"
                                                        "\\s*$"));
    const QRegularExpressionMatch match = pair.match(numbers);
    const int row = modes.indexOf(mode);
    if (row < 0) {
        *error =
            Text::tr("Expected one of %1; found '%2'.").arg(modes.join(QLatin1String(", ")), mode);
        return false;
    }
    *alignment = {Alignment::Mode(row), match.captured(1).toInt(), match.captured(2).toInt()};
    const int least = row == Alignment::ScaleBoxes ? 0 : Least;
    const bool isWithin =
        qMin(alignment->x, alignment->y) >= least && qMax(alignment->x, alignment->y) <= Most;
    if (!match.hasMatch() || !isWithin) {
        *error = Text::tr("Expected two numbers from %1 to %2, such as 4,-2; found '%3'.")
                     .arg(QString::number(least), QString::number(Most), numbers);
        return false;
    }
    return true;
}

bool alignAnimations(FamilyAnimations* list, const QVector<int>& indexes,
                     const Alignment& alignment, QString* error)
{
    const int refused = Zorv::align(list, indexes, alignment).refused;
    if (refused > 0) {
        *error = alignment.mode == Alignment::OffsetAxis
                     ? Text::tr("%n offset(s) would be out of the range from %1 to %2.", nullptr,
                                refused)
                           .arg(QString::number(Least), QString::number(Most))
                     : Text::tr("%n contact box(es) would be out of the range from %1 to %2.",
                                nullptr, refused)
                           .arg(QString::number(Least), QString::number(Most));
    }
    return refused == 0;
}

QVector<FramePlace> findFrames(const FamilyAnimations* list, const QString& reference,
                               QString* error)
{
    const int slash = reference.indexOf(QLatin1Char('/'));
    const int animation = findAnimation(list, reference.left(slash), error);
    if (animation < 0) {
        return {};
    }
    const QVector<FramePlace> all = Zorv::framesOf(list, animation);
    if (all.isEmpty()) {
        *error = Text::tr("The animation '%1' has no frame.").arg(reference.left(slash));
        return {};
    }
    bool isNumber = false;
    const int frame = reference.midRef(slash + 1).toInt(&isNumber);
    if (slash >= 0 && (!isNumber || frame < 0 || frame >= all.size())) {
        *error = Text::tr("There is no frame '%1'. Expected one from %2/0 to %2/%3.")
                     .arg(reference, reference.left(slash), QString::number(all.size() - 1));
        return {};
    }
    return slash < 0 ? all : QVector<FramePlace>{all.at(frame)};
}

}  // namespace Operations
