#include "operations/gamedocuments.h"

#include "family/check/check.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/filereference.h"
#include "family/project/unreachable.h"
#include "operations/documentfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace Operations {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FileReference;
using Family::PathFault;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::GameDocuments)
};

class Walk
{
public:
    Walk(const QString& path, const DocumentVisitor& visit, QStringList* errors)
        : m_path(path), m_game(Family::checkedFolder(path)), m_visit(visit), m_errors(errors)
    {
    }

    /// Visits a document; returns the paths of the code files that it names.
    QStringList open(const QString& fileName)
    {
        const QString path = QDir::cleanPath(fileName);
        if (m_seen.contains(path)) {
            return {};
        }
        m_seen.insert(path);
        QString error;
        FamilyDocument* document = openDocument(shownName(path), -1, &error);
        if (!document) {
            m_errors->append(error);
            return {};
        }
        m_visit(*document, shownName(path));
        const QStringList named =
            Family::isMainFile(document->kind()) ? codeFiles(*document, path) : QStringList();
        document->release();
        return named;
    }

private:
    QStringList codeFiles(const FamilyDocument& document, const QString& path) const
    {
        QStringList paths;
        const QString folder = QFileInfo(path).path() + QLatin1Char('/');
        const QVector<FileReference> references = Family::fileReferences(&document);
        for (const FileReference& reference : references) {
            if (Family::isCodeFile(reference.type) &&
                Family::pathFault(m_game, path, reference.path) == PathFault::Fine) {
                paths.append(folder + reference.path);
            }
        }
        return paths;
    }

    QString shownName(const QString& path) const
    {
        return QDir::isRelativePath(m_path) ? QDir::current().relativeFilePath(path) : path;
    }

    QString m_path;
    QString m_game;
    const DocumentVisitor& m_visit;
    QStringList* m_errors;
    QSet<QString> m_seen;
};

}  // namespace

void visitDocuments(const QString& path, const DocumentVisitor& visit, QStringList* errors)
{
    const QFileInfo info(path);
    const QStringList mainFiles =
        info.isDir() ? FamilyParentProject::mainFiles(path) : QStringList(info.absoluteFilePath());
    if (!info.exists()) {
        errors->append(Family::orUnreachable(Text::tr("There is no file or folder '%1'."), path));
        return;
    }
    if (mainFiles.isEmpty()) {
        errors->append(
            Family::orUnreachable(Text::tr("There is no character or stage in '%1'. Expected "
                                           "files such as 'characters/hero/hero.character'."),
                                  path));
    }
    Walk walk(path, visit, errors);
    for (const QString& mainFile : mainFiles) {
        const QStringList named = walk.open(mainFile);
        for (const QString& file : named) {
            walk.open(file);
        }
    }
}

}  // namespace Operations
