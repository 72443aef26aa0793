#pragma once

#include <QFile>
#include <QStringList>

class QJsonObject;

namespace Cli {

/// Standard output: UTF-8, buffered, with error checks.
class Output
{
public:
    Output();

    /// Writes a text. On a terminal, control characters except line ends and tabs are escaped as in
    /// `printable()`.
    void write(const QString& text);

    /// Writes columns separated by tabs, and a line end. Each is escaped by `printable()`.
    void writeLine(const QStringList& columns);

    /// Writes bytes unchanged and unbuffered. False if a byte could not be written.
    bool writeBytes(const QByteArray& bytes);

    /// Flushes the buffer. False if a byte could not be written.
    bool finish();

    /// True if the reader has closed the pipe. That is not an error worth a message.
    bool isReaderGone() const { return m_readerGone; }
    QString errorString() const { return m_file.errorString(); }

private:
    void flush();

    QFile m_file;
    QByteArray m_pending;
    bool m_isTerminal = false;
    bool m_failed = false;
    bool m_readerGone = false;
};

/// Writes "zorv: " and a text to standard error.
void complain(const QString& text);

/// Delays complaints while this object lives, because a repeated change may make them obsolete.
class HeldComplaints
{
public:
    HeldComplaints();
    ~HeldComplaints();
    HeldComplaints(const HeldComplaints&) = delete;
    HeldComplaints& operator=(const HeldComplaints&) = delete;

    void forget() { m_lines.clear(); }

private:
    friend void complain(const QString& text);
    QByteArray m_lines;
};

/// Escapes a text so that it stays on one line and contains nothing that a terminal would
/// interpret. Control characters become "\x1b", line ends "\n".
QString printable(const QString& text);

/// A JSON object on one line, with its keys sorted.
QString jsonLine(const QJsonObject& object);

}  // namespace Cli
