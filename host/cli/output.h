#pragma once

#include <QFile>
#include <QString>

class QJsonObject;

namespace Cli {

/// Standard output: UTF-8, gathered and checked.
class Output
{
public:
    Output();

    void write(const QString& text);

    /// Writes a text and a line end. What a terminal would not show as it is
    /// (control characters) is written as "\x1b".
    void writeLine(const QString& text);

    /// Writes what is still gathered. False if any byte did not arrive.
    bool finish();

    /// True if nobody reads any more, which is no failure worth a word.
    bool isReaderGone() const { return m_readerGone; }
    QString errorString() const { return m_file.errorString(); }

private:
    void flush();

    QFile m_file;
    QByteArray m_pending;
    bool m_failed = false;
    bool m_readerGone = false;
};

/// Writes "zorv: " and a text on standard error.
void complain(const QString& text);

/// `text` with control characters as "\x1b".
QString printable(const QString& text);

/// An object on one line, its keys in the order of the alphabet.
QString jsonLine(const QJsonObject& object);

}  // namespace Cli
