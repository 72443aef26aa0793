#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/results.h"
#include "operations/find/codefiles.h"
#include "operations/find/filesearch.h"
#include "operations/find/findpattern.h"
#include "operations/find/findreplace.h"
#include "operations/textdiff.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>

#include <memory>

namespace Cli {

namespace {

using Operations::FileHits;
using Operations::FindHit;
using Operations::FindPattern;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// One run of the command.
class Finding
{
public:
    Finding(const Invocation& invocation, Output& output, const FindPattern& pattern)
        : m_invocation(invocation), m_output(output), m_pattern(pattern)
    {
        if (invocation.json) {
            m_list = std::make_unique<JsonList>(output);
        }
    }

    void findIn(const QString& place);
    int status() const { return m_hasFailed ? NotDone : m_isAnyFound ? Fine : NothingFound; }

private:
    void take(const FileHits& found, const QString& name);
    void tellHits(const FileHits& found, const QString& name);
    void replace(const QString& path, const QString& name);
    int printDifference(const QString& path, const QString& name, QString* error);
    void fail(const QString& error)
    {
        complain(error);
        m_hasFailed = true;
    }

    const Invocation& m_invocation;
    Output& m_output;
    const FindPattern& m_pattern;
    std::unique_ptr<JsonList> m_list;
    bool m_isAnyFound = false;
    bool m_hasFailed = false;
};

/// Printed file names begin as `place` does.
void Finding::findIn(const QString& place)
{
    const QFileInfo info(place);
    if (!info.exists()) {
        fail(Text::tr("There is no file or folder '%1'.").arg(place));
        return;
    }
    const QString root = QDir::cleanPath(info.absoluteFilePath());
    const QStringList paths =
        info.isDir() ? Operations::codeFiles(place, m_invocation.kinds) : QStringList(root);
    Operations::searchFiles(paths, m_pattern, [&](const FileHits& found) {
        take(found, QDir::cleanPath(place + found.path.mid(root.size())));
    });
}

void Finding::take(const FileHits& found, const QString& name)
{
    if (!found.error.isEmpty()) {
        fail(found.error);
    }
    if (found.hits.isEmpty()) {
        return;
    }
    m_isAnyFound = true;
    if (m_invocation.replacement.isNull()) {
        tellHits(found, name);
    } else {
        replace(found.path, name);
    }
}

void Finding::tellHits(const FileHits& found, const QString& name)
{
    int last = -1;
    for (const FindHit& hit : found.hits) {
        if (m_list) {
            m_list->add({{QStringLiteral("file"), name},
                         {QStringLiteral("line"), hit.line + 1},
                         {QStringLiteral("column"), hit.column + 1},
                         {QStringLiteral("length"), hit.length},
                         {QStringLiteral("text"), hit.shown}});
        } else if (hit.line != last) {
            m_output.writeLine({QStringLiteral("%1:%2:%3: %4")
                                    .arg(name, QString::number(hit.line + 1),
                                         QString::number(hit.column + 1), hit.shown)});
        }
        last = hit.line;
    }
}

int Finding::printDifference(const QString& path, const QString& name, QString* error)
{
    Zorv::FileText file;
    if (!file.read(*Zorv::FileSystemArchive::instance(), path, -1, error)) {
        return -1;
    }
    const Operations::Replaced replaced =
        Operations::replacedText(file.text, {m_pattern, m_invocation.replacement});
    if (!m_list) {
        m_output.write(Operations::unifiedDiff(file.text, replaced.text, name, name));
    }
    return replaced.count;
}

void Finding::replace(const QString& path, const QString& name)
{
    QString error;
    const int count =
        m_invocation.dryRun
            ? printDifference(path, name, &error)
            : Operations::replaceInFile(path, {m_pattern, m_invocation.replacement}, &error);
    if (count < 0) {
        fail(Text::tr("%1: Nothing is replaced: %2").arg(name, error));
    } else if (m_list) {
        m_list->add({{QStringLiteral("file"), name}, {QStringLiteral("replaced"), count}});
    } else if (!m_invocation.dryRun && count > 0) {
        m_output.writeLine({name, QString::number(count)});
    }
}

}  // namespace

int findText(const Invocation& invocation, Output& output)
{
    const FindPattern pattern(invocation.operands.first(), invocation.findOptions);
    if (pattern.isEmpty()) {
        return notDone(Text::tr("Expected a text to find; found an empty one."));
    }
    if (!pattern.error().isEmpty()) {
        return notDone(Text::tr("The expression is wrong. %1.").arg(pattern.error()));
    }
    Finding finding(invocation, output, pattern);
    for (const QString& place : invocation.operands.mid(1)) {
        finding.findIn(place);
    }
    return finding.status();
}

}  // namespace Cli
