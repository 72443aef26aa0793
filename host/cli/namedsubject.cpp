#include "cli/namedsubject.h"

#include "family/grammar/grammar.h"
#include "family/project/familyparentproject.h"
#include "family/project/unreachable.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Cli {

namespace {

using Operations::ReferenceIndex;
using Operations::Subject;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

QString mainFileFault(const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return Family::orUnreachable(Text::tr("There is no file '%1'."), path);
    }
    return Family::isMainFile(Family::fileKindOf(path))
               ? QString()
               : Text::tr("Expected a main file (.character, .stage) in front of the kind; "
                          "found '%1'.")
                     .arg(path);
}

}  // namespace

Subject namedSubject(const QStringList& operands, std::unique_ptr<ReferenceIndex>* index,
                     QString* error)
{
    const QString path = operands.at(0);
    const Family::NameKind kind = Family::nameKindOf(operands.at(1));
    *error = mainFileFault(path);
    if (error->isEmpty() && kind == Family::NameKind::None) {
        *error =
            Text::tr("There is no kind '%1'. %2")
                .arg(operands.at(1), Family::nameHint(operands.at(1), Family::nameKindWords()));
    }
    if (!error->isEmpty()) {
        return {};
    }
    const Subject subject = Subject::fromText(path, kind, operands.at(2), error);
    *index = std::make_unique<ReferenceIndex>(Family::FamilyParentProject::folderOf(path));
    return !subject.isNone() && (*index)->update() ? subject : Subject();
}

}  // namespace Cli
