#include "operations/media/outputfiles.h"

#include "operations/filechanges.h"
#include "operations/media/mediaresult.h"

#include <zorv/core/files.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QVector>
#include <algorithm>

namespace Operations {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::OutputFiles)
};

QString suffixOf(const QString& name)
{
    return QFileInfo(name).suffix();
}

QString baseOf(const QString& name)
{
    return QFileInfo(name).completeBaseName();
}

bool isFolder(const QString& place)
{
    return place.endsWith(QLatin1Char('/')) || QFileInfo(place).isDir() ||
           (suffixOf(place).isEmpty() && !place.contains(QLatin1Char('*')));
}

}  // namespace

bool OutputFiles::plan(const QStringList& names, const OutputRequest& request,
                       const QByteArray& format, MediaResult* refusal)
{
    const QString& place = request.place;
    m_names = names;
    m_force = request.force;
    m_suffix = QString::fromLatin1(request.format.isEmpty() ? format : request.format).toLower();
    m_pattern =
        !place.isEmpty() && isFolder(place) ? QDir(place).filePath(QStringLiteral("*")) : place;
    if (m_pattern.contains(QLatin1String("../"))) {
        // Resolves "..", because the folder before it may not exist yet.
        m_pattern = QDir::cleanPath(m_pattern);
    }
    if (!place.isEmpty() && !m_pattern.contains(QLatin1Char('*')) && names.size() > 1) {
        const QString pattern =
            QFileInfo(place).dir().filePath(QLatin1String("*.") + suffixOf(place));
        *refusal =
            MediaResult(Text::tr("'%1' is one file, and there are %2 to write. Name a "
                                 "folder, or a pattern such as '%3'.")
                            .arg(place, QString::number(names.size()), QDir::cleanPath(pattern)));
        return false;
    }
    const QString fault = pathFault();
    if (!fault.isEmpty()) {
        *refusal = MediaResult(fault);
    }
    return fault.isEmpty() && checkExisting(refusal);
}

QString OutputFiles::path(int index) const
{
    const QString& name = m_names.at(index);
    QString pattern = m_pattern;
    if (pattern.isEmpty()) {
        pattern = QFileInfo(name).path() + QLatin1String("/*");
        pattern.remove(0, pattern.startsWith(QLatin1String("./")) ? 2 : 0);
    }
    const int star = pattern.lastIndexOf(QLatin1Char('*'));
    if (star < 0) {
        return pattern;
    }
    const bool hasSuffix = !suffixOf(pattern).isEmpty();
    const QString suffix = m_suffix.isEmpty() ? suffixOf(name) : m_suffix;
    pattern.replace(star, 1, baseOf(name));
    return hasSuffix || suffix.isEmpty() ? pattern : pattern + QLatin1Char('.') + suffix;
}

QByteArray OutputFiles::format(int index) const
{
    return Zorv::fileExtension(path(index));
}

QString OutputFiles::write(int index, const QByteArray& bytes) const
{
    Zorv::SafeFile::Options options = Zorv::SafeFile::IsCopy;
    options.setFlag(Zorv::SafeFile::KeepsExisting, !m_force);
    QString error;
    Zorv::SafeFile::save(path(index), bytes, &error, options);
    return error;
}

QString OutputFiles::make(int index, const std::function<QByteArray(QString* error)>& result) const
{
    QString error;
    const auto change = [&] {
        error.clear();
        const QByteArray bytes = result(&error);
        error = error.isEmpty() ? write(index, bytes) : error;
    };
    changeAsOne(path(index), Others::GoAhead, change, &error);
    return error;
}

// Stores hashes, because the paths of many files would take more memory than the files in process.
QString OutputFiles::pathFault() const
{
    const auto target = [this](int i) {
        const QFileInfo info(path(i));
        const QString there = info.canonicalFilePath();
        return there.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : there;
    };
    QVector<QPair<uint, int>> hashes;
    hashes.reserve(count());
    for (int i = 0; i < count(); ++i) {
        hashes.append({qHash(target(i)), i});
    }
    std::sort(hashes.begin(), hashes.end());
    for (int i = 0; i < count(); ++i) {
        for (int j = i + 1; j < count() && hashes[j].first == hashes[i].first; ++j) {
            const int one = hashes[i].second;
            const int other = hashes[j].second;
            if (target(one) == target(other)) {
                return Text::tr("'%1' and '%2' would both become '%3'. Write them to different "
                                "folders.")
                    .arg(m_names[one], m_names[other], path(one));
            }
        }
    }
    return {};
}

bool OutputFiles::checkExisting(MediaResult* refusal) const
{
    QStringList taken;
    for (int i = 0; i < count(); ++i) {
        const QFileInfo info(path(i));
        if (info.exists() && (!m_force || !info.isFile())) {
            taken.append(path(i));
        }
    }
    if (taken.isEmpty()) {
        return true;
    }
    *refusal = MediaResult(
        m_force ? Text::tr("'%1' is no plain file and cannot be replaced.").arg(taken.first())
        : taken.size() == 1
            ? Text::tr("'%1' is there already. Nothing is written.").arg(taken.first())
            : Text::tr("%1 files are there already, such as '%2'. Nothing is written.")
                  .arg(QString::number(taken.size()), taken.first()));
    refusal->isTaken = !m_force;
    return false;
}

}  // namespace Operations
