#include "operations/animationsource.h"

#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/check/check.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/nodes/animationnode.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/filereference.h"
#include "family/project/unreachable.h"
#include "operations/animationedits.h"
#include "operations/documentfile.h"
#include "operations/media/animationgif.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Operations {

using Family::FamilyAnimations;
using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;
using Zorv::ImportEntry;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AnimationSource)
};

QStringList identifiersOf(const QList<FamilyAnimations*>& lists)
{
    QStringList result;
    for (const FamilyAnimations* list : lists) {
        for (int i = 0; i < list->count(); ++i) {
            result.append(list->animation(i)->identifier());
        }
    }
    return result;
}

}  // namespace

AnimationSource::AnimationSource(const QString& path) : m_path(path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        m_error = Family::orUnreachable(Text::tr("There is no file or folder '%1'."), path);
    } else if (info.isDir() || Family::isMainFile(Family::fileKindOf(path))) {
        const QString mainFile = info.isDir() ? onlyMainFile() : info.absoluteFilePath();
        if (!mainFile.isEmpty()) {
            openProject(mainFile);
        }
    } else {
        m_document = openDocument(path, -1, &m_error);
        if (m_document) {
            m_lists.append(m_document->animations());
        }
    }
}

AnimationSource::~AnimationSource()
{
    if (m_sprites) {
        m_sprites->release();
    }
    if (m_document) {
        m_document->release();
    }
    if (m_project) {
        m_project->release();
        delete m_project;
    }
}

QString AnimationSource::onlyMainFile()
{
    QStringList files = FamilyParentProject::mainFiles(m_path);
    if (files.size() == 1) {
        return files.first();
    }
    for (QString& file : files) {
        file = QDir::current().relativeFilePath(file);
    }
    m_error =
        files.isEmpty()
            ? Family::orUnreachable(Text::tr("There is no character or stage in '%1'."), m_path)
            : Text::tr("There are several projects in '%1'. Name one of them instead: %2.")
                  .arg(m_path, files.join(QLatin1String(", ")));
    return {};
}

void AnimationSource::openProject(const QString& mainFile)
{
    m_game = std::make_unique<FamilyParentProject>(Family::checkedFolder(mainFile));
    m_project = FamilyProject::open(m_game.get(), mainFile, &m_error);
    const QList<FamilyDocument*> documents =
        m_project ? m_project->documents() : QList<FamilyDocument*>();
    for (const FamilyDocument* document : documents) {
        m_lists.append(document->animations());
    }
}

void AnimationSource::setCommentsTravel(bool travel)
{
    for (FamilyAnimations* list : qAsConst(m_lists)) {
        static_cast<FamilyDocument*>(list->document())
            ->setOption(QStringLiteral("code_comments_travel"), travel, false, false);
    }
}

QModelIndex AnimationSource::find(const QString& reference, QString* error) const
{
    QList<FamilyAnimations*> having;
    for (FamilyAnimations* list : m_lists) {
        if (m_lists.size() == 1 || list->indexOfIdentifier(reference) >= 0) {
            having.append(list);
        }
    }
    if (having.size() == 1) {
        const int row = findAnimation(having.first(), reference, error);
        return row < 0 ? QModelIndex() : having.first()->index(row);
    }
    if (having.isEmpty()) {
        *error = Text::tr("There is no animation '%1' in '%2'. %3")
                     .arg(reference, m_path, Family::nameHint(reference, identifiersOf(m_lists)));
    } else {
        *error = Text::tr("Animation '%1' is in several files of '%2'. Name one of them instead.")
                     .arg(reference, m_path);
    }
    return {};
}

QVector<ImportEntry> AnimationSource::entries(const QStringList& words, QString* error) const
{
    QVector<ImportEntry> result;
    for (const QString& word : words) {
        const int mark = word.indexOf(QLatin1Char('='));
        const QModelIndex index = find(word.left(mark), error);
        if (!index.isValid()) {
            return {};
        }
        const auto* list = static_cast<const FamilyAnimations*>(index.model());
        result.append(
            {index, mark < 0 ? list->animation(index.row())->identifier() : word.mid(mark + 1)});
    }
    for (const FamilyAnimations* list : m_lists) {
        for (int i = 0; words.isEmpty() && i < list->count(); ++i) {
            result.append({list->index(i), list->animation(i)->identifier()});
        }
    }
    if (result.isEmpty()) {
        *error = Text::tr("There is no animation in '%1'.").arg(m_path);
    }
    return result;
}

const Family::SpriteCollection* AnimationSource::sprites(QString* error)
{
    if (m_project && !m_project->sprites()) {
        *error = m_project->loadErrors().isEmpty() ? Text::tr("'%1' names no sprites.").arg(m_path)
                                                   : m_project->loadErrors().join(QLatin1Char(' '));
    }
    if (m_project || m_sprites) {
        return m_project ? m_project->sprites() : m_sprites;
    }
    const QString file = spritesOf(*m_document, error);
    m_sprites = file.isEmpty() ? nullptr : Family::openSprites(file, error);
    return m_sprites;
}

QString spritesOf(const FamilyDocument& document, QString* error)
{
    const QString path = document.fileName();
    if (!Family::isMainFile(Family::fileKindOf(path))) {
        return spritesBeside(path, error);
    }
    const QVector<Family::FileReference> references = Family::fileReferences(&document);
    for (const Family::FileReference& reference : references) {
        if (reference.type == Zorv::FileID::Sprites &&
            Family::pathFault(FamilyParentProject::folderOf(path), path, reference.path) ==
                Family::PathFault::Fine) {
            return QDir::cleanPath(QFileInfo(path).dir().filePath(reference.path));
        }
    }
    *error = Text::tr("'%1' names no sprites.").arg(path);
    return {};
}

}  // namespace Operations
