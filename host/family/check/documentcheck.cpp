#include "family/check/documentcheck.h"

#include "family/assets/assetid.h"
#include "family/familydocument.h"

#include <QTextBlock>

namespace Family {

DocumentCheck::DocumentCheck(const FamilyDocument* document, const QString& file)
    : m_document(document), m_file(file)
{
}

Problem problemAt(ProblemId id, const QStringList& arguments, const NamedPlace& place)
{
    return {place.file,
            place.line,
            place.column,
            place.length,
            problemInfo(id).level,
            id,
            problemText(id, arguments)};
}

void DocumentCheck::tell(ProblemId id, const QStringList& arguments, const NamedPlace& place)
{
    m_problems.append(problemAt(id, arguments, place));
}

NamedPlace DocumentCheck::placeOf(const LineDetails& details, LinePart::Role role,
                                  const QString& name) const
{
    const LinePart* part = details.part(role);
    return {name, m_file, m_line, part ? part->start + 1 : 1, part ? part->end - part->start : 0};
}

Problems DocumentCheck::run()
{
    if (!m_document->isFaithful()) {
        tell(ProblemId::EncodingUnfaithful, {m_document->codecName()}, {{}, m_file, 1, 1, 0});
    }
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        ++m_line;
        readBlock(block);
    }
    closeGroup();
    closeAnimation();
    return m_problems;
}

void DocumentCheck::readBlock(const QTextBlock& block)
{
    LineDetails details;
    LineReport report(nullptr, &details);
    const ParsedLine line = readLine(block.text(), m_head, m_document->kind(), report);
    for (const LineProblem& problem : qAsConst(details.problems)) {
        m_problems.append({m_file, m_line, problem.start + 1, problem.end - problem.start,
                           problemInfo(problem.id).level, problem.id, problem.text});
    }
    see(line, details);
}

void DocumentCheck::see(const ParsedLine& line, const LineDetails& details)
{
    switch (line.kind) {
    case ParsedLine::Group:
        seeGroup(line, details);
        break;
    case ParsedLine::Value:
        seeValue(line, details);
        break;
    case ParsedLine::Animation:
        seeAnimation(line, details);
        break;
    case ParsedLine::Frame:
        seeFrame(line.frame, details);
        break;
    case ParsedLine::Box:
        m_animation.boxes.append(placeOf(details, LinePart::Keyword, {}));
        break;
    default:
        break;
    }
}

void DocumentCheck::seeGroup(const ParsedLine& line, const LineDetails& details)
{
    closeGroup();
    closeAnimation();
    m_head.kind = LineHead::Group;
    m_head.group = line.group;
    const GroupInfo* info = line.group;
    QString shown = info->isSubGroup() ? QLatin1Char('.') + info->name : QString(info->name);
    if (info->takesArgument()) {
        shown += QLatin1Char(' ') + line.argument;
    }
    m_group.info = info;
    m_group.place = placeOf(details, LinePart::Name, shown);
    m_group.keys.clear();
    if (!info->isSubGroup()) {
        m_subGroups.clear();
    }
    const bool nameless = info->isUnknown() || (info->takesArgument() && line.argument.isEmpty());
    int& first = (info->isSubGroup() ? m_subGroups : m_groups)[shown];
    if (nameless) {
        return;
    }
    if (first > 0) {
        tell(ProblemId::GroupTwice, {shown, QString::number(first)}, m_group.place);
    } else {
        first = m_line;
    }
}

void DocumentCheck::closeGroup()
{
    if (m_group.info) {
        for (const KeyInfo& key : *m_group.info) {
            if (key.isRequired() && !m_group.keys.contains(key.name)) {
                tell(ProblemId::KeyRequired, {m_group.place.name, key.name, key.expectation()},
                     m_group.place);
            }
        }
    }
    m_group.info = nullptr;
}

void DocumentCheck::seeValue(const ParsedLine& line, const LineDetails& details)
{
    if (line.key->form == Form::AnimationName && line.value.isValid()) {
        m_references.append(placeOf(details, LinePart::Value, line.value.toString()));
    }
    seeAsset(line, details);
    if (line.key->isRepeatable()) {
        return;
    }
    int& first = m_group.keys[line.key->name];
    if (first > 0) {
        tell(ProblemId::KeyTwice, {line.key->name, QString::number(first)},
             placeOf(details, LinePart::Key, {}));
    } else {
        first = m_line;
    }
}

void DocumentCheck::seeAsset(const ParsedLine& line, const LineDetails& details)
{
    const QVariantList numbers = line.value.toList();
    if (line.key->form != Form::Pair || numbers.size() != 2 || !m_head.group) {
        return;
    }
    const bool isSound = m_head.group->isSubGroup() && m_head.group->name == QLatin1String("sound");
    if (isSound || line.key->name == QLatin1String("sprite")) {
        const AssetId id{quint16(numbers.at(0).toInt()), quint16(numbers.at(1).toInt())};
        (isSound ? m_sounds : m_sprites).append(placeOf(details, LinePart::Value, id.text()));
    }
}

void DocumentCheck::seeAnimation(const ParsedLine& line, const LineDetails& details)
{
    closeGroup();
    closeAnimation();
    m_head.kind = LineHead::Animation;
    m_head.group = nullptr;
    m_animation = Animation();
    m_animation.open = true;
    m_animation.place = placeOf(details, LinePart::Argument, line.argument);
    if (!line.argument.isEmpty()) {
        m_animations.append(m_animation.place);
    }
}

void DocumentCheck::seeFrame(const FrameData& frame, const LineDetails& details)
{
    ++m_animation.frames;
    m_animation.boxes.clear();
    m_animation.hasFaultyFrame = m_animation.hasFaultyFrame || !details.problems.isEmpty();
    if (details.part(LinePart::Sprite)) {
        const AssetId id{quint16(frame.group), quint16(frame.number)};
        m_sprites.append(placeOf(details, LinePart::Sprite, id.text()));
    }
    const NamedPlace place = placeOf(details, LinePart::Keyword, {});
    if (m_animation.endlessLine > 0) {
        tell(ProblemId::FrameNeverShown, {QString::number(m_animation.endlessLine)}, place);
    }
    if (frame.loop && m_animation.loopLine > 0) {
        tell(ProblemId::LoopTwice, {m_animation.place.name, QString::number(m_animation.loopLine)},
             place);
    } else if (frame.loop) {
        m_animation.loopLine = m_line;
    }
    if (frame.delay < 0 && m_animation.endlessLine == 0) {
        m_animation.endlessLine = m_line;
    }
}

void DocumentCheck::closeAnimation()
{
    if (!m_animation.open) {
        return;
    }
    for (const NamedPlace& box : qAsConst(m_animation.boxes)) {
        tell(ProblemId::BoxesWithoutFrame, {}, box);
    }
    // What a faulty line was meant to say about the end is not known.
    const bool ends =
        m_animation.loopLine > 0 || m_animation.endlessLine > 0 || m_animation.hasFaultyFrame;
    if (m_animation.frames == 0) {
        tell(ProblemId::AnimationEmpty, {m_animation.place.name}, m_animation.place);
    } else if (!ends) {
        tell(ProblemId::LoopMissing, {m_animation.place.name}, m_animation.place);
    }
    m_animation.open = false;
    m_animation.boxes.clear();
}

void checkAnimationNames(const QVector<NamedPlace>& animations, Problems* problems)
{
    QHash<QString, const NamedPlace*> first;
    for (const NamedPlace& place : animations) {
        const NamedPlace*& known = first[place.name];
        if (known) {
            problems->append(problemAt(ProblemId::AnimationTwice,
                                       {place.name, known->file, QString::number(known->line)},
                                       place));
        } else {
            known = &place;
        }
    }
}

}  // namespace Family
