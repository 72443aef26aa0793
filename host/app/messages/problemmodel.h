#pragma once

#include "family/check/problem.h"

#include <QAbstractListModel>
#include <QMap>

namespace App {

/// The problems of a game as rows, sorted by file and by position in the file.
///
/// New problems of a file replace the old ones row by row, so that views keep their position.
class ProblemModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ProblemModel(QObject* parent = nullptr);

    /// Replaces the problems of one file; they must be sorted.
    void setProblems(const QString& file, const Family::Problems& problems);

    /// Null outside the list.
    const Family::Problem* problemAt(int row) const;

    /// The row of the first problem of a file, -1 if it has none.
    int firstRowOf(const QString& file) const;

    /// The row of the first problem at a line of a file or below it, counted from 1; the file's
    /// last row if all problems are above. -1 if the file has none.
    int rowAt(const QString& file, int line) const;

    const Family::ProblemTally& count() const { return m_count; }

    int rowCount(const QModelIndex& parent = {}) const override;

    /// `Qt::DisplayRole` is "file (line) : text", `Qt::DecorationRole` an icon by level.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    struct File
    {
        QString name;
        Family::Problems problems;
    };

    QVector<File>::iterator find(const QString& file);
    void replace(File* file, int first, const Family::Problems& problems);
    const QVector<int>& starts() const;

    QVector<File> m_files;          // sorted by name; each has problems
    mutable QVector<int> m_starts;  // first row of each file, and the end; empty if not computed
    Family::ProblemTally m_count;
};

}  // namespace App
