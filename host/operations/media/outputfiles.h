#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

namespace Operations {

struct MediaResult;

/// Where the results of a piece of work go, as the person says it.
struct OutputRequest
{
    /// A folder, which may be new and then ends in "/" or has no suffix; or a file; or a pattern
    /// such as "small/*-x2.png", whose `*` stands for the name of each result. Empty for the
    /// places of the inputs.
    QString place;
    QByteArray format;   ///< "PNG"; empty for that of the place, else of the input
    bool force = false;  ///< what is there already may be replaced
};

/// The files that a piece of work writes, checked before it begins.
class OutputFiles
{
public:
    /// Makes a name for each result. `names` are the files that they are made of, or just what
    /// they are called, without a folder; `format` is that of a result whose name has none.
    /// False, with why not in `refusal`, if two would become one file, or if a file is there
    /// already, as all inputs are, and may not be replaced.
    bool plan(const QStringList& names, const OutputRequest& request, const QByteArray& format,
              MediaResult* refusal);

    int count() const { return m_names.size(); }
    QString path(int index) const;

    /// The format of a result, as `Zorv::fileExtension()` makes it of its name.
    QByteArray format(int index) const;

    /// Writes a result, with the folder that it needs. The file is there whole or not at all. Empty
    /// if that was done, else why not, for the person. Re-entrant.
    QString write(int index, const QByteArray& bytes) const;

    /// Makes a result and writes it. If another program changes the file at its place meanwhile,
    /// it is made anew: it may take the place of what it is made of. Else as `write()`.
    QString make(int index, const std::function<QByteArray(QString* error)>& result) const;

private:
    QString pathFault() const;
    bool checkExisting(MediaResult* refusal) const;

    // Paths are made when they are asked for: there may be many.
    QStringList m_names;
    QString m_pattern;  // empty for the places of the inputs
    QString m_suffix;   // where the pattern has none; empty for that of the input
    bool m_force = false;
};

}  // namespace Operations
