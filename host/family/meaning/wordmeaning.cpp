#include "family/meaning/wordmeaning.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/meaning/linecontext.h"
#include "family/meaning/projectnames.h"
#include "family/nodes/animationnode.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Family {

namespace {

/// Describes one part of a line.
class MeaningReader
{
    Q_DECLARE_TR_FUNCTIONS(Family::WordMeaning)

public:
    MeaningReader(const FamilyDocument* document, const FamilyProject* project, int line)
        : m_document(document), m_project(project), m_number(line),
          m_text(document->findBlockByNumber(line).text())
    {
        LineReport report(nullptr, &m_details);
        m_line = readLine(m_text, headOfLine(document, line), document->kind(), report);
    }

    WordMeaning at(int column);

private:
    const LinePart* partAt(int column) const;
    QString textOf(const LinePart* part) const;
    const LinePart* optionAround(const LinePart* part) const;
    void tellPart(const LinePart* part);
    void tellKeyword(const LinePart* part);
    void tellGroup();
    void tellArgument();
    void tellKey();
    void tellValue(const LinePart* part);
    void tellNamed(const QString& name);
    void tellElement(const LinePart* part);
    void tellOption(const LinePart* part);
    void tellSprite();
    static QString frameSummary(const AnimationNode* animation);
    void add(const QString& line)
    {
        if (!line.isEmpty()) {
            m_meaning.lines.append(line);
        }
    }

    const FamilyDocument* m_document;
    const FamilyProject* m_project;
    int m_number;
    QString m_text;
    LineDetails m_details;
    ParsedLine m_line;
    WordMeaning m_meaning;
};

/// The smallest part that contains the column.
const LinePart* MeaningReader::partAt(int column) const
{
    const LinePart* found = nullptr;
    for (const LinePart& part : m_details.parts) {
        const bool isAround = part.start <= column && column < part.end;
        if (isAround && (!found || part.end - part.start < found->end - found->start)) {
            found = &part;
        }
    }
    return found;
}

QString MeaningReader::textOf(const LinePart* part) const
{
    return m_text.mid(part->start, part->end - part->start);
}

const LinePart* MeaningReader::optionAround(const LinePart* part) const
{
    for (const LinePart& option : m_details.parts) {
        if (option.role == LinePart::Option && option.start <= part->start &&
            part->end <= option.end) {
            return &option;
        }
    }
    return nullptr;
}

WordMeaning MeaningReader::at(int column)
{
    if (const LinePart* part = partAt(column)) {
        m_meaning.start = part->start;
        m_meaning.end = part->end;
        tellPart(part);
    }
    return m_meaning;
}

void MeaningReader::tellPart(const LinePart* part)
{
    switch (part->role) {
    case LinePart::Keyword:
        tellKeyword(part);
        break;
    case LinePart::Name:
        tellGroup();
        break;
    case LinePart::Argument:
    case LinePart::Text:
        tellArgument();
        break;
    case LinePart::Key:
        tellKey();
        break;
    case LinePart::Value:
        tellValue(part);
        break;
    case LinePart::Element:
        tellElement(part);
        break;
    case LinePart::Sprite:
        tellSprite();
        break;
    case LinePart::Option:
        tellOption(part);
        break;
    case LinePart::Comment:
        break;
    }
}

void MeaningReader::tellKeyword(const LinePart* part)
{
    const QString meaning = Grammar::keywordMeaning(textOf(part));
    if (!meaning.isEmpty()) {
        m_meaning.title = textOf(part);
        add(meaning);
    } else if (m_line.kind == ParsedLine::Format) {
        m_meaning.title = textOf(part);
        add(tr("The format of the file"));
    }
}

void MeaningReader::tellGroup()
{
    const GroupInfo* group = m_line.group;
    if (!group || group->isUnknown()) {
        return;
    }
    const QString name =
        (group->isSubGroup() ? QLatin1String(".") : QLatin1String("")) + group->name;
    m_meaning.title = QLatin1Char('[') + name + QLatin1Char(']');
    add(group->meaning());
    if (group->isSubGroup()) {
        add(tr("Belongs to [%1]").arg(Grammar::group(group->parent)->name));
    }
    if (group->takesArgument()) {
        add(tr("Takes a name, as in [%1 first]").arg(group->name));
    }
}

void MeaningReader::tellArgument()
{
    if (m_line.kind == ParsedLine::Animation) {
        tellNamed(m_line.argument);
    } else if (m_line.kind == ParsedLine::Group && !m_line.group->isUnknown()) {
        m_meaning.title = m_line.argument;
        add(m_line.group->meaning());
    }
}

void MeaningReader::tellKey()
{
    const KeyInfo* key = m_line.key;
    if (m_line.kind != ParsedLine::Value || !key || key == Grammar::unknownKey()) {
        return;
    }
    const LinePart* part = m_details.part(LinePart::Key);
    m_meaning.title = key->isFree() ? textOf(part) : QString(key->name);
    add(key->meaning());
    add(tr("Takes %1").arg(key->expectation()));
    if (key->isRequired()) {
        add(tr("Required"));
    }
    if (key->isRepeatable()) {
        add(tr("May stand several times"));
    }
}

QString MeaningReader::frameSummary(const AnimationNode* animation)
{
    const int ticks = animation->duration();
    return ticks < 0 ? tr("Frames: %1; it never ends").arg(animation->childCount())
                     : tr("Frames: %1; ticks: %2")
                           .arg(QString::number(animation->childCount()), QString::number(ticks));
}

/// Describes the animation with that name, anywhere in the project.
void MeaningReader::tellNamed(const QString& name)
{
    const QList<const FamilyDocument*> documents = ProjectNames(m_document, m_project).documents();
    for (const FamilyDocument* document : documents) {
        const int index = document->animations()->indexOfIdentifier(name);
        if (const AnimationNode* animation = document->animations()->animation(index)) {
            m_meaning.title = tr("animation %1").arg(name);
            add(animation->name());
            add(frameSummary(animation));
            if (document != m_document) {
                add(tr("In %1").arg(QFileInfo(document->fileName()).fileName()));
            }
            return;
        }
    }
}

void MeaningReader::tellValue(const LinePart* part)
{
    const KeyInfo* key = m_line.key;
    if (m_line.kind != ParsedLine::Value || !key || key == Grammar::unknownKey()) {
        return;
    }
    const QString value = m_line.value.toString();
    const ProjectNames names(m_document, m_project);
    if (key->form == Form::AnimationName) {
        tellNamed(value);
    } else if (key->form == Form::Path && m_line.value.isValid()) {
        m_meaning.title = value;
        const QString path = names.filePath(value);
        add(QDir::toNativeSeparators(path));
        if (!QFileInfo::exists(path)) {
            add(tr("There is no such file"));
        }
    } else if (key->form == Form::Choice || key->form == Form::MoveName) {
        m_meaning.title = value;
    } else if (key->form == Form::CommandName) {
        const QVector<NamedThing> commands = names.named(key->form);
        for (const NamedThing& command : commands) {
            if (command.name == value) {
                m_meaning.title = value;
                add(command.description);
            }
        }
    }
    if (m_meaning.title.isEmpty()) {
        m_meaning.title = textOf(part);
    }
    add(m_line.key->name + QLatin1String(": ") + key->meaning());
    add(tr("Takes %1").arg(key->expectation()));
}

/// Describes a number of a value, an option or a box.
void MeaningReader::tellElement(const LinePart* part)
{
    if (m_line.kind == ParsedLine::Value) {
        tellValue(part);
        return;
    }
    if (const LinePart* option = optionAround(part)) {
        tellOption(option);
        return;
    }
    if (m_line.kind == ParsedLine::Frame) {
        tellSprite();
        return;
    }
    if (m_line.kind == ParsedLine::Box && part->index < 4) {
        const QString edges[] = {tr("left"), tr("top"), tr("right"), tr("bottom")};
        m_meaning.title = tr("%1 edge: %2").arg(edges[part->index], textOf(part));
        add(Grammar::keywordMeaning(textOf(m_details.part(LinePart::Keyword))));
        add(tr("Pixels from the axis of the frame"));
    }
}

void MeaningReader::tellOption(const LinePart* part)
{
    const FrameOption& option = frameOption(part->index);
    m_meaning.title = option.name;
    m_meaning.start = part->start;
    m_meaning.end = part->end;
    add(translatedDescription(option.description));
    const QString expectation = option.expectation();
    if (!expectation.isEmpty()) {
        add(tr("Takes %1").arg(expectation));
    }
}

void MeaningReader::tellSprite()
{
    const LinePart* part = m_details.part(LinePart::Sprite);
    if (part) {
        m_meaning.title =
            tr("sprite %1,%2")
                .arg(QString::number(m_line.frame.group), QString::number(m_line.frame.number));
        m_meaning.start = part->start;
        m_meaning.end = part->end;
        add(tr("Group and number of the sprite"));
    }
}

}  // namespace

WordMeaning meaningAt(const FamilyDocument* document, const FamilyProject* project, int line,
                      int column)
{
    return MeaningReader(document, project, line).at(column);
}

}  // namespace Family
