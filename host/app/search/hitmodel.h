#pragma once

#include "operations/find/textsearch.h"

#include <QAbstractItemModel>
#include <QDir>

#include <memory>
#include <vector>

namespace App {

/// The results of a search in a game: files, and below each file its lines.
///
/// Check boxes exclude places from replacing. When a file is searched again, places that are the
/// same except for their line number keep their rows and check boxes.
class HitModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit HitModel(QObject* parent = nullptr);
    ~HitModel() override;

    void clear();

    /// The folder to which names are relative.
    void setFolder(const QString& folder) { m_folder = QDir(folder); }

    /// Updates the results of some files; a file without results is removed.
    void take(const QVector<Operations::FileHits>& found);

    /// Shows check boxes.
    void setCheckable(bool isCheckable);

    int fileCount() const { return int(m_files.size()); }
    int hitCount() const { return m_hitCount; }

    /// The place of a row; null for a file row.
    const Operations::FindHit* hitAt(const QModelIndex& index) const;

    /// The path of a row, or of its parent file; empty for none.
    QString pathAt(const QModelIndex& index) const;

    /// The ticked places, of files that have any.
    QVector<Operations::FileHits> chosen() const;
    int chosenCount() const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct File;
    using Files = std::vector<std::unique_ptr<File>>;

    Files::const_iterator find(const QString& path) const;
    int rowOf(const File* file) const;
    File* fileOf(const QModelIndex& index) const;
    void append(const QVector<Operations::FileHits>& found);
    void takeOne(const Operations::FileHits& found);
    void replace(int row, const Operations::FileHits& found);

    QDir m_folder;
    Files m_files;  // sorted by path; each has hits
    int m_hitCount = 0;
    bool m_isCheckable = false;
};

}  // namespace App
