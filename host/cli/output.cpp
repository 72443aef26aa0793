#include "cli/output.h"

#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <unistd.h>

namespace Cli {

namespace {

const int GatheredBytes = 64 * 1024;

HeldComplaints* s_held = nullptr;

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph;
}

/// Such as "\x1b" or "\u2028".
QString escaped(QChar c)
{
    const bool isByte = c.unicode() < 0x100;
    return (isByte ? QLatin1String("\\x") : QLatin1String("\\u")) +
           QString::number(c.unicode(), 16).rightJustified(isByte ? 2 : 4, QLatin1Char('0'));
}

/// Escapes everything that a terminal would interpret, except line ends and tabs.
QString forTerminal(const QString& text)
{
    QString result;
    for (const QChar c : text) {
        const bool isLayout = c == QLatin1Char('\n') || c == QLatin1Char('\t');
        result += isControl(c) && !isLayout ? escaped(c) : QString(c);
    }
    return result;
}

}  // namespace

Output::Output()
{
    m_isTerminal = isatty(fileno(stdout)) != 0;
    m_failed = !m_file.open(fileno(stdout), QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void Output::write(const QString& text)
{
    m_pending += (m_isTerminal ? forTerminal(text) : text).toUtf8();
    if (m_pending.size() > GatheredBytes) {
        flush();
    }
}

void Output::writeLine(const QStringList& columns)
{
    QStringList shown;
    std::transform(columns.begin(), columns.end(), std::back_inserter(shown), printable);
    write(shown.join(QLatin1Char('\t')) + QLatin1Char('\n'));
}

bool Output::writeBytes(const QByteArray& bytes)
{
    m_pending += bytes;
    flush();
    return !m_failed;
}

bool Output::finish()
{
    flush();
    return !m_failed;
}

void Output::flush()
{
    int done = 0;
    while (!m_failed && done < m_pending.size()) {
        errno = 0;
        const qint64 count = m_file.write(m_pending.constData() + done, m_pending.size() - done);
        m_failed = count <= 0;
        m_readerGone = m_failed && errno == EPIPE;
        done += int(qMax<qint64>(count, 0));
    }
    m_pending.clear();
}

HeldComplaints::HeldComplaints()
{
    s_held = this;
}

HeldComplaints::~HeldComplaints()
{
    s_held = nullptr;
    fwrite(m_lines.constData(), 1, size_t(m_lines.size()), stderr);
}

void complain(const QString& text)
{
    const QByteArray line = "zorv: " + printable(text).toUtf8() + '\n';
    if (s_held) {
        s_held->m_lines += line;
    } else {
        fwrite(line.constData(), 1, size_t(line.size()), stderr);
    }
}

QString printable(const QString& text)
{
    QString result;
    for (const QChar c : text) {
        if (c == QLatin1Char('\n')) {
            result += QLatin1String("\\n");
        } else {
            result += isControl(c) ? escaped(c) : QString(c);
        }
    }
    return result;
}

QString jsonLine(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

}  // namespace Cli
