#include "operations/create/templates.h"

#include "family/grammar/filekind.h"

#include <zorv/core/files.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextCodec>

// The library is linked statically, so nothing else loads its resources. Qt's macro requires a
// function in the global namespace.
static void initTemplates()
{
    Q_INIT_RESOURCE(templates);
}

namespace Operations {

namespace {

constexpr qint64 MaxText = 4 * 1024 * 1024;  // larger files contain no placeholders

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Create)
};

struct KindRow
{
    NewKind kind;
    const char* folder;
    const char* first;  ///< the template for an empty name
};

constexpr KindRow rows[] = {
    {NewKind::Game, "game", "duel"},
    {NewKind::Character, "character", "fighter"},
    {NewKind::Stage, "stage", "training-room"},
    {NewKind::File, "file", "plain"},
};

/// The folders of a kind: the user's own first, then the shipped one.
QStringList foldersOf(NewKind kind)
{
    initTemplates();
    const QString name = QLatin1Char('/') + QLatin1String(rows[int(kind)].folder);
    return {ownTemplates() + name, QLatin1String(":/templates") + name};
}

bool isText(const QString& fileName)
{
    return Family::hasCodeSuffix(fileName) || fileName.endsWith(QLatin1String(".txt"));
}

bool readAll(const QString& fileName, QByteArray* bytes)
{
    QFile file(fileName);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    *bytes = isOpen ? file.readAll() : QByteArray();
    return isOpen && file.error() == QFile::NoError;
}

bool fillFile(const QString& from, const QString& to, const TemplateMarks& marks, QString* error)
{
    if (!isText(from) || QFileInfo(from).size() > MaxText) {
        Zorv::FileSystemArchive& disk = *Zorv::FileSystemArchive::instance();
        const bool isCopied =
            Zorv::forcePath(to) && Zorv::copyFile(disk, from, disk, to, error) && error->isEmpty();
        if (!isCopied && error->isEmpty()) {
            *error = Text::tr("Cannot copy the file '%1' of the template.").arg(from);
        }
        return isCopied;
    }
    QByteArray bytes;
    if (!readAll(from, &bytes)) {
        *error =
            Text::tr("Cannot read the file '%1' of the template. Check its permissions.").arg(from);
        return false;
    }
    return Zorv::SafeFile::save(to, marks.inText(bytes), error);
}

}  // namespace

QString TemplateMarks::inName(QString fileName) const
{
    return fileName.replace(QLatin1String("{name}"), name);
}

QByteArray TemplateMarks::inText(const QByteArray& text) const
{
    QTextCodec::ConverterState state;
    QString filled =
        QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        return text;
    }
    filled.replace(QLatin1String("{date}"), date.toString(Qt::ISODate));
    filled.replace(QLatin1String("{name}"), name);
    filled.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    filled.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return filled.toUtf8();
}

QString ownTemplates()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/zorv/templates");
}

QStringList templateNames(NewKind kind, const QString& suffix)
{
    QStringList names;
    for (const QString& folder : foldersOf(kind)) {
        const QFileInfoList entries =
            kind == NewKind::File
                ? QDir(folder).entryInfoList({QLatin1Char('*') + suffix}, QDir::Files)
                : QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            names.append(kind == NewKind::File ? entry.completeBaseName() : entry.fileName());
        }
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

QString templatePath(NewKind kind, const QString& name, const QString& suffix)
{
    const QString wanted = name.isEmpty() ? QLatin1String(rows[int(kind)].first) : name;
    // A name must not be a path to another folder.
    if (!templateNames(kind, suffix).contains(wanted)) {
        return {};
    }
    for (const QString& folder : foldersOf(kind)) {
        const QFileInfo info(folder + QLatin1Char('/') + wanted + suffix);
        if (kind == NewKind::File ? info.isFile() : info.isDir()) {
            return info.absoluteFilePath() + (kind == NewKind::File ? "" : "/");
        }
    }
    return {};
}

bool fillTemplate(const QString& templateFolder, const QString& folder, const TemplateMarks& marks,
                  QString* error)
{
    QDirIterator files(templateFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = folder + marks.inName(from.mid(templateFolder.size()));
        if (!fillFile(from, to, marks, error)) {
            return false;
        }
    }
    return true;
}

}  // namespace Operations
