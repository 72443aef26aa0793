#pragma once

#include <QDate>
#include <QStringList>

namespace Operations {

/// The kinds of things that New creates.
enum class NewKind { Game, Character, Stage, File };

/// The values for the placeholders in the texts and file names of a template.
struct TemplateMarks
{
    QString name;  ///< valid according to `newNameFault()`
    QDate date;

    /// Replaces "{name}" in a file name.
    QString inName(QString fileName) const;

    /// Replaces all placeholders and uses the line ends that the program writes. A text that is not
    /// UTF-8 is returned unchanged.
    QByteArray inText(const QByteArray& text) const;
};

/// The names of the templates of a kind, in order, including the user's own. For files, `suffix`
/// (such as ".code") selects the templates of one suffix; a template file is a template for its own
/// suffix.
QStringList templateNames(NewKind kind, const QString& suffix = {});

/// The path of a template: a folder, with "/" at the end, or a file. The user's own template takes
/// precedence over a shipped one. An empty name means the first shipped one. Empty if there is no
/// template of that name.
QString templatePath(NewKind kind, const QString& name, const QString& suffix = {});

/// The folder for the user's own templates.
QString ownTemplates();

/// Copies all files of a folder template into a folder and fills in the placeholders. False, with
/// `error` for the user, if one cannot be read or written.
bool fillTemplate(const QString& templateFolder, const QString& folder, const TemplateMarks& marks,
                  QString* error);

}  // namespace Operations
