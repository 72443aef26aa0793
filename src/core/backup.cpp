#include "core/parentproject.h"

#include "core/interface.h"
#include "core/parentproject_p.h"
#include "core/progressreporter.h"

#include <QDateTime>
#include <QDir>

namespace Zorv {

bool ParentProject::backup(const QString& name)
{
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yyyy_h.m.s_ap_"));
    const QString folder =
        absolutePath() + QStringLiteral("backup/") + time + name + QLatin1Char('/');
    if (!QDir().mkpath(folder)) {
        return true;
    }

    const QList<Project*> projects = openedProjects();
    Interface* host = Interface::instance();
    ProgressReporter* progress = host ? host->progress(tr("Backup in progress..."), 0) : nullptr;
    if (progress) {
        progress->update(0, projects.size());
    }
    int done = 0;
    for (Project* project : projects) {
        project->saveAll(folder, true, nullptr);
        if (progress) {
            progress->update(++done, 0);
        }
    }
    if (progress) {
        progress->finish();
    }
    return true;
}

}  // namespace Zorv
