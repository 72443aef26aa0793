#pragma once

#include "editors/snipman/snipfield.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

namespace Zorv {

/// An error in the text of a snippet, and its position.
struct SnippetProblem
{
    QString text;  ///< empty: no error
    qint64 line = 0;
    qint64 column = 0;

    bool isThere() const { return !text.isEmpty(); }

    /// Text and position as a message for the user.
    QString message() const;
};

/// The content of a snippet file.
struct SnippetFile
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SnippetFile)

public:
    /// More is never needed, and each field costs a row of widgets.
    static constexpr int MaxFields = 1000;
    static constexpr int MaxItems = 10000;  ///< per field
    static constexpr qint64 MaxBytes = 1024 * 1024;

    std::vector<std::unique_ptr<SnipField>> fields;
    QString code;  ///< raw text of the element, with line feeds

    /// The text is invalid XML or too large: do not use fields and code.
    SnippetProblem fault;

    /// A part is unusable; the rest is valid.
    SnippetProblem flaw;

    static SnippetFile read(const QString& xml);

    /// The code to insert: no line begins with a tab.
    QString plainCode() const;

    /// The code as typed, without the indentation and the outer empty lines of the
    /// file.
    QString editedCode() const;

    /// The XML element of a field, and the whole file, for writing as UTF-8.
    static QString fieldLine(const SnipField& field);
    static QString write(const std::vector<const SnipField*>& fields, const QString& code);
};

/// Reads a file up to its first zero byte. Returns false, with the reason, if it cannot
/// be read or is too large for a snippet.
bool readSnippetText(const QString& fileName, QString* text, QString* error);

/// Writes a text as UTF-8. On failure the old file is intact, and the user is told.
bool writeSnippetText(const QString& fileName, const QString& text);

}  // namespace Zorv
