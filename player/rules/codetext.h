#pragma once

#include "family/grammar/linereader.h"
#include "rules/fighterdata.h"

#include <QCoreApplication>
#include <QHash>

namespace Rules {

/// A group of a code file with its values. Values of sub-groups have keys such as "sub.key".
struct CodeGroup
{
    QString name;
    QString argument;
    TextPlace place;
    QVector<QPair<QString, QVariant>> values;

    /// The first value of a key; invalid if there is none.
    QVariant value(const char* key) const;
    bool hasSubGroup(const char* sub) const { return subGroups.contains(QLatin1String(sub)); }

    QStringList subGroups;
};

/// The text of all files of a character or stage in order, parsed to groups and animations.
class CodeText
{
    Q_DECLARE_TR_FUNCTIONS(Rules::CodeText)

public:
    /// `kind` is the kind of the main file. It is needed because a copy for an engine has no
    /// suffix.
    CodeText(const QString& gameFolder, const QString& mainFile, Family::FileKind kind);

    /// False, with `error`, if the main file cannot be read.
    bool read(QString* error);

    /// Parses a text instead of `read()`. Files that it names are not read.
    void take(const QString& text);

    const QVector<CodeGroup>& groups() const { return m_groups; }
    const QVector<Animation>& animations() const { return m_animations; }
    QStringList notes() const { return m_notes; }
    QString mainFile() const { return m_mainFile; }

    /// The files that were read or could not be read.
    QStringList files() const { return m_files; }

    /// The file for a path in the text; empty if it is outside of the game.
    QString pathOf(const QString& written) const;

    /// The values of all groups of this name in one group.
    CodeGroup joined(const char* name) const;

private:
    bool readFile(const QString& path, Family::FileKind kind, QString* error);
    void readText(const QString& text, const QString& path, Family::FileKind kind);
    void finishAll();
    void readNamed();
    void noteErrors(const Family::LineDetails& details, const TextPlace& place);
    void see(const Family::ParsedLine& line, const TextPlace& place);
    void seeValue(const Family::ParsedLine& line, const QString& written);
    void seeFrame(const Family::FrameData& data, int line);

    QString m_gameFolder;
    QString m_mainFile;
    Family::FileKind m_kind;
    QVector<CodeGroup> m_groups;
    QVector<Animation> m_animations;
    QStringList m_notes;
    QStringList m_files;

    // State while a file is read.
    Family::LineHead m_head;
    QString m_subGroup;
    Frame m_boxes;
    bool m_isInGroup = false;
};

}  // namespace Rules
