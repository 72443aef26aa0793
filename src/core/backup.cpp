#include "core/parentproject.h"

#include "core/fileinput.h"
#include "core/folders_p.h"
#include "core/lazysync_p.h"
#include "core/newbackup_p.h"
#include "core/parentproject_p.h"
#include "core/progress.h"
#include "core/project_p.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace Zorv {

namespace {

const QLatin1String backupFolder("backup/");

// "am" and "pm" must not depend on the language: other machines must be able to parse the name.
QString timeText(const QDateTime& time)
{
    return QLocale::c().toString(time, QStringLiteral("dd.MM.yyyy_h.m.s_ap_"));
}

}  // namespace

bool ParentProject::backup(const QString& name)
{
    makeBackup(name);
    return true;
}

QString ParentProject::makeBackup(const QString& name,
                                  const std::function<bool(const QString& folder)>& isComplete)
{
    const QString folderName = timeText(QDateTime::currentDateTime()) + name;
    d->beginWork();
    FileInput::takeOf(this);
    NewBackup made(absolutePath() + backupFolder, folderName);
    if (made.path().isEmpty()) {
        d->failedFiles.append(backupFolder + folderName);
        return {};
    }
    const bool isWhole = d->copyProjects(made.path());
    if (d->isCanceled || !(isComplete ? isComplete(made.path()) : isWhole)) {
        return {};
    }
    if (!made.finish()) {
        d->failedFiles.append(backupFolder + folderName);
        return {};
    }
    return folderName;
}

/// True if everything that exists has been copied.
bool ParentProjectPrivate::copyProjects(const QString& folder)
{
    const QVector<QPointer<Project>> opened = openProjects();
    const LazySync lazy;
    Progress progress(ParentProject::tr("Backup in progress..."), opened.size());
    bool isWhole = true;
    for (const QPointer<Project>& project : opened) {
        if (project) {
            const QString place = project->basePath();
            project->saveAll(folder, true, nullptr);
            addFailedFiles(*project, place);
            isWhole = isWhole && !project->d->hasWriteFailure;
        }
        if (!progress.step()) {
            break;
        }
    }
    isCanceled = progress.isCanceled();
    return isWhole &&
           std::none_of(failedFiles.begin(), failedFiles.end(), [this](const QString& file) {
               return QFileInfo::exists(absolutePath() + file);
           });
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
    if (NewBackup::isWholeName(folderName)) {
        const QString source = absolutePath() + backupFolder + folderName + QLatin1Char('/');
        listFiles(source, files);
        for (QString& file : files) {
            file.remove(0, source.size());
        }
    }
    return files;
}

}  // namespace Zorv
