#include "app/session/gamesession.h"

#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"

#include <zorv/core/fileinput.h>
#include <zorv/core/projectfile.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace App {

using Family::FamilyDocument;
using Family::FamilyParentProject;
using Family::FamilyProject;
using Zorv::FileInput;

namespace {

QString cleaned(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// Two paths can lead to one file, for example by a link.
bool isSameFile(const QString& a, const QString& b)
{
    return a == b || (QFileInfo::exists(a) && QFileInfo(a) == QFileInfo(b));
}

FamilyDocument* documentIn(const FamilyProject* project, const QString& fileName)
{
    const QList<FamilyDocument*> documents = project->documents();
    for (FamilyDocument* document : documents) {
        if (isSameFile(document->fileName(), fileName)) {
            return document;
        }
    }
    return nullptr;
}

}  // namespace

GameSession::GameSession(QObject* parent) : QObject(parent) {}

GameSession::~GameSession()
{
    closeFolder();
}

bool GameSession::openFolder(const QString& folder, QString* error)
{
    const QFileInfo info(folder);
    const QString shown = QDir::toNativeSeparators(folder);
    if (!info.exists()) {
        *error = tr("There is no folder %1. Choose another one.").arg(shown);
        return false;
    }
    if (!info.isDir()) {
        *error = tr("%1 is not a folder. Choose the folder of a game.").arg(shown);
        return false;
    }
    if (!info.isReadable() || !info.isExecutable()) {
        *error = tr("The folder %1 cannot be read. Check its permissions.").arg(shown);
        return false;
    }
    if (FamilyParentProject::mainFiles(cleaned(folder)).isEmpty()) {
        *error = tr("There is no project in %1. A game has a file such as "
                    "'characters/ryn/ryn.character' or 'stages/dojo/dojo.stage'.")
                     .arg(shown);
        return false;
    }
    closeFolder();
    m_game = std::make_unique<FamilyParentProject>(cleaned(folder));
    emit folderOpened();
    return true;
}

void GameSession::closeFolder()
{
    while (!m_projects.isEmpty()) {
        closeProject(m_projects.last());
    }
    if (m_game) {
        emit folderAboutToClose();
        m_game.reset();
    }
}

QString GameSession::folder() const
{
    return m_game ? m_game->absolutePath() : QString();
}

QString GameSession::shownPath(const QString& fileName) const
{
    const QString root = folder();
    return QDir::toNativeSeparators(
        !root.isEmpty() && fileName.startsWith(root) ? fileName.mid(root.size()) : fileName);
}

FamilyProject* GameSession::openProject(const QString& mainFile, QString* error)
{
    if (FamilyProject* project = projectOf(mainFile)) {
        return project;
    }
    if (!m_game) {
        *error = tr("No game is open.");
        return nullptr;
    }
    FamilyProject* project = FamilyProject::open(m_game.get(), cleaned(mainFile), error);
    if (project) {
        m_projects.append(project);
        emit projectOpened(project);
    }
    return project;
}

FamilyProject* GameSession::newProject(Family::FileKind kind)
{
    FamilyProject* project = m_game ? FamilyProject::create(m_game.get(), kind) : nullptr;
    if (project) {
        m_projects.append(project);
        emit projectOpened(project);
    }
    return project;
}

FamilyProject* GameSession::projectOf(const QString& mainFile) const
{
    const QString file = cleaned(mainFile);
    for (FamilyProject* project : m_projects) {
        if (isSameFile(project->fileName(), file)) {
            return project;
        }
    }
    return nullptr;
}

void GameSession::closeProject(FamilyProject* project)
{
    if (!m_projects.contains(project)) {
        return;
    }
    emit projectAboutToClose(project);
    m_projects.removeOne(project);
    project->release();
    delete project;
}

// Every project may name any file of the game. Projects in the folders around the file are tried
// first, and the search stops at the first match.
QString GameSession::closedProjectOf(const QString& fileName) const
{
    if (!m_game) {
        return {};
    }
    const QString file = cleaned(fileName);
    QStringList mainFiles = FamilyParentProject::mainFiles(folder());
    std::stable_partition(mainFiles.begin(), mainFiles.end(), [&file](const QString& mainFile) {
        return file.startsWith(QFileInfo(mainFile).absolutePath() + QLatin1Char('/'));
    });
    for (const QString& mainFile : qAsConst(mainFiles)) {
        QStringList named;
        m_game->projectFiles(mainFile, named);
        for (const QString& name : qAsConst(named)) {
            if (!projectOf(mainFile) && isSameFile(cleaned(folder() + name), file)) {
                return mainFile;
            }
        }
    }
    return {};
}

FamilyDocument* GameSession::document(const QString& fileName, const FamilyProject* preferred,
                                      bool load) const
{
    const QString file = cleaned(fileName);
    QList<FamilyProject*> projects = m_projects;
    const int at = projects.indexOf(const_cast<FamilyProject*>(preferred));
    if (at > 0) {
        projects.move(at, 0);
    }
    for (FamilyProject* project : qAsConst(projects)) {
        if (FamilyDocument* document = documentIn(project, file)) {
            return document;
        }
    }
    for (int i = 0; load && i < projects.size(); ++i) {
        projects[i]->loadFiles();
        if (FamilyDocument* document = documentIn(projects[i], file)) {
            return document;
        }
    }
    return nullptr;
}

QList<FamilyDocument*> GameSession::modifiedDocuments(const FamilyProject* project) const
{
    QList<FamilyDocument*> result;
    for (const FamilyProject* open : m_projects) {
        if (project && project != open) {
            continue;
        }
        const QList<FamilyDocument*> documents = open->documents();
        for (FamilyDocument* document : documents) {
            if (FileInput::isUnsaved(document)) {
                result.append(document);
            }
        }
    }
    return result;
}

QList<Zorv::ProjectFile*> GameSession::modifiedFiles(const FamilyProject* project) const
{
    QList<Zorv::ProjectFile*> result;
    const QList<FamilyDocument*> documents = modifiedDocuments(project);
    for (FamilyDocument* document : documents) {
        result.append(document);
    }
    for (const FamilyProject* open : m_projects) {
        for (const auto type : {Zorv::FileID::Sprites, Zorv::FileID::Sounds}) {
            // Including files that the text no longer names.
            const QList<Zorv::ProjectFile*> files = open->filesByType(type);
            for (Zorv::ProjectFile* file : files) {
                if ((!project || project == open) && FileInput::isUnsaved(file)) {
                    result.append(file);
                }
            }
        }
    }
    return result;
}

QList<Zorv::ProjectFile*> GameSession::unkeptFiles(const FamilyProject* project) const
{
    QList<Zorv::ProjectFile*> result = modifiedFiles(project);
    for (const FamilyProject* open : m_projects) {
        const QList<Zorv::ProjectFile*> files = open->files();
        for (Zorv::ProjectFile* file : files) {
            if ((!project || project == open) && isGone(file) && !result.contains(file)) {
                result.append(file);
            }
        }
    }
    return result;
}

bool isGone(const Zorv::ProjectFile* file)
{
    return !file->fileName().isEmpty() && !QFileInfo::exists(file->fileName());
}

FamilyProject* projectOf(const FamilyDocument* document)
{
    // Every project of this program is a FamilyProject.
    return document ? static_cast<FamilyProject*>(document->project()) : nullptr;
}

}  // namespace App
