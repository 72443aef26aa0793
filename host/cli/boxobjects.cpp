#include "cli/boxlisting.h"

#include "cli/output.h"
#include "family/nodes/animationnode.h"
#include "operations/boxes/boxreport.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Cli {

namespace {

using Operations::ActiveTime;
using Operations::AnimationBoxReport;
using Operations::BoxesInFrame;
using Operations::BoxInFrame;
using Operations::FrameBoxReport;

QJsonObject objectOf(const BoxInFrame& box)
{
    QJsonObject object{
        {QStringLiteral("left"), box.rect.left()},   {QStringLiteral("top"), box.rect.top()},
        {QStringLiteral("right"), box.rect.right()}, {QStringLiteral("bottom"), box.rect.bottom()},
        {QStringLiteral("line"), box.line + 1},      {QStringLiteral("stays"), box.stays}};
    if (box.inBody >= 0) {
        object.insert(QStringLiteral("inBody"), box.inBody);
    }
    if (box.inNextBody >= 0) {
        object.insert(QStringLiteral("inNextBody"), box.inNextBody);
    }
    return object;
}

QJsonArray arrayOf(const BoxesInFrame& list)
{
    QJsonArray array;
    for (const BoxInFrame& box : list.boxes) {
        array.append(objectOf(box));
    }
    return array;
}

QJsonArray arrayOf(const QVector<int>& numbers)
{
    QJsonArray array;
    for (const int number : numbers) {
        array.append(number);
    }
    return array;
}

QJsonArray arrayOf(const QVector<ActiveTime>& times)
{
    QJsonArray array;
    for (const ActiveTime& time : times) {
        array.append(QJsonObject{{QStringLiteral("firstFrame"), time.firstFrame},
                                 {QStringLiteral("lastFrame"), time.lastFrame},
                                 {QStringLiteral("tick"), time.tick},
                                 {QStringLiteral("ticks"), time.ticks},
                                 {QStringLiteral("reach"), time.reach}});
    }
    return array;
}

QJsonObject objectOf(int index, const FrameBoxReport& frame)
{
    QJsonObject object{{QStringLiteral("frame"), index},
                       {QStringLiteral("line"), frame.line + 1},
                       {QStringLiteral("group"), frame.group},
                       {QStringLiteral("number"), frame.number},
                       {QStringLiteral("tick"), frame.tick},
                       {QStringLiteral("delay"), frame.delay},
                       {QStringLiteral("shown"), frame.isShown},
                       {QStringLiteral("attack"), arrayOf(frame.attack)},
                       {QStringLiteral("body"), arrayOf(frame.body)},
                       {QStringLiteral("attackArea"), frame.attack.area},
                       {QStringLiteral("bodyArea"), frame.body.area},
                       {QStringLiteral("attackInBody"), frame.attackInBody}};
    if (frame.next >= 0) {
        object.insert(QStringLiteral("next"),
                      QJsonObject{{QStringLiteral("frame"), frame.next},
                                  {QStringLiteral("attackKept"), frame.attack.kept},
                                  {QStringLiteral("bodyKept"), frame.body.kept},
                                  {QStringLiteral("attackInBody"), frame.attackInNextBody}});
    }
    return object;
}

QJsonObject objectOf(const AnimationInFile& found, const AnimationBoxReport& report)
{
    QJsonObject object{{QStringLiteral("file"), found.file},
                       {QStringLiteral("line"), found.animation.block().blockNumber() + 1},
                       {QStringLiteral("path"), found.path},
                       {QStringLiteral("identifier"), found.animation.identifier()},
                       {QStringLiteral("name"), found.animation.name()},
                       {QStringLiteral("duration"), report.ticks},
                       {QStringLiteral("active"), arrayOf(report.active)},
                       {QStringLiteral("withoutBox"), arrayOf(report.withoutBox)},
                       {QStringLiteral("withoutBody"), arrayOf(report.withoutBody)}};
    if (!report.active.isEmpty()) {
        object.insert(QStringLiteral("startup"), report.active.first().tick);
        object.insert(QStringLiteral("recovery"), report.recovery);
        object.insert(QStringLiteral("reach"), report.reach());
    }
    return object;
}

}  // namespace

BoxObjects::~BoxObjects()
{
    m_output.write(m_isEmpty ? QStringLiteral("[]\n") : QStringLiteral("\n]\n"));
}

void BoxObjects::add(const AnimationInFile& found, const AnimationBoxReport& report)
{
    QString text = jsonLine(objectOf(found, report));
    text.chop(1);
    m_output.write((m_isEmpty ? QLatin1String("[\n") : QLatin1String(",\n")) + text +
                   QLatin1String(",\"frames\":["));
    for (int i = 0; i < report.frames.size(); ++i) {
        m_output.write((i > 0 ? QLatin1String(",\n  ") : QLatin1String("\n  ")) +
                       jsonLine(objectOf(i, report.frames[i])));
    }
    m_output.write(QStringLiteral("]}"));
    m_isEmpty = false;
}

}  // namespace Cli
