#pragma once

#include <zorv/core/archive.h>
#include <zorv/core/safefile.h>

#include <memory>
#include <vector>

namespace Operations {

/// New files, completely written beside the old ones, ready to replace them. As an archive it
/// receives what a document or collection writes; reading goes to the file system.
class PreparedFiles final : public Zorv::Archive
{
public:
    /// Prepares new content for a file; false, with `error`, if it cannot be written.
    bool add(const QString& path, const QByteArray& content, QString* error);

    /// Prepares a copy of the current content.
    bool addCopy(const QString& path, QString* error);

    int count() const { return int(m_files.size()); }

    /// Replaces one file.
    bool commit(int index, QString* error);

    void release() override {}
    bool isReadOnly() const override { return false; }
    QStringList entries(const QString& path, QDir::Filters filters,
                        QDir::SortFlags sort) const override;
    QFileInfoList infoEntries(const QString& path, QDir::Filters filters,
                              QDir::SortFlags sort) const override;
    QIODevice* openFile(const QString& path, QIODevice::OpenMode mode,
                        QString* error = nullptr) override;
    bool closeFile(QIODevice* device, QString* error = nullptr) override;

private:
    Zorv::SafeFile* open(const QString& path, QString* error);
    bool finish(Zorv::SafeFile* file, QString* error);

    std::vector<std::unique_ptr<Zorv::SafeFile>> m_files;
};

}  // namespace Operations
