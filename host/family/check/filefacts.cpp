#include "family/check/filefacts.h"

#include "family/familydocument.h"
#include "family/grammar/linereader.h"
#include "family/meaning/knowncommands.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/code/codecs/textcodecs.h>

#include <QHash>

// Reads the text line by line with the same reader as the parser. The only state is the current
// group or animation. Problems that need several lines are found with it: duplicates when the
// second one appears, missing things when the group or animation is closed by the next head or the
// end of the text. Names that are defined or used are only collected here. Whether they match is
// decided per project, since the definitions can be in other files.

namespace Family {

namespace {

/// The list that collects the uses of names by values of this form; null if the form names nothing.
QVector<NamedPlace>* usesOf(Form form, FileFacts* facts)
{
    switch (form) {
    case Form::AnimationName:
        return &facts->references;
    case Form::CommandName:
        return &facts->commandUses;
    case Form::MoveName:
        return &facts->moveUses;
    default:
        return nullptr;
    }
}

/// Reads the lines of a text in a single pass.
class TextPass
{
public:
    TextPass(const SourceText& source, FileFacts* facts) : m_source(source), m_facts(facts) {}

    void run();

private:
    struct Group
    {
        const GroupInfo* info = nullptr;
        NamedPlace place;
        QString argument;
        QHash<QString, int> keys;
    };

    struct Animation
    {
        bool open = false;
        NamedPlace place;
        int frames = 0;
        int loopLine = 0;
        int endlessLine = 0;
        bool hasFaultyFrame = false;
        QVector<NamedPlace> boxes;
    };

    void readNext(const QString& text);
    void see(const ParsedLine& line, const LineDetails& details, const QString& text);
    void seeGroup(const ParsedLine& line, const LineDetails& details);
    void seeValue(const ParsedLine& line, const LineDetails& details, const QString& text);
    void seeNames(const ParsedLine& line, const LineDetails& details, const QString& text);
    void seeFile(const ParsedLine& line, const LineDetails& details);
    void seeAsset(const ParsedLine& line, const LineDetails& details);
    void seeAnimation(const ParsedLine& line, const LineDetails& details);
    void seeFrame(const FrameData& frame, const LineDetails& details);
    void closeGroup();
    void closeAnimation();
    NamedPlace placeOf(const LineDetails& details, LinePart::Role role, const QString& name) const;
    AssetUse useOf(const LineDetails& details, LinePart::Role role, AssetId id) const;
    void tell(ProblemId id, const QStringList& arguments, const NamedPlace& place);

    const SourceText& m_source;
    FileFacts* m_facts;
    LineHead m_head;
    Group m_group;
    Animation m_animation;
    QHash<QString, int> m_groups;
    QHash<QString, int> m_subGroups;
    int m_line = 0;
};

void TextPass::tell(ProblemId id, const QStringList& arguments, const NamedPlace& place)
{
    m_facts->problems.append(problemAt(id, arguments, place));
}

NamedPlace TextPass::placeOf(const LineDetails& details, LinePart::Role role,
                             const QString& name) const
{
    const LinePart* part = details.part(role);
    return {name, m_facts->file, m_line, part ? part->start + 1 : 1,
            part ? part->end - part->start : 0};
}

AssetUse TextPass::useOf(const LineDetails& details, LinePart::Role role, AssetId id) const
{
    const LinePart* part = details.part(role);
    return {id, m_line, part ? part->start + 1 : 1, part ? part->end - part->start : 0};
}

void TextPass::run()
{
    if (!m_source.unfaithfulCodec.isEmpty()) {
        tell(ProblemId::EncodingUnfaithful, {m_source.unfaithfulCodec},
             {{}, m_facts->file, 1, 1, 0});
    }
    const QString& text = m_source.text;
    for (int start = 0; start <= text.size();) {
        const int found = text.indexOf(QLatin1Char('\n'), start);
        const int end = found < 0 ? text.size() : found;
        ++m_line;
        readNext(text.mid(start, end - start));
        start = end + 1;
    }
    closeGroup();
    closeAnimation();
}

void TextPass::readNext(const QString& text)
{
    LineDetails details;
    LineReport report(nullptr, &details);
    const ParsedLine line = readLine(text, m_head, m_source.kind, report);
    for (const LineProblem& problem : qAsConst(details.problems)) {
        m_facts->problems.append({m_facts->file, m_line, problem.start + 1,
                                  problem.end - problem.start, problemInfo(problem.id).level,
                                  problem.id, problem.text});
    }
    see(line, details, text);
}

void TextPass::see(const ParsedLine& line, const LineDetails& details, const QString& text)
{
    switch (line.kind) {
    case ParsedLine::Group:
        seeGroup(line, details);
        break;
    case ParsedLine::Value:
        seeValue(line, details, text);
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

void TextPass::seeGroup(const ParsedLine& line, const LineDetails& details)
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
    m_group.argument = line.argument;
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
    if (info->name == QLatin1String("move")) {
        m_facts->moves.append(placeOf(details, LinePart::Argument, line.argument));
    }
}

void TextPass::closeGroup()
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

void TextPass::seeValue(const ParsedLine& line, const LineDetails& details, const QString& text)
{
    seeNames(line, details, text);
    seeFile(line, details);
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

/// Collects the names that a value uses and those that it defines.
void TextPass::seeNames(const ParsedLine& line, const LineDetails& details, const QString& text)
{
    QVector<NamedPlace>* uses = usesOf(line.key->form, m_facts);
    if (uses && line.value.isValid()) {
        uses->append(placeOf(details, LinePart::Value, line.value.toString()));
    }
    const LinePart* key = details.part(LinePart::Key);
    if (line.key->form == Form::MotionText && key) {
        m_facts->commands.append(
            placeOf(details, LinePart::Key, text.mid(key->start, key->end - key->start)));
    }
    const KnownCommand* known =
        m_head.group ? knownCommandOf(m_head.group->name, line.key->name) : nullptr;
    if (known && line.value.isValid()) {
        m_facts->knownCommands.append(placeOf(details, LinePart::Key, QLatin1String(known->name)));
    }
}

void TextPass::seeFile(const ParsedLine& line, const LineDetails& details)
{
    const QString path = line.key->form == Form::Path ? line.value.toString() : QString();
    if (path.isEmpty() || !m_head.group) {
        return;
    }
    const QString group =
        m_head.group->takesArgument() ? m_group.argument : QString(m_head.group->name);
    const LinePart* part = details.part(LinePart::Value);
    m_facts->files.append({namedFileType(group, line.key->name), path, m_line - 1,
                           part ? part->start : 0, part ? part->end - part->start : 0});
}

void TextPass::seeAsset(const ParsedLine& line, const LineDetails& details)
{
    const QVariantList numbers = line.value.toList();
    if (line.key->form != Form::Pair || numbers.size() != 2 || !m_head.group) {
        return;
    }
    const bool isSound = m_head.group->isSubGroup() && m_head.group->name == QLatin1String("sound");
    if (isSound || line.key->name == QLatin1String("sprite")) {
        const AssetId id{quint16(numbers.at(0).toInt()), quint16(numbers.at(1).toInt())};
        (isSound ? m_facts->sounds : m_facts->sprites).append(useOf(details, LinePart::Value, id));
    }
}

void TextPass::seeAnimation(const ParsedLine& line, const LineDetails& details)
{
    closeGroup();
    closeAnimation();
    m_head.kind = LineHead::Animation;
    m_head.group = nullptr;
    m_animation = Animation();
    m_animation.open = true;
    m_animation.place = placeOf(details, LinePart::Argument, line.argument);
    if (!line.argument.isEmpty()) {
        m_facts->animations.append(m_animation.place);
    }
}

void TextPass::seeFrame(const FrameData& frame, const LineDetails& details)
{
    ++m_animation.frames;
    m_animation.boxes.clear();
    m_animation.hasFaultyFrame = m_animation.hasFaultyFrame || !details.problems.isEmpty();
    if (details.part(LinePart::Sprite)) {
        const AssetId id{quint16(frame.group), quint16(frame.number)};
        m_facts->sprites.append(useOf(details, LinePart::Sprite, id));
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

void TextPass::closeAnimation()
{
    if (!m_animation.open) {
        return;
    }
    for (const NamedPlace& box : qAsConst(m_animation.boxes)) {
        tell(ProblemId::BoxesWithoutFrame, {}, box);
    }
    // A faulty line may have been meant to loop or to end the animation, so do not guess.
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

}  // namespace

SourceText::SourceText(const FamilyDocument* document)
    : text(document->text()), kind(document->kind()),
      unfaithfulCodec(document->isFaithful() ? QString() : document->codecName())
{
}

SourceText::SourceText(const Zorv::FileText& file, FileKind fileKind)
    : text(file.text), kind(fileKind),
      unfaithfulCodec(file.isFaithful ? QString() : Zorv::TextCodecs::name(file.codec))
{
}

FileFacts factsOf(const SourceText& source, const QString& file)
{
    FileFacts facts;
    facts.file = file;
    TextPass(source, &facts).run();
    return facts;
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

}  // namespace Family
