#include "operations/create/create.h"

#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "operations/create/newfolder.h"
#include "operations/create/newname.h"
#include "operations/create/placeholders.h"
#include "operations/create/templates.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Operations {

using Family::FileKind;

namespace {

constexpr int PaletteBytes = 3 * 256;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Create)
};

Created failed(const QString& error)
{
    return {{}, error};
}

QString noTemplate(NewKind kind, const QString& name, const QString& suffix = {})
{
    return Text::tr("There is no template '%1'. There are: %2.")
        .arg(name, templateNames(kind, suffix).join(QLatin1String(", ")));
}

QString relativeFolder(FileKind kind, const QString& name)
{
    return (kind == FileKind::Stage ? QLatin1String("stages/") : QLatin1String("characters/")) +
           name;
}

/// Fills the folder of a project (path with "/" at the end). Returns an error, or nothing.
QString fillProject(const QString& folder, FileKind kind, const QString& name,
                    const QString& templateName)
{
    const NewKind newKind = kind == FileKind::Stage ? NewKind::Stage : NewKind::Character;
    const QString from = templatePath(newKind, templateName);
    if (from.isEmpty()) {
        return noTemplate(newKind, templateName);
    }
    QString error;
    const QString mainFile = folder + name + fileSuffix(kind);
    if (!fillTemplate(from, folder, {name, QDate::currentDate()}, &error)) {
        return error;
    }
    if (!QFileInfo::exists(mainFile)) {
        return Text::tr("The template '%1' has no file '{name}%2'. Give it one.")
            .arg(QDir::toNativeSeparators(from), fileSuffix(kind));
    }
    drawPlaceholders(mainFile, &error);
    return error;
}

/// The palette of a new costume: greys, starting with the transparent colour.
QByteArray newPalette()
{
    QByteArray bytes(PaletteBytes, '\0');
    for (int i = 0; i < bytes.size(); ++i) {
        bytes[i] = char(i / 3);
    }
    bytes[0] = bytes[2] = char(255);
    return bytes;
}

Created createText(const QString& path, const QString& suffix, const QString& templateName)
{
    const QString from = templatePath(NewKind::File, templateName, suffix);
    if (from.isEmpty()) {
        return failed(noTemplate(NewKind::File, templateName, suffix));
    }
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly)) {
        return failed(Text::tr("Cannot read the template '%1': %2.").arg(from, file.errorString()));
    }
    const TemplateMarks marks{QFileInfo(path).completeBaseName(), QDate::currentDate()};
    QString error;
    return Zorv::SafeFile::save(path, marks.inText(file.readAll()), &error,
                                Zorv::SafeFile::KeepsExisting)
               ? Created{path, {}}
               : failed(error);
}

template <class Collection>
Created createCollection(const QString& path)
{
    Collection empty;
    return QDir().mkpath(QFileInfo(path).absolutePath()) &&
                   empty.toFile(*Zorv::FileSystemArchive::instance(), path, true)
               ? Created{path, {}}
               : failed(empty.errorString().isEmpty()
                            ? Text::tr("Cannot make the file %1. Check the permissions of its "
                                       "folder.")
                                  .arg(QDir::toNativeSeparators(path))
                            : empty.errorString());
}

Created createPalette(const QString& path)
{
    QString error;
    return Zorv::SafeFile::save(path, newPalette(), &error, Zorv::SafeFile::KeepsExisting)
               ? Created{path, {}}
               : failed(error);
}

}  // namespace

QStringList newFileSuffixes()
{
    QStringList suffixes{QStringLiteral(".sprites"), QStringLiteral(".sounds"),
                         QStringLiteral(".act")};
    for (const FileKind kind : {FileKind::Commands, FileKind::Animations, FileKind::Code,
                                FileKind::Stage, FileKind::Character}) {
        suffixes.prepend(Family::fileSuffix(kind));
    }
    return suffixes;
}

QString newProjectFolder(const QString& game, FileKind kind, const QString& name)
{
    return QDir::cleanPath(QFileInfo(game).absoluteFilePath() + QLatin1Char('/') +
                           relativeFolder(kind, name));
}

Created createGame(const NewGame& game)
{
    const QString folder = QDir::cleanPath(QFileInfo(game.folder).absoluteFilePath());
    const QString name = QFileInfo(folder).fileName();
    for (const QString& each : {name, game.character, game.stage}) {
        const QString fault = newNameFault(each);
        if (!fault.isEmpty()) {
            return failed(fault);
        }
    }
    const QString from = templatePath(NewKind::Game, game.templateName);
    if (from.isEmpty()) {
        return failed(noTemplate(NewKind::Game, game.templateName));
    }
    NewFolder made(folder);
    QString error;
    if (!made.begin(&error)) {
        return failed(error);
    }
    fillTemplate(from, made.path(), {name, QDate::currentDate()}, &error);
    for (const FileKind kind : {FileKind::Character, FileKind::Stage}) {
        const QString& project = kind == FileKind::Stage ? game.stage : game.character;
        if (error.isEmpty()) {
            error = fillProject(made.path() + relativeFolder(kind, project) + QLatin1Char('/'),
                                kind, project, {});
        }
    }
    if (!error.isEmpty() || !made.finish(&error)) {
        return failed(made.told(error));
    }
    return {folder, {}};
}

Created createProject(const QString& game, FileKind kind, const QString& name,
                      const QString& templateName)
{
    const QString fault = newNameFault(name);
    if (!fault.isEmpty()) {
        return failed(fault);
    }
    if (!QFileInfo(game).isDir()) {
        return failed(Text::tr("There is no folder %1. Choose the folder of a game.")
                          .arg(QDir::toNativeSeparators(game)));
    }
    const QString folder = newProjectFolder(game, kind, name);
    const QString around = QFileInfo(folder).absolutePath();
    const bool isNewAround = !QFileInfo::exists(around);
    if (isNewAround && !QDir().mkdir(around)) {
        return failed(NewFolder::cannotWrite(QFileInfo(game).absoluteFilePath()));
    }
    QString error;
    {
        NewFolder made(folder);
        if (made.begin(&error)) {
            error = fillProject(made.path(), kind, name, templateName);
            if (!error.isEmpty() || !made.finish(&error)) {
                error = made.told(error);
            }
        }
    }
    if (!error.isEmpty()) {
        if (isNewAround) {
            QDir().rmdir(around);
        }
        return failed(error);
    }
    return {folder + QLatin1Char('/') + name + fileSuffix(kind), {}};
}

Created createFile(const QString& path, const QString& templateName)
{
    const QFileInfo info(path);
    const QString place = QDir::cleanPath(info.absoluteFilePath());
    const QString suffix = QLatin1Char('.') + info.suffix().toLower();
    const QString fault = newNameFault(info.fileName());
    if (!fault.isEmpty()) {
        return failed(fault);
    }
    if (!newFileSuffixes().contains(suffix)) {
        return failed(Text::tr("A file is called by what is in it: its name ends in one of %1.")
                          .arg(newFileSuffixes().join(QLatin1String(", "))));
    }
    if (info.exists() || info.isSymLink()) {
        return failed(Text::tr("%1 is there already. Choose another name.")
                          .arg(QDir::toNativeSeparators(place)));
    }
    if (suffix == QLatin1String(".sprites")) {
        return createCollection<Family::SpriteFile>(place);
    }
    if (suffix == QLatin1String(".sounds")) {
        return createCollection<Family::SoundFile>(place);
    }
    return suffix == QLatin1String(".act") ? createPalette(place)
                                           : createText(place, suffix, templateName);
}

}  // namespace Operations
