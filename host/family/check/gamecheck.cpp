#include "family/check/gamecheck.h"

#include "family/project/familyparentproject.h"
#include "family/project/unnamedprojects.h"
#include "family/project/unreachable.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

// Two tables limit what must be checked again. `m_users` maps a path to the projects whose check
// needed it, even if it did not exist: when the path changes, these projects are due. `m_tellers`
// maps a file to the projects that reported problems in it: the problems of a file are the union of
// their reports, without duplicates, since projects can share files.

namespace Family {

namespace {

/// Problems of folders are stored as if they came from one more project, with this name.
const QString ofFolders;

QString scopeOf(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString gameOf(const QString& path)
{
    return FamilyParentProject::folderOf(scopeOf(path));
}

}  // namespace

GameCheck::GameCheck(const QString& path) : m_scope(scopeOf(path)), m_facts(gameOf(path)) {}

bool GameCheck::look()
{
    if (!QFileInfo(m_scope).isDir()) {
        setMainFiles({m_scope});
        lookAtFiles();
        return true;
    }
    setMainFiles(FamilyParentProject::mainFiles(m_scope));
    lookAtFiles();
    const bool isAnyUnnamed = lookAtFolders();
    return !m_onDisk.isEmpty() || isAnyUnnamed;
}

void GameCheck::setMainFiles(const QStringList& mainFiles)
{
    const QSet<QString> now(mainFiles.begin(), mainFiles.end());
    const QSet<QString> gone = m_onDisk - now;
    const QSet<QString> added = now - m_onDisk;
    m_onDisk = now;
    for (const QString& mainFile : gone) {
        if (!m_facts.isReplaced(mainFile)) {
            leave(mainFile);
        }
    }
    m_due.insert(added.begin(), added.end());
}

/// Reports folders with projects that nobody can read. True if some are known to contain one.
bool GameCheck::lookAtFolders()
{
    ProjectFindings findings;
    findings.mainFile = ofFolders;
    const auto tell = [&](const QString& name, const QString& text) {
        Problem problem = problemAt(ProblemId::FileUnreadable, {}, {{}, name, 1, 1, 0});
        problem.text = text;
        findings.problems.append(problem);
    };
    const QStringList unnamed = unnamedProjects(m_scope);
    for (const QString& name : unnamed) {
        const QString shown = m_facts.shownName(m_scope + QLatin1Char('/') + name);
        tell(shown, unnamedProjectText(shown));
    }
    const QStringList closed = closedFolders(m_scope);
    for (const QString& folder : closed) {
        const QString shown = m_facts.shownName(folder);
        tell(shown,
             problemText(ProblemId::FileUnreadable,
                         {shown, QCoreApplication::translate("Family", "Permission denied")}));
    }
    take(findings);
    return !unnamed.isEmpty();
}

void GameCheck::lookAtFiles()
{
    const QStringList paths = m_facts.changedOnDisk();
    for (const QString& path : paths) {
        lookAt(path);
    }
}

void GameCheck::lookAt(const QString& path)
{
    m_facts.forget(path);
    const QSet<QString> users = m_users.value(path);
    m_due.insert(users.begin(), users.end());
}

void GameCheck::setText(const QString& path, const std::shared_ptr<const SourceText>& text)
{
    m_facts.setText(path, text);
    if (text && isMainFile(text->kind)) {
        m_due.insert(path);
    }
    lookAt(path);
    if (!text && !m_onDisk.contains(path)) {
        m_due.erase(path);
        if (m_projects.contains(path)) {
            leave(path);
        }
    }
}

void GameCheck::setAssets(const QString& path, const FactStore::Assets& assets)
{
    m_facts.setAssets(path, assets);
    lookAt(path);
}

void GameCheck::forgetAll()
{
    const QStringList paths = m_users.keys();
    for (const QString& path : paths) {
        lookAt(path);
    }
    lookAtFolders();
}

void GameCheck::check()
{
    if (m_due.empty()) {
        return;
    }
    QString mainFile = *m_due.begin();
    for (const QString& preferred : qAsConst(m_preferred)) {
        if (m_due.count(preferred)) {
            mainFile = preferred;
            break;
        }
    }
    m_due.erase(mainFile);
    ++m_checkCount;
    const std::shared_ptr<const SourceText> text = m_facts.text(mainFile);
    take(ProjectCheck(mainFile, text ? text->kind : fileKindOf(mainFile), &m_facts).run());
}

void GameCheck::take(const ProjectFindings& findings)
{
    const QString& mainFile = findings.mainFile;
    ByFile told;
    for (const Problem& problem : findings.problems) {
        told[problem.file].append(problem);
    }
    for (auto it = told.cbegin(); it != told.cend(); ++it) {
        m_tellers[it.key()].insert(mainFile);
        m_stale.insert(it.key());
    }
    const ByFile before = m_told.value(mainFile);
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        m_stale.insert(it.key());
        if (!told.contains(it.key())) {
            m_tellers[it.key()].remove(mainFile);
        }
    }
    m_told.insert(mainFile, told);
    replaceUses(mainFile, m_projects.value(mainFile).paths, findings.paths);
    ProjectFindings& kept = m_projects[mainFile] = findings;
    kept.problems.clear();
    m_news.projects.insert(mainFile, kept);
    m_news.goneProjects.removeOne(mainFile);
}

void GameCheck::replaceUses(const QString& mainFile, const QStringList& before,
                            const QStringList& now)
{
    for (const QString& path : now) {
        m_users[path].insert(mainFile);
    }
    const QSet<QString> used(now.begin(), now.end());
    for (const QString& path : before) {
        if (used.contains(path)) {
            continue;
        }
        QSet<QString>& users = m_users[path];
        users.remove(mainFile);
        if (users.isEmpty()) {
            m_users.remove(path);
            m_facts.drop(path);
        }
    }
}

void GameCheck::leave(const QString& mainFile)
{
    ProjectFindings nothing;
    nothing.mainFile = mainFile;
    take(nothing);
    m_projects.remove(mainFile);
    m_told.remove(mainFile);
    m_due.erase(mainFile);
    m_news.projects.remove(mainFile);
    m_news.goneProjects.append(mainFile);
}

void GameCheck::merge()
{
    for (const QString& file : qAsConst(m_stale)) {
        Problems problems;
        const QSet<QString> tellers = m_tellers.value(file);
        for (const QString& teller : tellers) {
            problems += m_told[teller].value(file);
        }
        sortProblems(&problems);
        if (problems == m_problems.value(file)) {
            continue;
        }
        m_news.files.insert(file, problems);
        if (problems.isEmpty()) {
            m_problems.remove(file);
            m_tellers.remove(file);
        } else {
            m_problems.insert(file, problems);
        }
    }
    m_stale.clear();
}

Problems GameCheck::problems()
{
    merge();
    Problems all;
    for (const Problems& problems : qAsConst(m_problems)) {
        all += problems;
    }
    return all;
}

CheckNews GameCheck::takeNews()
{
    merge();
    return std::exchange(m_news, {});
}

}  // namespace Family
