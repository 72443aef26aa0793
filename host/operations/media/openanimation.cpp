#include "operations/media/openanimation.h"

#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/check/check.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/nodes/animationnode.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/unreachable.h"
#include "operations/animationedits.h"
#include "operations/documentfile.h"
#include "operations/media/animationgif.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Operations {

using Family::AnimationNode;
using Family::FamilyAnimations;
using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::OpenAnimation)
};

void close(FamilyProject* project)
{
    if (project) {
        project->release();
        delete project;
    }
}

}  // namespace

OpenAnimation::OpenAnimation(const QString& path, const QString& name, const QString& spriteFile,
                             SpriteNeed need)
    : m_path(path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        m_error = Family::orUnreachable(Text::tr("There is no file or folder '%1'."), path);
    } else if (!info.isDir() && !Family::isMainFile(Family::fileKindOf(path))) {
        findInFile(path, name, spriteFile, need);
    } else if (!spriteFile.isNull()) {
        m_error = Text::tr("'%1' names its own sprites. '--sprites' is for a single file of "
                           "animations.")
                      .arg(path);
    } else {
        findInProjects(info.isDir() ? FamilyParentProject::mainFiles(path)
                                    : QStringList(info.absoluteFilePath()),
                       name);
    }
}

OpenAnimation::~OpenAnimation()
{
    if (m_document && m_sprites) {
        m_sprites->release();
    }
    if (m_document) {
        m_document->release();
    }
    close(m_project);
}

void OpenAnimation::findInFile(const QString& fileName, const QString& name,
                               const QString& spriteFile, SpriteNeed need)
{
    m_document = openDocument(fileName, -1, &m_error);
    const int index = m_document ? findAnimation(m_document->animations(), name, &m_error) : -1;
    if (index < 0) {
        return;
    }
    const QString sprites = spriteFile.isNull() ? spritesBeside(fileName, &m_error) : spriteFile;
    m_sprites = m_error.isEmpty() ? Family::openSprites(sprites, &m_error) : nullptr;
    if (!m_sprites && need == OptionalSprites && spriteFile.isNull()) {
        m_notes.append(m_error);
        m_error.clear();
    } else if (m_sprites) {
        m_notes = m_sprites->loadErrors();
    }
    if (m_error.isEmpty()) {
        m_animation = m_document->animations()->animation(index);
    }
}

QString OpenAnimation::shownName(const QString& fileName) const
{
    const QString path = QDir::cleanPath(fileName);
    return QDir::isRelativePath(m_path) ? QDir::current().relativeFilePath(path) : path;
}

/// False if the project has nothing of that name.
bool OpenAnimation::findInProject(const FamilyProject& project, const QString& name)
{
    QStringList files;
    const QList<FamilyDocument*> documents = project.documents();
    for (const FamilyDocument* document : documents) {
        const FamilyAnimations* list = document->animations();
        for (const Zorv::AnimationCode* animation : list->animations()) {
            m_identifiers.append(static_cast<const AnimationNode*>(animation)->identifier());
        }
        if (list->indexOfIdentifier(name) < 0) {
            continue;
        }
        files.append(shownName(document->fileName()));
        const int index = findAnimation(list, name, &m_error);
        m_animation = index < 0 ? nullptr : list->animation(index);
    }
    if (files.size() > 1) {
        m_error = Text::tr("Animation '%1' is in several files: %2. Name one of them in place of "
                           "'%3', with '--sprites'.")
                      .arg(name, files.join(QLatin1String(", ")), m_path);
    } else if (!files.isEmpty() && !m_animation) {
        m_error = files.first() + QLatin1String(": ") + m_error;
    }
    return !files.isEmpty();
}

void OpenAnimation::findInProjects(const QStringList& mainFiles, const QString& name)
{
    m_game = std::make_unique<FamilyParentProject>(Family::checkedFolder(m_path));
    QStringList found;
    QString unreadable;
    for (const QString& mainFile : mainFiles) {
        FamilyProject* project = FamilyProject::open(m_game.get(), mainFile, &unreadable);
        const bool isThere = project && findInProject(*project, name);
        if (isThere) {
            found.append(shownName(mainFile));
        }
        if (isThere && !m_project) {
            m_project = project;
        } else {
            close(project);
        }
    }
    if (found.size() > 1) {
        m_error = Text::tr("Animation '%1' is in several projects. Name one of them in place of "
                           "'%2': %3.")
                      .arg(name, m_path, found.join(QLatin1String(", ")));
    } else if (found.isEmpty() && mainFiles.isEmpty()) {
        m_error =
            Family::orUnreachable(Text::tr("There is no character or stage in '%1'."), m_path);
    } else if (found.isEmpty()) {
        m_error = m_identifiers.isEmpty() && !unreadable.isEmpty()
                      ? unreadable
                      : Text::tr("There is no animation '%1' in '%2'. %3")
                            .arg(name, m_path, Family::nameHint(name, m_identifiers));
    }
    if (!m_error.isEmpty()) {
        m_animation = nullptr;
        return;
    }
    m_sprites = m_project->sprites();
    m_notes = m_project->loadErrors();
}

}  // namespace Operations
