#pragma once

#include "operations/rename/renameplan.h"

#include <QHash>
#include <QMap>

#include <memory>

namespace Operations {

/// A text file of which some names are replaced, and every other byte stays.
class RenamedText
{
public:
    /// Reads it. `fault()` tells if it cannot be changed.
    explicit RenamedText(const QString& path);

    /// Puts `name` in the place of the subject at a use: a word, "200,0", or a path. A fault if the
    /// file names it there no longer.
    void replace(const NameUse& use, const Subject& subject, const QString& name);

    /// Makes the new bytes. They are read again: what is replaced is named, and all else as before.
    void finish();

    ChangeSet::Text change() const { return {m_path, m_bytes, m_newBytes}; }
    QVector<RenamedLine> lines() const;

    /// Why it cannot be changed, for the person; empty if it can.
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
    std::shared_ptr<const FileNames> m_names;  // what the file says now
    QHash<int, Family::LineName> m_places;     // of them the words, by line
};

}  // namespace Operations
