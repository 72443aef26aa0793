#include "operations/media/outputfiles.h"

#include "core/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

namespace Family {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::OutputFiles)
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

/// The suffix of a result: what was asked for, else that of its source.
QString wantedSuffix(const QString& name, const OutputRequest& request, const QByteArray& format)
{
    if (!request.format.isEmpty()) {
        return QString::fromLatin1(request.format).toLower();
    }
    return format.isEmpty() ? suffixOf(name) : QString::fromLatin1(format).toLower();
}

QString pathOf(const QString& name, const OutputRequest& request, const QByteArray& format)
{
    QString place = request.place;
    if (place.isEmpty()) {
        place = QFileInfo(name).path() + QLatin1String("/*");
        place.remove(0, place.startsWith(QLatin1String("./")) ? 2 : 0);
    } else if (isFolder(place)) {
        place = QDir(place).filePath(QStringLiteral("*"));
    }
    const int star = place.lastIndexOf(QLatin1Char('*'));
    if (star >= 0) {
        const bool hasSuffix = !suffixOf(place).isEmpty();
        place.replace(star, 1, baseOf(name));
        const QString suffix = wantedSuffix(name, request, format);
        return hasSuffix || suffix.isEmpty() ? place : place + QLatin1Char('.') + suffix;
    }
    return place;
}

/// A result that replaces nothing is whole under another name first. It need not have reached the
/// disk: what it was made of is there still.
QString writeNew(const QString& path, const QByteArray& bytes)
{
    const QFileInfo target(path);
    QFile part(QStringLiteral("%1/.%2.%3-0.zorv-save")
                   .arg(target.absolutePath(), target.fileName())
                   .arg(QCoreApplication::applicationPid()));
    const QString advice = Text::tr("Cannot write '%1': %2. Check the folder and the space on it.");
    Zorv::forcePath(path);
    if (!part.open(QIODevice::WriteOnly | QIODevice::Unbuffered | QIODevice::Truncate)) {
        return advice.arg(path, part.errorString());
    }
    const bool isWritten = part.write(bytes) == bytes.size();
    QString reason = part.errorString();
    part.close();
    if (isWritten && part.rename(path)) {
        return {};
    }
    reason = isWritten ? part.errorString() : reason;
    part.remove();
    return advice.arg(path, reason);
}

/// What is replaced may be the one copy of a picture: the result has reached the disk first.
/// Without a buffer no failed write is missed.
QString writeOver(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
        file.write(bytes) == bytes.size() && file.commit()) {
        return {};
    }
    return Text::tr("Cannot replace '%1': %2. It is unchanged.").arg(path, file.errorString());
}

}  // namespace

bool OutputFiles::plan(const QStringList& names, const OutputRequest& request,
                       const QByteArray& format, QString* error)
{
    m_force = request.force;
    m_paths.clear();
    for (const QString& name : names) {
        m_paths.append(pathOf(name, request, format));
    }
    const bool isOneFile = !request.place.isEmpty() && !isFolder(request.place) &&
                           !request.place.contains(QLatin1Char('*'));
    if (isOneFile && names.size() > 1) {
        *error =
            Text::tr("'%1' is one file, and there are %2 to write. Name a folder, or a "
                     "pattern such as '%3'.")
                .arg(request.place, QString::number(names.size()),
                     QDir::cleanPath(QFileInfo(request.place)
                                         .dir()
                                         .filePath(QLatin1String("*.") + suffixOf(request.place))));
        return false;
    }
    return checkPaths(names, error) && checkExisting(error);
}

QByteArray OutputFiles::format(int index) const
{
    return Zorv::fileExtension(m_paths.at(index));
}

QString OutputFiles::write(int index, const QByteArray& bytes) const
{
    const QString path = m_paths.at(index);
    return m_force && QFileInfo::exists(path) ? writeOver(path, bytes) : writeNew(path, bytes);
}

bool OutputFiles::checkPaths(const QStringList& names, QString* error) const
{
    QHash<QString, int> seen;
    for (int i = 0; i < m_paths.size(); ++i) {
        const QString path = QDir::cleanPath(QFileInfo(m_paths[i]).absoluteFilePath());
        const auto other = seen.constFind(path);
        if (other != seen.constEnd()) {
            *error = Text::tr("'%1' and '%2' would both become '%3'. Write them to different "
                              "folders.")
                         .arg(names[*other], names[i], m_paths[i]);
            return false;
        }
        seen.insert(path, i);
    }
    return true;
}

bool OutputFiles::checkExisting(QString* error) const
{
    QStringList taken;
    for (const QString& path : m_paths) {
        if (QFileInfo::exists(path) && (!m_force || !QFileInfo(path).isFile())) {
            taken.append(path);
        }
    }
    if (taken.isEmpty()) {
        return true;
    }
    if (m_force) {
        *error = Text::tr("'%1' is no plain file and cannot be replaced.").arg(taken.first());
    } else if (taken.size() == 1) {
        *error = Text::tr("'%1' is there already. Nothing is written. Name another place, or "
                          "replace it with '--force'.")
                     .arg(taken.first());
    } else {
        *error = Text::tr("%1 files are there already, such as '%2'. Nothing is written. Name "
                          "another place, or replace them with '--force'.")
                     .arg(QString::number(taken.size()), taken.first());
    }
    return false;
}

}  // namespace Family
