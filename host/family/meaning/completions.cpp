#include "family/meaning/completions.h"

#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/meaning/linecontext.h"
#include "family/meaning/projectnames.h"

namespace Family {

namespace {

using Words = QVector<WordOffer>;

/// The groups below `parent`; 0 for main groups. If a kind of file has groups of its own, only
/// these are offered.
void addGroups(unsigned parent, FileKind file, Words* words)
{
    for (const GroupInfo* group : Grammar::groups()) {
        const bool counts = parent != 0 || file == FileKind::Animations || group->belongsIn(file);
        if (group->parent == parent && !group->isDeprecated() && counts) {
            words->append({group->name, group->meaning()});
        }
    }
}

void addSubGroups(const LineHead& head, Words* words)
{
    const unsigned parent =
        head.kind == LineHead::Group ? Grammar::mainGroup(head.group->number) : 0;
    if (parent != 0) {
        addGroups(parent, FileKind::Code, words);
    }
}

void addLineStarts(const LineHead& head, Words* words)
{
    if (head.kind == LineHead::Group) {
        for (const KeyInfo& key : *head.group) {
            if (!key.isDeprecated() && !key.isFree()) {
                words->append({key.name, key.meaning()});
            }
        }
    }
    const QStringList keywords = Grammar::keywords();
    for (const QString& keyword : keywords) {
        // An animation can begin anywhere; the other keywords belong inside one.
        if (head.kind == LineHead::Animation || keyword == keywords.first()) {
            words->append({keyword, Grammar::keywordMeaning(keyword)});
        }
    }
}

void addValues(const LineContext& context, const ProjectNames& names, Words* words)
{
    const KeyInfo* key = context.key;
    if (key->form == Form::Choice && !context.isQuoted) {
        const QStringList choices = key->choiceList();
        for (const QString& choice : choices) {
            words->append({choice, key->meaning()});
        }
    } else if (key->form == Form::Path) {
        const QString quote = context.isQuoted ? QString() : QStringLiteral("\"");
        const QStringList files = names.files(context.head.group, key);
        for (const QString& file : files) {
            words->append({quote + file + quote, key->meaning()});
        }
    } else if (!context.isQuoted) {
        const QVector<NamedThing> things = names.named(key->form);
        for (const NamedThing& thing : things) {
            words->append({thing.name, thing.description});
        }
    }
}

void addOptions(unsigned present, Words* words)
{
    for (int i = 0; i < FrameOptionCount; ++i) {
        if (!(present & (1u << i))) {
            words->append({frameOption(i).name, translatedDescription(frameOption(i).description)});
        }
    }
}

void addFlips(Words* words)
{
    const QVector<FlipChoice> choices = flipChoices();
    for (const FlipChoice& choice : choices) {
        words->append({choice.word, translatedDescription(choice.description)});
    }
}

}  // namespace

Completions completionsAt(const FamilyDocument* document, const FamilyProject* project, int line,
                          int column)
{
    const QString text = document->findBlockByNumber(line).text();
    const LineContext context = lineContext(text, column, headOfLine(document, line));
    Completions result{{}, context.start, context.end};
    switch (context.kind) {
    case LineContext::GroupName:
        addGroups(0, document->kind(), &result.words);
        break;
    case LineContext::SubGroupName:
        addSubGroups(context.head, &result.words);
        break;
    case LineContext::LineStart:
        addLineStarts(context.head, &result.words);
        break;
    case LineContext::Value:
        addValues(context, ProjectNames(document, project), &result.words);
        break;
    case LineContext::Option:
        addOptions(context.options, &result.words);
        break;
    case LineContext::Flip:
        addFlips(&result.words);
        break;
    case LineContext::Nothing:
        break;
    }
    return result;
}

}  // namespace Family
