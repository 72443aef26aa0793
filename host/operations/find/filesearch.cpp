#include "operations/find/filesearch.h"

#include "operations/find/bytefilter.h"
#include "operations/find/findpattern.h"

#include <zorv/core/jobs.h>

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace Operations {

namespace {

/// The size of a job: searching a single file takes less time than handing it to a thread.
constexpr int FilesAtOnce = 100;

QVector<FileHits> searchPart(const QStringList& paths, const QString& text, int options)
{
    const StopFlag never{false};
    const FindPattern pattern(text, options);
    const ByteFilter filter(pattern);
    QVector<FileHits> found;
    for (const QString& path : paths) {
        const FileHits hits =
            searchFile(path, pattern, filter, std::numeric_limits<int>::max(), never);
        if (!hits.hits.isEmpty() || !hits.error.isEmpty()) {
            found.append(hits);
        }
    }
    return found;
}

}  // namespace

bool searchFiles(const QStringList& paths, const FindPattern& pattern,
                 const std::function<void(const FileHits&)>& take)
{
    const int parts = (paths.size() + FilesAtOnce - 1) / FilesAtOnce;
    return Zorv::runJobs<QVector<FileHits>>(
        QCoreApplication::translate("Operations::FileSearch", "Find in files"), parts,
        [&](int i) {
            return [part = paths.mid(i * FilesAtOnce, FilesAtOnce), text = pattern.text(),
                    options = pattern.options()] { return searchPart(part, text, options); };
        },
        [&](int, const QVector<FileHits>& found) {
            std::for_each(found.begin(), found.end(), take);
        });
}

}  // namespace Operations
