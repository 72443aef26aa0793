#pragma once

#include <QDate>
#include <QStringList>

namespace Operations {

/// What New makes.
enum class NewKind { Game, Character, Stage, File };

/// What is filled into the texts and file names of a template.
struct TemplateMarks
{
    QString name;  ///< one that `newNameFault()` finds nothing in
    QDate date;

    /// With the name in place of "{name}".
    QString inName(QString fileName) const;

    /// With all marks filled in, and the line ends that the program writes. A text that is not in
    /// UTF-8 stays as it is.
    QByteArray inText(const QByteArray& text) const;
};

/// The names of the templates of a kind, in order, the person's own among them. A template for a
/// file stands for its suffix; of files only those of one suffix, as in ".code", are told.
QStringList templateNames(NewKind kind, const QString& suffix = {});

/// The folder, or for a file the file, of a template; with "/" at the end of a folder. The
/// person's own goes before ours. An empty name stands for the first of ours. Empty if there is
/// none of the name.
QString templatePath(NewKind kind, const QString& name, const QString& suffix = {});

/// The folder for the person's own templates.
QString ownTemplates();

/// Copies all files of a template of folders into a folder, with the marks filled in. False, with
/// `error` for the person, if one cannot be read or written.
bool fillTemplate(const QString& templateFolder, const QString& folder, const TemplateMarks& marks,
                  QString* error);

}  // namespace Operations
