#include "operations/fixes/fixes.h"

#include "family/check/check.h"
#include "family/check/gamecheck.h"
#include "operations/fixes/linefixes.h"
#include "operations/fixes/namefixes.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>
#include <QMap>

#include <algorithm>

namespace Operations {

using Family::Problem;
using Family::ProblemId;
using Family::Problems;

namespace {

// Each round fixes one problem per line. Problems after it appear in the next round.
constexpr int MostRounds = 50;

bool isOfNames(ProblemId id)
{
    switch (id) {
    case ProblemId::AnimationMissing:
    case ProblemId::AnimationsNeeded:
    case ProblemId::CommandMissing:
    case ProblemId::MoveMissing:
    case ProblemId::SpriteMissing:
    case ProblemId::SoundMissing:
        return true;
    default:
        return false;
    }
}

/// The project of a code file; the first by name if there are several.
const Family::ProjectFindings* projectOf(const QString& path, const FixSource& source)
{
    const Family::ProjectFindings* found = nullptr;
    for (const Family::ProjectFindings& project : source.projects) {
        const bool hasFile = std::any_of(
            project.code.begin(), project.code.end(),
            [&path](const Family::FactStore::Code& code) { return code->path == path; });
        if (hasFile && (!found || project.mainFile < found->mainFile)) {
            found = &project;
        }
    }
    return found;
}

bool readText(const QString& path, QString* text, QString* error)
{
    Zorv::FileText file;
    const bool isRead = file.read(*Zorv::FileSystemArchive::instance(), path, -1, error);
    *text = file.text;
    return isRead;
}

/// The plain fixes for the problems of a text, at most one per line.
QVector<TextChange> plainChanges(const Problems& problems, const QString& text,
                                 Family::FileKind kind)
{
    QMap<int, QVector<TextChange>> byLine;
    for (const Problem& problem : problems) {
        if (byLine.contains(problem.line)) {
            continue;
        }
        const FaultyLine line(text, problem, kind);
        const Fix fix = line.isValid() ? lineFix(problem, line) : Fix();
        if (fix.isPlain && !fix.changes.isEmpty()) {
            byLine.insert(problem.line, fix.changes);
        }
    }
    QVector<TextChange> changes;
    for (const QVector<TextChange>& each : qAsConst(byLine)) {
        changes += each;
    }
    return changes;
}

/// Fixes one text, which is read from its file the first time. False if there is nothing to fix.
bool mend(const QString& path, const Problems& problems, QMap<QString, MendedText>* texts)
{
    auto found = texts->find(path);
    if (found == texts->end()) {
        QString text;
        QString error;
        if (!readText(path, &text, &error)) {
            return false;
        }
        found = texts->insert(path, {path, text, text});
    }
    const QVector<TextChange> changes =
        plainChanges(problems, found->after, Family::fileKindOf(path));
    found->after = changed(found->after, changes);
    return !changes.isEmpty();
}

void mendFile(const QString& path, QMap<QString, MendedText>* texts, QString* error)
{
    QString text;
    if (!readText(path, &text, error)) {
        return;
    }
    Family::SourceText source;
    source.text = text;
    source.kind = Family::fileKindOf(path);
    for (int i = 0; i < MostRounds; ++i) {
        if (!mend(path, Family::checkText(source, path), texts)) {
            return;
        }
        source.text = texts->value(path).after;
    }
}

void mendGame(const QString& path, QMap<QString, MendedText>* texts, QString* error)
{
    Family::GameCheck check(path);
    if (!check.look()) {
        Family::checkGame(path, error);
        return;
    }
    const QDir folder(check.folder());
    bool isMended = true;
    for (int i = 0; i < MostRounds && isMended; ++i) {
        while (!check.isDone()) {
            check.check();
        }
        QMap<QString, Problems> byFile;
        for (const Problem& problem : check.problems()) {
            byFile[QDir::cleanPath(folder.absoluteFilePath(problem.file))].append(problem);
        }
        isMended = false;
        for (auto it = byFile.cbegin(); it != byFile.cend(); ++it) {
            if (mend(it.key(), it.value(), texts)) {
                auto source = std::make_shared<Family::SourceText>();
                source->text = texts->value(it.key()).after;
                source->kind = Family::fileKindOf(it.key());
                check.setText(it.key(), source);
                isMended = true;
            }
        }
    }
}

}  // namespace

QVector<Fix> fixesOf(const Problem& problem, const FixSource& source)
{
    const QString path = QDir::cleanPath(QDir(source.folder).absoluteFilePath(problem.file));
    const QString text = source.textOf(path);
    const FaultyLine line(text, problem, Family::fileKindOf(path));
    if (!line.isValid()) {
        return {};
    }
    const Family::ProjectFindings* project = projectOf(path, source);
    QVector<Fix> fixes;
    if (problem.id == ProblemId::FileMissing) {
        fixes = project ? fileFixes(line, *project) : fixes;
    } else if (isOfNames(problem.id)) {
        fixes = project ? nameFixes(problem, line, *project, source) : fixes;
    } else {
        fixes = {lineFix(problem, line)};
    }
    QVector<Fix> useful;
    for (Fix& fix : fixes) {
        fix.mainFile = project ? project->mainFile : QString();
        if (fix.kind == Fix::Text && fix.path.isEmpty()) {
            fix.path = path;
            fix.before = text;
        }
        if (fix.kind != Fix::Text || !fix.changes.isEmpty()) {
            useful.append(fix);
        }
    }
    return useful;
}

QVector<MendedText> mendPlain(const QString& path, QString* error)
{
    error->clear();
    QMap<QString, MendedText> texts;
    const bool isFile = QFileInfo(path).isFile() && !Family::isMainFile(Family::fileKindOf(path));
    if (isFile && Family::hasCodeSuffix(path)) {
        mendFile(path, &texts, error);
    } else if (!isFile) {
        mendGame(path, &texts, error);
    }
    QVector<MendedText> mended;
    for (const MendedText& text : qAsConst(texts)) {
        if (text.before != text.after) {
            mended.append(text);
        }
    }
    return mended;
}

}  // namespace Operations
