#include "operations/media/filepatterns.h"

#include "family/project/unreachable.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace Operations {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::FilePatterns)
};

bool isPattern(const QString& name)
{
    return std::any_of(name.begin(), name.end(), [](QChar c) {
        return c == QLatin1Char('*') || c == QLatin1Char('?') || c == QLatin1Char('[');
    });
}

/// The matches of one part of a pattern in a folder; `head` is the folder as the user named it.
QStringList matchesIn(const QString& head, const QString& part, bool isLast)
{
    const QDir::Filters kind = isLast ? QDir::Files : QDir::Dirs;
    const QStringList names =
        QDir(head.isEmpty() ? QStringLiteral(".") : head)
            .entryList({part}, kind | QDir::NoDotAndDotDot | QDir::CaseSensitive);
    QStringList paths;
    for (const QString& name : names) {
        paths.append(head + name + (isLast ? QString() : QStringLiteral("/")));
    }
    return paths;
}

QStringList matches(const QString& pattern)
{
    QStringList heads{QString()};
    const QStringList parts = pattern.split(QLatin1Char('/'));
    for (int i = 0; i < parts.size(); ++i) {
        const bool isLast = i + 1 == parts.size();
        QStringList next;
        for (const QString& head : qAsConst(heads)) {
            if (isPattern(parts[i])) {
                next += matchesIn(head, parts[i], isLast);
            } else {
                next += head + parts[i] + (isLast ? QString() : QStringLiteral("/"));
            }
        }
        heads = next;
    }
    QStringList files;
    std::copy_if(heads.begin(), heads.end(), std::back_inserter(files),
                 [](const QString& path) { return QFileInfo(path).isFile(); });
    QCollator order(QLocale(QLocale::English));
    order.setNumericMode(true);
    std::sort(files.begin(), files.end(), order);
    return files;
}

QString obstacle(const QString& name)
{
    const QFileInfo info(name);
    if (name.isEmpty()) {
        return Text::tr("Expected the name of a file; found an empty text.");
    }
    if (info.isDir()) {
        return Text::tr("'%1' is a folder. Name files in it, as with '%2'.")
            .arg(name, QDir(name).filePath(QStringLiteral("*.png")));
    }
    if (info.exists()) {
        return Text::tr("'%1' is not a plain file. Name a file on a disk.").arg(name);
    }
    return isPattern(name) ? Text::tr("No file matches '%1'.").arg(name)
                           : Family::orUnreachable(Text::tr("There is no file '%1'."), name);
}

}  // namespace

QStringList expandPatterns(const QStringList& names, QString* error)
{
    QStringList files;
    QSet<QString> known;
    for (const QString& name : names) {
        const QStringList found = QFileInfo(name).isFile() ? QStringList{name}
                                  : isPattern(name)        ? matches(name)
                                                           : QStringList();
        if (found.isEmpty()) {
            *error = obstacle(name);
            return {};
        }
        for (const QString& file : found) {
            // A link has its own name, and therefore its own result.
            const QFileInfo info(file);
            const QString place = info.dir().canonicalPath() + QLatin1Char('/') + info.fileName();
            if (!known.contains(place)) {
                known.insert(place);
                files.append(file);
            }
        }
    }
    return files;
}

}  // namespace Operations
