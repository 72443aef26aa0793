#include "family/meaning/linename.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace Family {

namespace {

/// One row per kind of name: its word, and the form of the values that refer to it.
struct KindRow
{
    NameKind kind;
    const char* word;
    const char* title;
    Form form;
};

constexpr KindRow kindRows[] = {
    {NameKind::Animation, "animation", QT_TRANSLATE_NOOP("Family::NameKind", "Animation"),
     Form::AnimationName},
    {NameKind::Move, "move", QT_TRANSLATE_NOOP("Family::NameKind", "Move"), Form::MoveName},
    {NameKind::Command, "command", QT_TRANSLATE_NOOP("Family::NameKind", "Command"),
     Form::CommandName},
    {NameKind::Sprite, "sprite", QT_TRANSLATE_NOOP("Family::NameKind", "Sprite"), Form::Any},
    {NameKind::Palette, "palette", QT_TRANSLATE_NOOP("Family::NameKind", "Palette"), Form::Any},
    {NameKind::Sound, "sound", QT_TRANSLATE_NOOP("Family::NameKind", "Sound"), Form::Any},
    {NameKind::File, "file", QT_TRANSLATE_NOOP("Family::NameKind", "File"), Form::Path},
};

template <class Is>
const KindRow* findRow(Is is)
{
    const auto found = std::find_if(std::begin(kindRows), std::end(kindRows), is);
    return found == std::end(kindRows) ? nullptr : found;
}

const KindRow* rowOf(NameKind kind)
{
    return findRow([kind](const KindRow& row) { return row.kind == kind; });
}

/// The kind of thing that values of a form refer to. Sprites and sounds are number pairs; their
/// kind depends on the key.
NameKind namedBy(Form form)
{
    const KindRow* row = form == Form::Any
                             ? nullptr
                             : findRow([form](const KindRow& each) { return each.form == form; });
    return row ? row->kind : NameKind::None;
}

LineName at(const LinePart* part, NameKind kind, bool isDefinition, const QString& name)
{
    if (!part || part->end <= part->start || name.isEmpty()) {
        return {};
    }
    return {kind, isDefinition, name, {}, part->start, part->end};
}

LineName at(const LinePart* part, NameKind kind, int group, int number)
{
    return part ? LineName{kind,        false,    {}, {quint16(group), quint16(number)},
                           part->start, part->end}
                : LineName();
}

LineName nameOfHead(const ParsedLine& line, const LineDetails& details)
{
    const LinePart* part = details.part(LinePart::Argument);
    if (line.group->isSubGroup()) {
        return {};
    }
    if (line.group->name == QLatin1String("move")) {
        return at(part, NameKind::Move, true, line.argument);
    }
    if (line.group->name == QLatin1String("palette")) {
        return at(part, NameKind::Palette, true, line.argument);
    }
    return {};
}

/// The kind of thing that a pair of numbers names.
NameKind namedByPair(const GroupInfo* group, const KeyInfo* key)
{
    if (group && group->isSubGroup() && group->name == QLatin1String("sound")) {
        return NameKind::Sound;
    }
    return group && key->name == QLatin1String("sprite") ? NameKind::Sprite : NameKind::None;
}

LineName nameOfValue(const QString& text, const ParsedLine& line, const LineHead& head,
                     const LineDetails& details)
{
    const Form form = line.key->form;
    const LinePart* key = details.part(LinePart::Key);
    if (form == Form::MotionText && key) {
        // The key is the command. It counts even if its motion is invalid.
        return at(key, NameKind::Command, true, text.mid(key->start, key->end - key->start));
    }
    if (!line.value.isValid()) {
        return {};
    }
    const LinePart* value = details.part(LinePart::Value);
    const QVariantList numbers = form == Form::Pair ? line.value.toList() : QVariantList();
    if (numbers.size() == 2) {
        const NameKind kind = namedByPair(head.group, line.key);
        return kind == NameKind::None
                   ? LineName()
                   : at(value, kind, numbers.at(0).toInt(), numbers.at(1).toInt());
    }
    const NameKind kind = namedBy(form);
    return kind == NameKind::None ? LineName() : at(value, kind, false, line.value.toString());
}

}  // namespace

QString LineName::shown() const
{
    return kind == NameKind::Sprite || kind == NameKind::Sound ? id.text() : name;
}

LineName nameOf(const QString& text, const ParsedLine& line, const LineHead& head,
                const LineDetails& details)
{
    switch (line.kind) {
    case ParsedLine::Group:
        return nameOfHead(line, details);
    case ParsedLine::Value:
        return nameOfValue(text, line, head, details);
    case ParsedLine::Animation:
        return at(details.part(LinePart::Argument), NameKind::Animation, true, line.argument);
    case ParsedLine::Frame:
        return at(details.part(LinePart::Sprite), NameKind::Sprite, line.frame.group,
                  line.frame.number);
    default:
        return {};
    }
}

Form formNaming(NameKind kind)
{
    const KindRow* row = rowOf(kind);
    return row ? row->form : Form::Any;
}

QString nameKindWord(NameKind kind)
{
    const KindRow* row = rowOf(kind);
    return row ? QLatin1String(row->word) : QString();
}

QString nameKindTitle(NameKind kind)
{
    const KindRow* row = rowOf(kind);
    return row ? QCoreApplication::translate("Family::NameKind", row->title) : QString();
}

NameKind nameKindOf(const QString& word)
{
    const KindRow* row =
        findRow([&word](const KindRow& each) { return word == QLatin1String(each.word); });
    return row ? row->kind : NameKind::None;
}

QStringList nameKindWords()
{
    QStringList words;
    std::transform(std::begin(kindRows), std::end(kindRows), std::back_inserter(words),
                   [](const KindRow& row) { return QString(QLatin1String(row.word)); });
    return words;
}

}  // namespace Family
