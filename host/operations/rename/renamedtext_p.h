#pragma once

#include "operations/rename/renameplan.h"

#include <QHash>
#include <QMap>

#include <memory>

namespace Operations {

/// A text file in which names are replaced and every other byte stays the same.
class RenamedText
{
public:
    /// Reads the file. `fault()` says whether it can be changed.
    explicit RenamedText(const QString& path);

    /// Replaces the subject at a use by `name`: a word, "200,0", or a path. Sets a fault if the
    /// file no longer names it there.
    void replace(const NameUse& use, const Subject& subject, const QString& name);

    /// Builds the new bytes and parses them again to verify: the new names are there, and
    /// everything else is as before.
    void finish();

    ChangeSet::Text change() const { return {m_path, m_bytes, m_newBytes}; }
    QVector<RenamedLine> lines() const;

    /// Why it cannot be changed, for the user; empty if it can.
    QString fault() const { return m_fault; }

private:
    struct Line
    {
        int start;
        int end;
    };
    struct Replaced
    {
        int column;
        QString name;
        QString line;
    };

    void findLines();
    bool isNamedAt(const NameUse& use, const Subject& subject);
    QString lineText(int line) const;
    QString textOf(bool isNew) const;
    void encode(const QString& text);
    void readAgain();

    QString m_path;
    QByteArray m_bytes;
    QByteArray m_newBytes;
    int m_codec = -1;
    QString m_text;  // with the line ends of the file
    QVector<Line> m_lines;
    QMap<int, Replaced> m_replaced;  // by line, from 1: no line has two names
    QString m_fault;
    std::shared_ptr<const FileNames> m_names;  // the names that are in the file now
    QHash<int, Family::LineName> m_places;     // the words among them, by line
};

}  // namespace Operations
