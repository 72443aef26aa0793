#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/assets/spritecollection.h"
#include "family/grammar/linereader.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/frameedit.h"
#include "family/stage/framecomposer.h"
#include "operations/diff/redrawnsprites.h"
#include "operations/media/animationrender.h"
#include "operations/media/diffpicture.h"
#include "operations/media/imagefiles.h"
#include "operations/media/mediaresult.h"
#include "operations/media/openanimation.h"
#include "operations/media/outputfiles.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <iterator>

namespace Cli {

namespace {

using Family::FrameData;
using Operations::BoxDiff;
using Operations::DiffKind;
using Operations::FrameDiff;
using Operations::FrameRecord;
using Operations::OptionDiff;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// Both animations and their differences.
struct Comparison
{
    const Operations::OpenAnimation& before;
    const Operations::OpenAnimation& after;
    QVector<FrameRecord> oldFrames;
    QVector<FrameRecord> newFrames;
    QVector<FrameDiff> frames;

    Comparison(const Operations::OpenAnimation& oldOne, const Operations::OpenAnimation& newOne)
        : before(oldOne), after(newOne), oldFrames(Operations::frameRecords(oldOne.animation())),
          newFrames(Operations::frameRecords(newOne.animation())),
          frames(Operations::diffFrames(oldFrames, newFrames))
    {
        if (before.sprites() && after.sprites()) {
            Operations::markRedrawn(oldFrames, *before.sprites(), newFrames, *after.sprites(),
                                    &frames);
        }
    }

    bool isRenamed() const { return before.animation().name() != after.animation().name(); }

    bool hasDifferentFrames() const
    {
        return std::any_of(frames.begin(), frames.end(),
                           [](const FrameDiff& frame) { return frame.kind != DiffKind::Same; });
    }
};

QString wordOf(DiffKind kind, bool isBox)
{
    switch (kind) {
    case DiffKind::Added:
        return QStringLiteral("added");
    case DiffKind::Removed:
        return QStringLiteral("removed");
    default:
        return isBox ? QStringLiteral("moved") : QStringLiteral("changed");
    }
}

QString frameName(int frame)
{
    return frame < 0 ? QStringLiteral("-") : QStringLiteral("frame:%1").arg(frame);
}

QString kindOf(const BoxDiff& box)
{
    return box.isAttack ? QStringLiteral("attack") : QStringLiteral("body");
}

QString boxName(int frame, const BoxDiff& box, int place)
{
    return place < 0 ? QStringLiteral("-")
                     : QStringLiteral("%1/%2:%3")
                           .arg(frameName(frame), kindOf(box), QString::number(place));
}

QString rectText(const QRect& rect)
{
    return QStringLiteral("%1,%2, %3,%4")
        .arg(QString::number(rect.left()), QString::number(rect.top()),
             QString::number(rect.right()), QString::number(rect.bottom()));
}

QString arrow(const QString& before, const QString& after)
{
    return before + QLatin1String(" -> ") + after;
}

/// A frame as text: its sprite, the options that differ from their defaults, and its boxes.
QString frameText(const FrameRecord& frame)
{
    QString text = QStringLiteral("%1,%2").arg(QString::number(frame.data.group),
                                               QString::number(frame.data.number));
    const FrameData plain;
    for (int option = 0; option < Family::FrameOptionCount; ++option) {
        const QString value = Family::optionText(option, frame.data);
        if (value != Family::optionText(option, plain)) {
            text += QStringLiteral("; %1 %2").arg(Family::frameOption(option).name, value);
        }
    }
    return text + QStringLiteral("; boxes %1").arg(frame.boxes.size());
}

QString frameFacts(const Comparison& comparison, const FrameDiff& frame)
{
    if (frame.kind == DiffKind::Added) {
        return frameText(comparison.newFrames[frame.newFrame]);
    }
    if (frame.kind == DiffKind::Removed) {
        return frameText(comparison.oldFrames[frame.oldFrame]);
    }
    QStringList facts;
    for (const OptionDiff& option : frame.options) {
        facts.append(option.name + QLatin1Char(' ') + arrow(option.oldText, option.newText));
    }
    if (frame.isRedrawn) {
        facts.append(QStringLiteral("picture"));
    }
    if (!frame.boxes.isEmpty()) {
        facts.append(QStringLiteral("boxes"));
    }
    return facts.join(QLatin1String("; "));
}

void printLines(const Comparison& comparison, Output& output)
{
    if (comparison.isRenamed()) {
        const QString what = QStringLiteral("animation");
        output.writeLine({what, what, wordOf(DiffKind::Changed, false),
                          QStringLiteral("name ") + arrow(comparison.before.animation().name(),
                                                          comparison.after.animation().name())});
    }
    for (const FrameDiff& frame : comparison.frames) {
        if (frame.kind == DiffKind::Same) {
            continue;
        }
        output.writeLine({frameName(frame.oldFrame), frameName(frame.newFrame),
                          wordOf(frame.kind, false), frameFacts(comparison, frame)});
        for (const BoxDiff& box : frame.boxes) {
            const QString facts = box.kind == DiffKind::Added ? rectText(box.newRect)
                                  : box.kind == DiffKind::Removed
                                      ? rectText(box.oldRect)
                                      : arrow(rectText(box.oldRect), rectText(box.newRect));
            output.writeLine({boxName(frame.oldFrame, box, box.oldPlace),
                              boxName(frame.newFrame, box, box.newPlace), wordOf(box.kind, true),
                              facts});
        }
    }
}

QJsonArray arrayOf(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

/// Adds the values of both sides, as "old" and "new".
template <class Value>
void insertBoth(QJsonObject* object, int oldPlace, const Value& before, int newPlace,
                const Value& after)
{
    if (oldPlace >= 0) {
        object->insert(QStringLiteral("old"), before);
    }
    if (newPlace >= 0) {
        object->insert(QStringLiteral("new"), after);
    }
}

QJsonObject objectOf(const BoxDiff& box)
{
    QJsonObject object{{QStringLiteral("kind"), kindOf(box)},
                       {QStringLiteral("change"), wordOf(box.kind, true)}};
    insertBoth(&object, box.oldPlace, arrayOf(box.oldRect), box.newPlace, arrayOf(box.newRect));
    return object;
}

QJsonObject objectOf(const Comparison& comparison, const FrameDiff& frame)
{
    QJsonObject object{{QStringLiteral("change"), wordOf(frame.kind, false)}};
    insertBoth(&object, frame.oldFrame, frame.oldFrame, frame.newFrame, frame.newFrame);
    if (frame.kind != DiffKind::Changed) {
        object.insert(QStringLiteral("frame"), frameFacts(comparison, frame));
        return object;
    }
    QJsonObject options;
    for (const OptionDiff& option : frame.options) {
        options.insert(option.name, QJsonArray{option.oldText, option.newText});
    }
    QJsonArray boxes;
    for (const BoxDiff& box : frame.boxes) {
        boxes.append(objectOf(box));
    }
    object.insert(QStringLiteral("options"), options);
    object.insert(QStringLiteral("boxes"), boxes);
    object.insert(QStringLiteral("picture"), frame.isRedrawn);
    return object;
}

void printObjects(const Comparison& comparison, Output& output)
{
    JsonList list(output);
    if (comparison.isRenamed()) {
        list.add({{QStringLiteral("change"), wordOf(DiffKind::Changed, false)},
                  {QStringLiteral("name"), QJsonArray{comparison.before.animation().name(),
                                                      comparison.after.animation().name()}}});
    }
    for (const FrameDiff& frame : comparison.frames) {
        if (frame.kind != DiffKind::Same) {
            list.add(objectOf(comparison, frame));
        }
    }
}

Operations::Outcome writePicture(const Comparison& comparison, const Invocation& invocation,
                                 const Operations::OutputFiles& outputs)
{
    Family::FrameStyle style = Operations::stageStyle();
    style.zoom = float(invocation.zoom);
    style.parts = Family::FrameStyle::Sprite | Family::FrameStyle::Boxes;
    style.parts.setFlag(Family::FrameStyle::Axis, invocation.showsAxis);
    Family::FrameComposer before(comparison.before.sprites(), style);
    Family::FrameComposer after(comparison.after.sprites(), style);
    QStringList notes = comparison.before.notes() + comparison.after.notes();
    QString error;
    const QImage picture =
        Operations::diffPicture(comparison.frames, {&comparison.before.animation(), &before},
                                {&comparison.after.animation(), &after}, &notes, &error);
    notes.removeDuplicates();
    for (const QString& note : qAsConst(notes)) {
        complain(note);
    }
    return picture.isNull() ? Operations::Outcome(error)
                            : Operations::writeImage(picture, outputs, 0);
}

}  // namespace

int diffAnimations(const Invocation& invocation, Output& output)
{
    const bool isDrawn = !invocation.output.place.isEmpty();
    Operations::OutputFiles outputs;
    Operations::MediaResult refusal;
    if (isDrawn && !outputs.plan({invocation.operands.at(2)}, invocation.output, "PNG", &refusal)) {
        return tell(refusal);
    }
    const auto open = [&](int operand) {
        return std::make_unique<Operations::OpenAnimation>(
            invocation.operands.at(operand), invocation.operands.at(2), invocation.sprites,
            Operations::OpenAnimation::OptionalSprites);
    };
    const auto before = open(0);
    const auto after = open(1);
    for (const auto* side : {before.get(), after.get()}) {
        if (!*side) {
            return notDone(side->errorString());
        }
    }
    const Comparison comparison(*before, *after);
    invocation.json ? printObjects(comparison, output) : printLines(comparison, output);
    if (isDrawn && comparison.hasDifferentFrames()) {
        Operations::MediaResult result;
        result.note(writePicture(comparison, invocation, outputs));
        if (tell(result) != Fine) {
            return NotDone;
        }
    }
    return comparison.hasDifferentFrames() || comparison.isRenamed() ? Different : Fine;
}

}  // namespace Cli
