#pragma once

#include "editors/snipman/snipfield.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

namespace Zorv {

/// What is wrong with the text of a snippet, and where.
struct SnippetProblem
{
    QString text;  ///< empty for nothing
    qint64 line = 0;
    qint64 column = 0;

    bool isThere() const { return !text.isEmpty(); }

    /// All of it in words for the person.
    QString message() const;
};

/// A snippet as its file has it.
struct SnippetFile
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SnippetFile)

public:
    /// No snippet needs more, and each field is a row of widgets.
    static constexpr int MaxFields = 1000;
    static constexpr int MaxItems = 10000;  ///< of one field
    static constexpr qint64 MaxBytes = 1024 * 1024;

    std::vector<std::unique_ptr<SnipField>> fields;
    QString code;  ///< as it stands in the element, lines end in a line feed

    /// The text is no XML, or too much of it: fields and code are not to be used.
    SnippetProblem fault;

    /// Something in it cannot be used as it stands; the rest is there.
    SnippetProblem flaw;

    static SnippetFile read(const QString& xml);

    /// The code as it is inserted: no line begins with a tab.
    QString plainCode() const;

    /// The code as it was typed, without what the file puts around the lines.
    QString editedCode() const;

    /// The element of a field, and the whole file, as bytes of UTF-8 have them.
    static QString fieldLine(const SnipField& field);
    static QString write(const std::vector<const SnipField*>& fields, const QString& code);
};

/// The text of a file, up to its first zero byte. False, with the reason, if it cannot
/// be read or is too large for a snippet.
bool readSnippetText(const QString& fileName, QString* text, QString* error);

/// Writes a text as UTF-8. A failure leaves the old file whole and is told.
bool writeSnippetText(const QString& fileName, const QString& text);

}  // namespace Zorv
