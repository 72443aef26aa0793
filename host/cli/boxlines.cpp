#include "cli/boxlisting.h"

#include "cli/output.h"
#include "family/nodes/animationnode.h"
#include "operations/boxes/boxreport.h"

namespace Cli {

namespace {

using Operations::ActiveTime;
using Operations::AnimationBoxReport;
using Operations::BoxesInFrame;
using Operations::BoxInFrame;
using Operations::FrameBoxReport;

QString numbers(const QVector<int>& list)
{
    QStringList texts;
    for (const int number : list) {
        texts.append(QString::number(number));
    }
    return texts.join(QLatin1Char(' '));
}

/// "3", or "3(4)2" with a gap of four ticks.
QString activeText(const QVector<ActiveTime>& times)
{
    QString text = QString::number(times.first().ticks);
    for (int i = 1; i < times.size(); ++i) {
        const int gap = times[i].tick - times[i - 1].tick - times[i - 1].ticks;
        text += QStringLiteral("(%1)%2").arg(QString::number(gap), QString::number(times[i].ticks));
    }
    return text;
}

QStringList factsOf(const AnimationBoxReport& report)
{
    QStringList facts;
    if (!report.active.isEmpty()) {
        facts = QStringList{
            QStringLiteral("startup %1").arg(report.active.first().tick),
            QStringLiteral("active %1").arg(activeText(report.active)),
            QStringLiteral("recovery %1").arg(report.recovery),
            QStringLiteral("reach %1").arg(report.reach()),
        };
    }
    if (!report.hasBoxes()) {
        facts.append(QStringLiteral("no box"));
    } else if (!report.withoutBody.isEmpty()) {
        facts.append(QStringLiteral("no body in %1").arg(numbers(report.withoutBody)));
    }
    return facts;
}

void addFacts(const char* name, const FrameBoxReport& frame, const BoxesInFrame& boxes,
              QStringList* facts)
{
    if (boxes.boxes.isEmpty()) {
        return;
    }
    facts->append(QStringLiteral("%1 %2").arg(QLatin1String(name), QString::number(boxes.area)));
    if (frame.next >= 0) {
        facts->append(QStringLiteral("%1 kept").arg(boxes.kept));
    }
}

QStringList factsOf(const FrameBoxReport& frame)
{
    QStringList facts;
    if (frame.isShown) {
        facts.append(QStringLiteral("tick %1").arg(frame.tick));
        facts.append(frame.delay < 0    ? QStringLiteral("stays")
                     : frame.delay == 1 ? QStringLiteral("1 tick")
                                        : QStringLiteral("%1 ticks").arg(frame.delay));
    } else {
        facts.append(QStringLiteral("never shown"));
    }
    addFacts("attack", frame, frame.attack, &facts);
    if (!frame.attack.boxes.isEmpty()) {
        facts.append(QStringLiteral("%1 in body").arg(frame.attackInBody));
    }
    addFacts("body", frame, frame.body, &facts);
    if (frame.attack.boxes.isEmpty() && frame.body.boxes.isEmpty()) {
        facts.append(QStringLiteral("no box"));
    }
    return facts;
}

QStringList factsOf(const BoxInFrame& box)
{
    QStringList facts;
    if (box.inBody > 0) {
        facts.append(QStringLiteral("%1 in body").arg(box.inBody));
    }
    if (box.inNextBody > 0) {
        facts.append(QStringLiteral("%1 in next body").arg(box.inNextBody));
    }
    if (box.stays) {
        facts.append(QStringLiteral("stays"));
    }
    return facts;
}

QString codeOf(const char* kind, const QRect& rect)
{
    return QStringLiteral("    %1 %2,%3, %4,%5")
        .arg(QLatin1String(kind), QString::number(rect.left()), QString::number(rect.top()),
             QString::number(rect.right()), QString::number(rect.bottom()));
}

}  // namespace

void BoxLines::add(const AnimationInFile& found, const AnimationBoxReport& report)
{
    m_file = found.file;
    const QString name = found.animation.name();
    writeLine(found.animation.block().blockNumber(),
              name.isEmpty() ? found.path : QStringLiteral("%1 \"%2\"").arg(found.path, name),
              factsOf(report));
    for (int i = 0; i < report.frames.size(); ++i) {
        const FrameBoxReport& frame = report.frames[i];
        writeLine(frame.line, QStringLiteral("  frame:%1").arg(i), factsOf(frame));
        writeBoxes("attack", frame.attack);
        writeBoxes("body", frame.body);
    }
}

void BoxLines::writeBoxes(const char* kind, const BoxesInFrame& list)
{
    for (const BoxInFrame& box : list.boxes) {
        writeLine(box.line, codeOf(kind, box.rect), factsOf(box));
    }
}

void BoxLines::writeLine(int line, const QString& what, const QStringList& facts)
{
    QStringList columns{QStringLiteral("%1:%2").arg(m_file, QString::number(line + 1)), what};
    if (!facts.isEmpty()) {
        columns.append(facts.join(QLatin1String(", ")));
    }
    m_output.writeLine(columns);
}

}  // namespace Cli
