#include "cli/boxlisting.h"
#include "cli/cli.h"
#include "cli/command.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/nodepath.h"
#include "family/nodes/animationnode.h"
#include "operations/boxes/boxreport.h"
#include "operations/gamedocuments.h"

#include <QCoreApplication>

#include <memory>

namespace Cli {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

std::unique_ptr<BoxListing> listingFor(const Invocation& invocation, Output& output)
{
    if (invocation.json) {
        return std::make_unique<BoxObjects>(output);
    }
    return std::make_unique<BoxLines>(output);
}

}  // namespace

int listBoxes(const Invocation& invocation, Output& output)
{
    const QString& path = invocation.operands.first();
    const QString& wanted = invocation.animation;
    QStringList errors;
    QStringList identifiers;
    const std::unique_ptr<BoxListing> listing = listingFor(invocation, output);
    const auto list = [&](const Family::FamilyDocument& document, const QString& file) {
        const auto paths = Family::nodePaths(&document);
        const Family::FamilyAnimations* animations = document.animations();
        for (int i = 0; i < animations->count(); ++i) {
            const Family::AnimationNode* animation = animations->animation(i);
            identifiers.append(animation->identifier());
            if (wanted.isNull() || wanted == animation->identifier()) {
                listing->add({*animation, file, paths.value(animation)},
                             Operations::AnimationBoxReport(*animation));
            }
        }
    };
    Operations::visitDocuments(path, list, &errors);
    if (errors.isEmpty() && !wanted.isNull() && !identifiers.contains(wanted)) {
        errors.append(Text::tr("There is no animation '%1' in '%2'. %3")
                          .arg(wanted, path, Family::nameHint(wanted, identifiers)));
    }
    for (const QString& error : qAsConst(errors)) {
        complain(error);
    }
    return errors.isEmpty() ? Fine : NotDone;
}

}  // namespace Cli
