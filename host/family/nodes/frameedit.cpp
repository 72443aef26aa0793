#include "family/nodes/frameedit.h"

#include "family/grammar/framereader.h"
#include "family/grammar/numbers.h"
#include "family/nodes/framenode.h"
#include "family/nodes/lineedit.h"

#include <QCoreApplication>

namespace Family {

namespace {

/// The tokens after the name of an option; none if it has its default value.
QStringList optionElements(int option, const FrameData& data)
{
    const FrameData standard;
    switch (option) {
    case OffsetOption:
        return data.offset == standard.offset ? QStringList()
                                              : QStringList{QString::number(data.offset.x()),
                                                            QString::number(data.offset.y())};
    case DelayOption:
        return data.delay == standard.delay ? QStringList()
                                            : QStringList{QString::number(data.delay)};
    case FlipOption:
        return data.flip == standard.flip ? QStringList() : QStringList{flipText(data.flip)};
    case ScaleOption:
        return data.scaleX == standard.scaleX && data.scaleY == standard.scaleY
                   ? QStringList()
                   : QStringList{realText(data.scaleX), realText(data.scaleY)};
    case AngleOption:
        return data.angle == standard.angle ? QStringList() : QStringList{realText(data.angle)};
    default:
        return data.loop ? QStringList{QString()} : QStringList();
    }
}

bool fitsRange(int option, const FrameData& data)
{
    const FrameOption& row = frameOption(option);
    const auto within = [&row](double value) {
        return value >= row.minimum && value <= row.maximum;
    };
    switch (option) {
    case OffsetOption:
        return within(data.offset.x()) && within(data.offset.y());
    case DelayOption:
        return within(data.delay);
    case ScaleOption:
        return within(data.scaleX) && within(data.scaleY);
    case AngleOption:
        return within(data.angle);
    case FlipOption:
        return data.flip <= 3;
    default:
        return true;
    }
}

QString optionCode(int option, const QStringList& elements)
{
    const QString name = frameOption(option).name;
    return option == LoopOption ? name : name + QLatin1Char(' ') + elements.join(QLatin1Char(','));
}

/// Removes an option from a line, with the blanks before it.
Replacement withoutOption(const QString& line, const LinePart& part)
{
    int start = part.start;
    while (start > 0 && line.at(start - 1).isSpace()) {
        --start;
    }
    return {start, part.end, QString()};
}

/// Inserts an option in the order of the documentation. It is separated by as many blanks as the
/// first option of the line, or by two.
Replacement withOption(const NodeLine& line, const LinePart& sprite, int option,
                       const QString& code)
{
    int place = sprite.end;
    int firstOption = line.text.size() + 1;
    for (const LinePart& part : line.details.parts) {
        if (part.role != LinePart::Option) {
            continue;
        }
        firstOption = std::min(firstOption, part.start);
        if (part.index < option) {
            place = std::max(place, part.end);
        }
    }
    const QString blanks = firstOption <= line.text.size()
                               ? line.text.mid(sprite.end, firstOption - sprite.end)
                               : QStringLiteral("  ");
    return {place, place, blanks + code};
}

QVector<Replacement> elementEdits(const NodeLine& line, const LinePart& part,
                                  const QStringList& present, const QStringList& wanted)
{
    QVector<Replacement> result;
    const QVector<LinePart> elements = line.details.elements(&part);
    for (int i = 0; i < elements.size() && i < wanted.size(); ++i) {
        if (present.size() != wanted.size() || present.at(i) != wanted.at(i)) {
            result.append({elements.at(i).start, elements.at(i).end, wanted.at(i)});
        }
    }
    return result;
}

}  // namespace

bool writeSprite(FrameNode* frame, int group, int number)
{
    if (std::min(group, number) < 0 || std::max(group, number) > MostSprite) {
        return false;
    }
    const NodeLine line(frame);
    const QString code =
        QStringLiteral("%1,%2").arg(QString::number(group), QString::number(number));
    const LinePart* sprite = line.details.part(LinePart::Sprite);
    if (!sprite) {
        const LinePart* keyword = line.details.part(LinePart::Keyword);
        if (keyword) {
            replaceColumns(frame, {{keyword->end, keyword->end, QLatin1Char(' ') + code}});
        }
        return keyword;
    }
    const QVector<LinePart> elements = line.details.elements(sprite);
    QVector<Replacement> edits;
    if (group != frame->spriteGroup()) {
        edits.append({elements.at(0).start, elements.at(0).end, QString::number(group)});
    }
    if (number != frame->spriteNumber()) {
        edits.append({elements.at(1).start, elements.at(1).end, QString::number(number)});
    }
    replaceColumns(frame, edits);
    return true;
}

bool writeOption(FrameNode* frame, int option, const FrameData& wanted)
{
    const NodeLine line(frame);
    const LinePart* sprite = line.details.part(LinePart::Sprite);
    if (!sprite || !fitsRange(option, wanted)) {
        return false;
    }
    const QStringList before = optionElements(option, frame->data());
    const QStringList after = optionElements(option, wanted);
    if (before == after) {
        return true;
    }
    const LinePart* part = line.details.part(LinePart::Option, option);
    if (!part) {
        replaceColumns(frame, {withOption(line, *sprite, option, optionCode(option, after))});
    } else if (after.isEmpty()) {
        replaceColumns(frame, {withoutOption(line.text, *part)});
    } else {
        // An option written out at its default value has no tokens in `before`.
        replaceColumns(frame, elementEdits(line, *part, before, after));
    }
    return true;
}

QString frameText(const FrameData& data)
{
    QString text = QStringLiteral("frame %1,%2")
                       .arg(QString::number(data.group), QString::number(data.number));
    for (int option = OffsetOption; option <= LoopOption; ++option) {
        const QStringList elements = optionElements(option, data);
        if (!elements.isEmpty()) {
            text += QLatin1String("  ") + optionCode(option, elements);
        }
    }
    return text;
}

QString optionText(int option, const FrameData& data)
{
    switch (option) {
    case OffsetOption:
        return QStringLiteral("%1, %2").arg(QString::number(data.offset.x()),
                                            QString::number(data.offset.y()));
    case DelayOption:
        return QString::number(data.delay);
    case FlipOption:
        return data.flip ? flipText(data.flip) : QStringLiteral("no");
    case ScaleOption:
        return realText(data.scaleX) + QLatin1String(", ") + realText(data.scaleY);
    case AngleOption:
        return realText(data.angle);
    default:
        return data.loop ? QStringLiteral("yes") : QStringLiteral("no");
    }
}

bool optionFromText(int option, const QString& text, FrameData* data, QString* error)
{
    const QString trimmed = text.trimmed();
    const bool no = trimmed == QLatin1String("no");
    if (option == LoopOption) {
        data->loop = trimmed == QLatin1String("yes");
        if (!data->loop && !no) {
            *error = QCoreApplication::translate("Family", "Expected 'yes' or 'no'.");
        }
        return data->loop || no;
    }
    if (option == FlipOption && no) {
        data->flip = 0;
        return true;
    }
    // Uses the same reader as the line itself, so that both accept the same texts.
    const QString code =
        QStringLiteral("0,0 ") + frameOption(option).name + QLatin1Char(' ') + trimmed;
    LineDetails details;
    LineReport report(nullptr, &details);
    LineScanner scanner(code);
    FrameData read;
    const bool fine = FrameReader(scanner, report).read(&read) && details.problems.isEmpty() &&
                      scanner.position() >= scanner.size() && !details.parts.isEmpty() &&
                      details.part(LinePart::Option, option)->end == code.size();
    if (!fine) {
        *error =
            details.problems.isEmpty()
                ? QCoreApplication::translate("Family", "Expected one value; found '%1'.").arg(text)
                : details.problems.constFirst().text;
        return false;
    }
    const FrameData old = *data;
    *data = read;
    data->group = old.group;
    data->number = old.number;
    const auto keep = [&](int other, auto assign) {
        if (option != other) {
            assign();
        }
    };
    keep(OffsetOption, [&] { data->offset = old.offset; });
    keep(DelayOption, [&] { data->delay = old.delay; });
    keep(FlipOption, [&] { data->flip = old.flip; });
    keep(ScaleOption, [&] {
        data->scaleX = old.scaleX;
        data->scaleY = old.scaleY;
    });
    keep(AngleOption, [&] { data->angle = old.angle; });
    data->loop = old.loop;
    return true;
}

}  // namespace Family
