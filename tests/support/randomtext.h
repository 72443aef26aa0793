#pragma once

#include <QRandomGenerator>
#include <QStringList>

class QTextDocument;

/// Random texts and edits in a grammar, for properties that hold whatever is
/// done to a text.
class RandomText
{
public:
    /// `lines` are whole lines to choose from, `keys` single characters to type.
    RandomText(const QStringList& lines, const QString& keys);

    /// One of the lines.
    QString line(QRandomGenerator& random) const;

    /// Up to `most` of them.
    QString lines(QRandomGenerator& random, int most) const;

    /// Types, inserts, replaces, deletes, undoes or redoes something anywhere.
    void edit(QRandomGenerator& random, QTextDocument& document) const;

private:
    QStringList m_lines;
    QString m_keys;
};
