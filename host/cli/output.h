#pragma once

#include <QFile>
#include <QStringList>

class QJsonObject;

namespace Cli {

/// Standard output: UTF-8, gathered and checked.
class Output
{
public:
    Output();

    /// Writes a text as it is; on a terminal control characters become signs, as `printable()`
    /// has them, but for line ends and tabs.
    void write(const QString& text);

    /// Writes texts with a tab between and a line end, each as `printable()`.
    void writeLine(const QStringList& columns);

    /// Writes bytes as they are, at once. False if any byte did not arrive.
    bool writeBytes(const QByteArray& bytes);

    /// Writes what is still gathered. False if any byte did not arrive.
    bool finish();

    /// True if nobody reads any more, which is no failure worth a word.
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

/// Writes "zorv: " and a text on standard error.
void complain(const QString& text);

/// While it lives, complaints wait: what is said may have to be taken back.
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

/// `text` on one line, and with nothing that a terminal would obey: control
/// characters are written as "\x1b", line ends as "\n".
QString printable(const QString& text);

/// An object on one line, its keys in the order of the alphabet.
QString jsonLine(const QJsonObject& object);

}  // namespace Cli
