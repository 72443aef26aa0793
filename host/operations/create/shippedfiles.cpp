#include "operations/create/shippedfiles.h"

#include "family/project/familyparentproject.h"
#include "operations/create/newfolder.h"

#include <zorv/core/files.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace Operations {

namespace {

constexpr int MaxLevels = 4;  // from a program in the source tree to its root

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Create)
};

/// A file of the installation, or of the source tree that the program was built in.
QString shipped(const QString& installed, const QString& inTree)
{
    QDir folder(QCoreApplication::applicationDirPath());
    QString found = folder.filePath(QLatin1String("../share/") + installed);
    for (int i = 0; i < MaxLevels && !QFileInfo::exists(found) && folder.cdUp(); ++i) {
        found = folder.filePath(inTree);
    }
    return QFileInfo::exists(found) ? QDir::cleanPath(found) : QString();
}

}  // namespace

QString sampleGame()
{
    const QString main = QStringLiteral("samples/arena/characters/maren/maren.character");
    const QString found = shipped(QLatin1String("zorv/") + main, main);
    return found.isEmpty() ? QString() : QDir::cleanPath(found + QLatin1String("/../../.."));
}

QString documentationPage(const QString& name)
{
    return shipped(QLatin1String("doc/zorv/docs/") + name, QLatin1String("docs/") + name);
}

QString copySample(const QString& folder)
{
    if (!Family::FamilyParentProject::mainFiles(folder).isEmpty()) {
        return {};
    }
    const QString sample = sampleGame();
    if (sample.isEmpty()) {
        return Text::tr("The sample game is not beside the program. Install the program anew.");
    }
    NewFolder made(folder);
    QString error;
    if (!made.begin(&error)) {
        return error;
    }
    Zorv::FileSystemArchive& disk = *Zorv::FileSystemArchive::instance();
    QDirIterator files(sample, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = made.path() + QDir(sample).relativeFilePath(from);
        const bool isCopied =
            Zorv::forcePath(to) && Zorv::copyFile(disk, from, disk, to, &error) && error.isEmpty();
        if (!isCopied) {
            return error.isEmpty() ? Text::tr("Cannot copy the file '%1'. Check that there is "
                                              "space on the disk.")
                                         .arg(from)
                                   : made.told(error);
        }
    }
    made.finish(&error);
    return error;
}

}  // namespace Operations
