#include "operations/find/findreplace.h"

#include "operations/filechanges.h"
#include "operations/find/findpattern.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/code/codecs/textcodecs.h>
#include <zorv/code/codedoc/codedocument.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

// A document gives all lines of its file the same line end. In a file that is not open only the
// matches may change. So the file is decoded unchanged, and positions in the searched text are
// converted by counting its two-character line ends.

namespace Operations {

using Zorv::CodeFind;
using Zorv::FileSystemArchive;
using Zorv::TextCodecs;
using Parts = QVector<CodeFind::Replacement>;

namespace {

const QLatin1String LinePair("\r\n");

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::FindReplace)
};

bool isSamePlace(const FindHit& hit, const CodeFind::Match& match)
{
    return hit.start == match.capturedStart() && hit.length == match.capturedLength();
}

/// Collects the edits; false if a chosen match no longer exists.
bool findParts(const QString& text, const Replacing& replacing, Parts* parts)
{
    const CodeFind& find = replacing.pattern.find();
    const QString with = replacing.pattern.replacement(replacing.with);
    int next = 0;
    QRegularExpressionMatchIterator matches;
    if (find.isValid()) {
        matches = find.matches(text);
    }
    while (matches.hasNext()) {
        const CodeFind::Match match = matches.next();
        if (replacing.chosen) {
            if (next == replacing.chosen->size() ||
                !isSamePlace(replacing.chosen->at(next), match)) {
                continue;
            }
            ++next;
        }
        parts->append(
            {match.capturedStart(), match.capturedLength(), find.replacement(match, with)});
    }
    return !replacing.chosen || next == replacing.chosen->size();
}

QString changedText()
{
    return Text::tr("It has changed since it was searched. Search again.");
}

/// A file as it was read, to be written with replacements.
class RawFile
{
public:
    bool read(const QString& path, QString* error);
    void replace(const Parts& parts);
    bool write(const QString& path, QString* error) const;

    const QString& searched() const { return m_file.text; }

private:
    QString obstacle(const QString& text) const;

    Zorv::FileText m_file;
    QByteArray m_mark;
    QString m_text;  // with the line ends of the file
};

bool RawFile::read(const QString& path, QString* error)
{
    auto* archive = FileSystemArchive::instance();
    if (!m_file.read(*archive, path, -1, error)) {
        return false;
    }
    QIODevice* device = archive->openFile(path, QIODevice::ReadOnly, error);
    if (!device) {
        return false;
    }
    const QByteArray data = device->readAll();
    archive->closeFile(device);
    m_mark = TextCodecs::byteOrderMark(data);
    m_text = TextCodecs::stringFromData(data, &m_file.codec);
    if (!m_file.isFaithful) {
        *error = Text::tr("It does not come back byte for byte from its encoding, %1. Open it, and "
                          "choose another encoding.")
                     .arg(TextCodecs::name(m_file.codec));
        return false;
    }
    // The file was read twice; another program may have changed it in between.
    QString plain = m_text;
    plain.replace(LinePair, QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (plain != m_file.text) {
        *error = changedText();
        return false;
    }
    m_file.text = CodeFind::searchableText(m_file.text);
    return true;
}

void RawFile::replace(const Parts& parts)
{
    const bool hasPairs = m_text.contains(LinePair) || !m_text.contains(QLatin1Char('\n'));
    QString result;
    int from = 0;  // in m_text
    int plain = 0;
    int raw = 0;
    const auto goTo = [&](int place) {
        for (; plain < place; ++plain) {
            raw += m_text.midRef(raw, 2) == LinePair ? 2 : 1;
        }
    };
    for (const CodeFind::Replacement& part : parts) {
        goTo(part.start);
        result += m_text.midRef(from, raw - from);
        QString text = part.text;
        result += hasPairs ? text.replace(QLatin1Char('\n'), LinePair) : text;
        goTo(part.start + part.length);
        from = raw;
    }
    m_text = result + m_text.midRef(from);
}

QString RawFile::obstacle(const QString& text) const
{
    const int at = TextCodecs::firstUnencodable(text, m_file.codec);
    if (at < 0) {
        return {};
    }
    const int length = text.at(at).isHighSurrogate() ? 2 : 1;
    return Text::tr("Its encoding %1 has no '%2'. Open it, and save it in UTF-8.")
        .arg(TextCodecs::name(m_file.codec), text.mid(at, length));
}

bool RawFile::write(const QString& path, QString* error) const
{
    *error = obstacle(m_text);
    if (!error->isEmpty()) {
        return false;
    }
    QByteArray data = TextCodecs::stringToData(m_text, m_file.codec);
    data = m_mark + data.mid(TextCodecs::byteOrderMark(data).size());
    auto* archive = FileSystemArchive::instance();
    QIODevice* device = archive->openFile(path, QIODevice::WriteOnly, error);
    if (!device) {
        return false;
    }
    device->write(data);
    return archive->closeFile(device, error);
}

int replaceOnce(const QString& path, const Replacing& replacing, QString* error)
{
    error->clear();
    RawFile file;
    if (!file.read(path, error)) {
        return -1;
    }
    Parts parts;
    if (!findParts(file.searched(), replacing, &parts)) {
        *error = changedText();
        return -1;
    }
    if (parts.isEmpty()) {
        return 0;
    }
    file.replace(parts);
    return file.write(path, error) ? parts.size() : -1;
}

}  // namespace

Replaced replacedText(const QString& text, const Replacing& replacing)
{
    Parts parts;
    if (!findParts(CodeFind::searchableText(text), replacing, &parts)) {
        return {-1, text};
    }
    QString result;
    int from = 0;
    for (const CodeFind::Replacement& part : qAsConst(parts)) {
        result += text.midRef(from, part.start - from) + part.text;
        from = part.start + part.length;
    }
    return {parts.size(), result + text.midRef(from)};
}

int replaceInDocument(Zorv::CodeDocument* document, const Replacing& replacing, QString* error)
{
    Parts parts;
    if (!findParts(CodeFind::searchableText(document), replacing, &parts)) {
        *error = changedText();
        return -1;
    }
    CodeFind::replaceParts(document, parts, Text::tr("Replace in files"));
    return parts.size();
}

int replaceInFile(const QString& path, const Replacing& replacing, QString* error)
{
    int count = -1;
    const auto change = [&] { count = replaceOnce(path, replacing, error); };
    return changeAsOne(path, Others::Wait, change, error) ? count : -1;
}

}  // namespace Operations
