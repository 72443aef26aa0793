#include "operations/animationedits.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/nodes/animationnode.h"

#include <QCoreApplication>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace Operations {

using Family::AnimationNode;
using Family::FamilyAnimations;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AnimationEdits)
};

int placeOf(const QString& reference, int count, QString* error)
{
    bool isNumber = false;
    const int place = reference.midRef(1).toInt(&isNumber);
    if (isNumber && place >= 0 && place < count) {
        return place;
    }
    *error = count == 0 ? Text::tr("There is no animation in the file.")
                        : Text::tr("There is no animation '%1'. Expected a place from #0 to #%2.")
                              .arg(reference, QString::number(count - 1));
    return -1;
}

/// Separates a new part from the end of the text by an empty line.
QString gapFor(const QTextDocument& text)
{
    const QTextBlock last = text.lastBlock();
    const bool isLineEmpty = last.length() == 1;
    const bool isAboveEmpty = !last.previous().isValid() || last.previous().length() == 1;
    return !isLineEmpty ? QStringLiteral("\n\n") : !isAboveEmpty ? QStringLiteral("\n") : QString();
}

}  // namespace

int findAnimation(const FamilyAnimations* list, const QString& reference, QString* error)
{
    const QStringList all = animationIdentifiers(list);
    if (reference.startsWith(QLatin1Char('#'))) {
        return placeOf(reference, all.size(), error);
    }
    const int place = all.indexOf(reference);
    if (place < 0) {
        *error = Text::tr("There is no animation '%1'. %2")
                     .arg(reference, Family::nameHint(reference, all));
        return -1;
    }
    const int other = all.indexOf(reference, place + 1);
    if (other > 0) {
        *error =
            Text::tr("There are several animations '%1'. Name one by its place, '#%2' or '#%3'.")
                .arg(reference, QString::number(place), QString::number(other));
        return -1;
    }
    return place;
}

QString freeIdentifier(const FamilyAnimations* list, const QString& identifier)
{
    const QStringList all = animationIdentifiers(list);
    const QSet<QString> taken(all.begin(), all.end());
    bool isNumber = false;
    const qint64 start = identifier.toLongLong(&isNumber);
    // One more candidate than there are animations, so one of them is free.
    for (qint64 i = 1; i <= all.size() + 1; ++i) {
        const QString candidate = isNumber ? QString::number(start + i)
                                           : identifier + QLatin1Char('-') + QString::number(i + 1);
        if (!taken.contains(candidate)) {
            return candidate;
        }
    }
    return {};
}

QStringList animationIdentifiers(const FamilyAnimations* list)
{
    QStringList result;
    const QList<Zorv::AnimationCode*> animations = list->animations();
    for (const Zorv::AnimationCode* animation : animations) {
        result.append(static_cast<const AnimationNode*>(animation)->identifier());
    }
    return result;
}

QString nextAnimationNumber(const FamilyAnimations* list)
{
    qint64 highest = -1;
    const QStringList all = animationIdentifiers(list);
    for (const QString& identifier : all) {
        bool isNumber = false;
        const qint64 number = identifier.toLongLong(&isNumber);
        highest = isNumber ? std::max(highest, number) : highest;
    }
    return freeIdentifier(list, QString::number(highest));
}

QString animationNameFault(const QStringList& taken, const QString& identifier)
{
    if (!Family::isAnimationIdentifier(identifier)) {
        return Text::tr(
                   "'%1' cannot name an animation. Write a number, or a word of letters, digits, "
                   "'_' and '-'.")
            .arg(identifier);
    }
    return taken.contains(identifier)
               ? Text::tr("There is an animation '%1' already. Choose another name.")
                     .arg(identifier)
               : QString();
}

bool addAnimation(FamilyAnimations* list, const QString& identifier,
                  const QVector<NewFrame>& frames, QString* error)
{
    *error = frames.isEmpty() ? Text::tr("The animation would have no frame.")
                              : animationNameFault(animationIdentifiers(list), identifier);
    if (!error->isEmpty()) {
        return false;
    }
    Zorv::CodeDocument* document = list->document();
    QString text = gapFor(*document) + QStringLiteral("animation %1\n").arg(identifier);
    for (const NewFrame& frame : frames) {
        text += QStringLiteral("frame %1  delay %2\n")
                    .arg(frame.sprite.text(), QString::number(frame.ticks));
    }
    QTextCursor end(document);
    end.movePosition(QTextCursor::End);
    list->beginChange(Text::tr("Add animation"));
    document->insertOnCursor(text, end);
    list->endChange();
    return true;
}

QVector<int> ticksOf(const QVector<int>& milliseconds)
{
    constexpr int TicksPerSecond = 60;
    constexpr int Second = 1000;
    constexpr qint64 MostTicks = 32767;  // maximum of a frame
    QVector<int> ticks;
    qint64 sum = 0;
    qint64 end = 0;
    for (const int time : milliseconds) {
        sum += time;
        const qint64 own = (sum * TicksPerSecond * 2 + Second) / (2 * Second);
        const qint64 next = std::max(own, end + 1);
        ticks.append(int(std::min(next - end, MostTicks)));
        end = next;
    }
    return ticks;
}

bool duplicateAnimation(FamilyAnimations* list, int index, const QString& identifier,
                        QString* error)
{
    *error = animationNameFault(animationIdentifiers(list), identifier);
    if (!error->isEmpty()) {
        return false;
    }
    return list->duplicateAnimation(index, identifier);
}

void removeAnimations(FamilyAnimations* list, QVector<int> indexes)
{
    std::sort(indexes.begin(), indexes.end(), std::greater<int>());
    indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
    list->beginChange(Text::tr("Remove animations"));
    for (int index : qAsConst(indexes)) {
        if (index >= 0 && index < list->count()) {
            list->remove(unsigned(index));
        }
    }
    list->endChange();
}

}  // namespace Operations
