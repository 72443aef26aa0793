#pragma once

#include "family/check/problem.h"

#include <QAbstractListModel>
#include <QMap>

namespace App {

/// The problems of a game as rows: in order of files, and of places in them.
///
/// New problems of a file take the place of the old ones row by row, so that views keep where the
/// person is.
class ProblemModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ProblemModel(QObject* parent = nullptr);

    /// Replaces those of one file, which are in order.
    void setProblems(const QString& file, const Family::Problems& problems);

    /// Null outside of the list.
    const Family::Problem* problemAt(int row) const;

    /// The row of the first problem of a file, -1 if it has none.
    int firstRowOf(const QString& file) const;

    /// The row of the first problem of a file at a line or below it, counted from 1; the last row
    /// of the file if all stand above. -1 if it has none.
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

    QVector<File> m_files;          // by name; none is without problems
    mutable QVector<int> m_starts;  // the first row of each, and the end; empty if not known
    Family::ProblemTally m_count;
};

}  // namespace App
