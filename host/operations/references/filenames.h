#pragma once

#include "family/check/filefacts.h"
#include "family/meaning/linename.h"

namespace Operations {

/// A name and its line, from 1.
struct PlacedName
{
    Family::LineName name;
    int line;
};

/// All names in a code file. Sprites and sounds are by far the most frequent, so they are stored in
/// a compact form.
struct FileNames
{
    QVector<PlacedName> names;  ///< names that are words, in text order
    QVector<Family::AssetUse> sprites;
    QVector<Family::AssetUse> sounds;
    QVector<Family::FileReference> files;  ///< the file names among `names`

    /// Why the file could not be read, for the user; empty on success.
    QString error;
};

/// Scans a text line by line. Any thread.
FileNames namesOf(const Family::SourceText& source);

/// Reads and scans a file. Its kind has no influence on its names. Any thread.
FileNames namesOfFile(const QString& path);

}  // namespace Operations
