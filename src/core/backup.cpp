#include "core/parentproject.h"

#include "core/folders_p.h"
#include "core/lazysync_p.h"
#include "core/parentproject_p.h"
#include "core/progress_p.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace Zorv {

namespace {

const QLatin1String backupFolder("backup/");

// The texts for morning and evening must not follow the language: a backup is
// to be recognised on another machine.
QString timeText(const QDateTime& time)
{
    return QLocale::c().toString(time, QStringLiteral("dd.MM.yyyy_h.m.s_ap_"));
}

// A slash is no part of a name: the backup would lie elsewhere.
bool makeFolder(const QString& root, const QString& name)
{
    return !name.contains(QLatin1Char('/')) && QDir().mkpath(root + backupFolder + name);
}

}  // namespace

bool ParentProject::backup(const QString& name)
{
    const QString folderName = timeText(QDateTime::currentDateTime()) + name;
    d->beginWork();
    if (!makeFolder(absolutePath(), folderName)) {
        d->failedFiles.append(backupFolder + folderName);
        return true;
    }
    const QString folder = absolutePath() + backupFolder + folderName + QLatin1Char('/');
    const QVector<QPointer<Project>> projects = d->openProjects();
    const LazySync lazy;
    Progress progress(tr("Backup in progress..."), projects.size());
    for (const QPointer<Project>& project : projects) {
        if (project) {
            const QString place = project->basePath();
            project->saveAll(folder, true, nullptr);
            d->addFailedFiles(*project, place);
        }
        if (!progress.step()) {
            break;
        }
    }
    d->isCanceled = progress.isCanceled();
    return true;
}

QStringList ParentProject::backups() const
{
    QStringList names =
        QDir(absolutePath() + backupFolder)
            .entryList(QDir::Dirs | QDir::Readable | QDir::NoSymLinks | QDir::NoDotAndDotDot,
                       QDir::Name);
    std::stable_sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return backupTime(a) > backupTime(b);
    });
    return names;
}

QDateTime ParentProject::backupTime(const QString& folderName, QString* name)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d\\d\\.\\d\\d\\.\\d{4}_\\d\\d?\\.\\d\\d?\\.\\d\\d?_(?:am|pm))_"));
    const QRegularExpressionMatch match = form.match(folderName);
    const QDateTime time =
        QLocale::c().toDateTime(match.captured(1).toUpper(), QStringLiteral("dd.MM.yyyy_h.m.s_AP"));
    if (name) {
        *name = time.isValid() ? folderName.mid(match.capturedLength()) : folderName;
    }
    return time;
}

QStringList ParentProject::backupFiles(const QString& folderName) const
{
    QStringList files;
    if (isPlainName(folderName)) {
        const QString source = absolutePath() + backupFolder + folderName + QLatin1Char('/');
        listFiles(source, files);
        for (QString& file : files) {
            file.remove(0, source.size());
        }
    }
    return files;
}

}  // namespace Zorv
