#include "operations/moveframes.h"

#include "family/familydocument.h"
#include "family/grammar/groupinfo.h"
#include "family/meaning/projectnames.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"
#include "family/project/familyparentproject.h"
#include "family/project/unreachable.h"
#include "rules/codetext.h"
#include "rules/gamereader.h"

#include <QFileInfo>

namespace Operations {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations)
};

bool isCharacter(const QString& path)
{
    return Family::fileKindOf(path) == Family::FileKind::Character;
}

QStringList charactersOf(const QString& path, QStringList* errors)
{
    if (!QFileInfo::exists(path)) {
        errors->append(Family::orUnreachable(Text::tr("There is no file or folder '%1'."), path));
        return {};
    }
    QStringList files;
    const QStringList found =
        QFileInfo(path).isDir() ? Family::FamilyParentProject::mainFiles(path) : QStringList(path);
    for (const QString& file : found) {
        if (isCharacter(file)) {
            files.append(file);
        }
    }
    if (files.isEmpty()) {
        errors->append(Text::tr("There is no character in '%1'.").arg(path));
    }
    return files;
}

/// The lines of a node, unchanged.
QString linesOf(const Zorv::CodeNode* node)
{
    QString text;
    const int last = node->lastLine();
    for (QTextBlock block = node->block(); block.isValid() && block.blockNumber() <= last;
         block = block.next()) {
        text += block.text() + QLatin1Char('\n');
    }
    return text;
}

/// Whether a group is a move that shows an animation.
bool shows(const Zorv::CodeNode* node, const QString& animation)
{
    const auto* group = node->type() == Zorv::CodeNode::Group
                            ? static_cast<const Family::GroupNode*>(node)
                            : nullptr;
    if (!group || group->info()->name != QLatin1String("move")) {
        return false;
    }
    for (int i = 0; i < group->childCount(); ++i) {
        const Zorv::CodeNode* child = group->childAt(unsigned(i));
        if (child->type() == Zorv::CodeNode::Value) {
            const auto* value = static_cast<const Family::ValueNode*>(child);
            if (value->key()->form == Family::Form::AnimationName) {
                return value->text() == animation;
            }
        }
    }
    return false;
}

const Zorv::CodeNode* moveShowing(const QString& animation, const Family::ProjectNames& names)
{
    for (const Family::FamilyDocument* document : names.documents()) {
        for (int i = 0; i < document->childCount(); ++i) {
            const Zorv::CodeNode* node = document->childAt(unsigned(i));
            if (shows(node, animation)) {
                return node;
            }
        }
    }
    return nullptr;
}

}  // namespace

QVector<CharacterMoves> moveFrames(const QString& path, QStringList* errors)
{
    QVector<CharacterMoves> result;
    Rules::GameReader reader(Family::FamilyParentProject::folderOf(path));
    const QStringList files = charactersOf(path, errors);
    for (const QString& file : files) {
        CharacterMoves character;
        QString error;
        if (!reader.readFighter(file, &character.data, &error)) {
            errors->append(error);
            continue;
        }
        for (int move = 0; move < character.data.moves.size(); ++move) {
            character.facts.append(Rules::factsOf(character.data, move));
        }
        result.append(character);
    }
    *errors += reader.notes();
    return result;
}

/// Builds a character of only the move and its animation: the rest does not affect the ticks.
std::optional<Rules::MoveFacts> moveFactsOf(const Family::AnimationNode* animation,
                                            const Family::ProjectNames& names)
{
    const Zorv::CodeNode* move = moveShowing(animation->identifier(), names);
    if (!move) {
        return {};
    }
    Rules::CodeText text({}, {}, Family::FileKind::Character);
    text.take(linesOf(animation) + linesOf(move));
    Rules::FighterData data;
    Rules::GameReader(QString()).takeFighter(text, &data);
    if (data.moves.isEmpty() || data.moves.first().animation < 0) {
        return {};
    }
    const Rules::MoveFacts facts = Rules::aloneFactsOf(data, 0);
    return facts.total < Rules::MoveFacts::MostTicks ? std::optional(facts) : std::nullopt;
}

}  // namespace Operations
