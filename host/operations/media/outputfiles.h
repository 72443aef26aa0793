#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

namespace Operations {

struct MediaResult;

/// The output options of an operation, as the user gives them.
struct OutputRequest
{
    /// A folder; a new one ends in "/" or has no suffix. Or a file. Or a pattern such as
    /// "small/*-x2.png", where `*` stands for the name of each result. If empty, results go beside
    /// their inputs.
    QString place;
    QByteArray format;   ///< "PNG"; empty for the format of `place`, else of the input
    bool force = false;  ///< existing files may be replaced
};

/// The output files of an operation. They are checked before the operation begins.
class OutputFiles
{
public:
    /// Chooses a file name for each result. `names` are the input files, or plain names without a
    /// folder. `format` is used for results whose name has none. Returns false, with the reason in
    /// `refusal`, if two results would have the same file, or if a file exists already and may not
    /// be replaced. Input files exist, so overwriting them needs that permission too.
    bool plan(const QStringList& names, const OutputRequest& request, const QByteArray& format,
              MediaResult* refusal);

    int count() const { return m_names.size(); }
    QString path(int index) const;

    /// The format of a result: `Zorv::fileExtension()` of its name.
    QByteArray format(int index) const;

    /// Writes a result, completely or not at all, and creates its folder if needed. Returns an
    /// error for the user, empty on success. Re-entrant.
    QString write(int index, const QByteArray& bytes) const;

    /// Creates a result and writes it, like `write()`. The result may replace the file that it is
    /// made from. So if another program changes that file meanwhile, the result is created again.
    QString make(int index, const std::function<QByteArray(QString* error)>& result) const;

private:
    QString pathFault() const;
    bool checkExisting(MediaResult* refusal) const;

    // Paths are built on demand because there may be many.
    QStringList m_names;
    QString m_pattern;  // empty to write beside the inputs
    QString m_suffix;   // used if the pattern has none; empty for the suffix of the input
    bool m_force = false;
};

}  // namespace Operations
