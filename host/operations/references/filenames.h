#pragma once

#include "family/check/filefacts.h"
#include "family/meaning/linename.h"

namespace Operations {

/// A name at its line, from 1.
struct PlacedName
{
    Family::LineName name;
    int line;
};

/// All names of a code file. What a file has most of, sprites and sounds, is kept in a short form.
struct FileNames
{
    QVector<PlacedName> names;  ///< those that are words, in the order of the text
    QVector<Family::AssetUse> sprites;
    QVector<Family::AssetUse> sounds;
    QVector<Family::FileReference> files;  ///< of `names`, those that are files

    /// Why the file could not be read, in words for the person; empty if it could.
    QString error;
};

/// Reads a text line by line. Any thread.
FileNames namesOf(const Family::SourceText& source);

/// Reads the file as well. The kind of the file decides nothing about its names. Any thread.
FileNames namesOfFile(const QString& path);

}  // namespace Operations
