#include "operations/find/textsearch.h"

#include "operations/find/bytefilter.h"
#include "operations/find/findpattern.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Operations {

namespace {

constexpr int MostShown = 300;  // characters of a line
constexpr int ShownBefore = 60;

// Larger files are not filtered as bytes before they are decoded.
constexpr int MostBytes = 16 * 1024 * 1024;
constexpr int Block = 65536;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::TextSearch)
};

/// Counts lines from hit to hit.
class LineCounter
{
public:
    explicit LineCounter(const QString& text) : m_text(text) {}

    void goTo(int place)
    {
        for (int end = m_text.indexOf(QLatin1Char('\n'), m_start); end >= 0 && end < place;
             end = m_text.indexOf(QLatin1Char('\n'), m_start)) {
            m_start = end + 1;
            ++m_line;
            m_shown.clear();
        }
    }

    FindHit hit(int place, int length)
    {
        const int column = place - m_start;
        if (m_shown.isNull() || m_cut > 0 || column > MostShown) {
            show(column);
        }
        return {place, length, m_line, column, m_shown, column - m_cut};
    }

private:
    void show(int column)
    {
        int end = m_text.indexOf(QLatin1Char('\n'), m_start);
        end = end < 0 ? m_text.size() : end;
        m_cut = end - m_start > MostShown ? std::max(0, column - ShownBefore) : 0;
        m_shown = m_text.mid(m_start + m_cut, std::min(end - m_start - m_cut, MostShown));
        if (m_shown.isNull()) {
            m_shown = QLatin1String("");
        }
    }

    const QString& m_text;
    int m_start = 0;
    int m_line = 0;
    int m_cut = 0;  // characters cut off before the shown part
    QString m_shown;
};

/// The content of a file, in a buffer that each thread reuses.
struct FileBytes
{
    /// Rejects pipes, which would block, and files of `MostBytes` or more.
    bool read(const QString& path);

    QByteArray buffer;
    int size = 0;
};

bool FileBytes::read(const QString& path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    struct stat info;
    bool isWhole = fstat(file, &info) == 0 && S_ISREG(info.st_mode) && info.st_size < MostBytes;
    size = 0;
    while (isWhole) {
        if (buffer.size() <= std::max(size, int(info.st_size))) {
            buffer.resize(std::max(size, int(info.st_size)) + Block);
        }
        const ssize_t got = ::read(file, buffer.data() + size, size_t(buffer.size() - size));
        if (got <= 0) {
            isWhole = got == 0;
            break;
        }
        size += int(got);
        isWhole = size < MostBytes;
    }
    ::close(file);
    return isWhole;
}

}  // namespace

FileHits searchText(const QString& text, const FindPattern& pattern, int most,
                    const StopFlag& isStopped)
{
    FileHits found;
    if (!pattern.find().isValid()) {
        return found;
    }
    LineCounter lines(text);
    QRegularExpressionMatchIterator matches = pattern.find().matches(text);
    while (matches.hasNext() && !isStopped) {
        if (found.hits.size() == most) {
            found.isCut = true;
            return found;
        }
        const QRegularExpressionMatch match = matches.next();
        lines.goTo(match.capturedStart());
        found.hits.append(lines.hit(match.capturedStart(), match.capturedLength()));
    }
    if (!matches.isValid()) {
        found.error = Text::tr("The expression takes too long there. Write it in a simpler way.");
    }
    return found;
}

FileHits searchFile(const QString& path, const FindPattern& pattern, const ByteFilter& filter,
                    int most, const StopFlag& isStopped)
{
    static thread_local FileBytes bytes;
    FileHits found;
    found.path = path;
    if (bytes.read(path) && !filter.mayMatch(bytes.buffer.constData(), bytes.size,
                                             kindOfBytes(bytes.buffer.constData(), bytes.size))) {
        return found;
    }
    Zorv::FileText file;
    if (file.read(*Zorv::FileSystemArchive::instance(), path, -1, &found.error)) {
        found = searchText(Zorv::CodeFind::searchableText(file.text), pattern, most, isStopped);
        found.path = path;
    }
    return found;
}

}  // namespace Operations
