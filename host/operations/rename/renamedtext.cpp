#include "operations/rename/renamedtext_p.h"

#include "family/grammar/linescanner.h"
#include "family/nodes/valuetext.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/code/codecs/textcodecs.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

// The file is decoded and encoded again at once: if the bytes differ, it cannot be changed safely.
// Replacements work on single lines, so line ends stay as they are. At the end the names in the new
// text are compared with the names in the old one, where the replaced lines have the new name. If
// anything else differs, the new name would be read as something different.

namespace Operations {

using Family::NameKind;
using Zorv::TextCodecs;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Rename)
};

/// The new name in the notation of the old one: blanks and quotes are kept.
QString writtenName(const QString& old, NameKind kind, const QString& name)
{
    if (kind == NameKind::Sprite || kind == NameKind::Sound) {
        static const QRegularExpression pair(QStringLiteral("^[^\\s,]+(\\s*,\\s*)[^\\s,]+$"));
        const QString between = pair.match(old).captured(1);
        return QString(name).replace(QLatin1Char(','),
                                     between.isEmpty() ? QStringLiteral(",") : between);
    }
    const bool isQuoted = old.startsWith(QLatin1Char('"')) || !Family::isWord(name);
    return isQuoted ? Family::quotedText(name) : name;
}

QString factOf(int line, NameKind kind, bool isDefinition, const QString& name)
{
    return QStringLiteral("%1 %2 %3 ")
               .arg(QString::number(line), QString::number(int(kind)),
                    QString::number(int(isDefinition))) +
           name;
}

/// The names in a text, line by line; `nameOf` supplies the new names of replaced lines.
template <class Names>
QStringList factsOf(const FileNames& file, Names nameOf)
{
    QStringList facts;
    for (const PlacedName& placed : file.names) {
        facts.append(factOf(placed.line, placed.name.kind, placed.name.isDefinition,
                            nameOf(placed.line, placed.name.name)));
    }
    for (const auto& use : file.sprites) {
        facts.append(factOf(use.line, NameKind::Sprite, false, nameOf(use.line, use.id.text())));
    }
    for (const auto& use : file.sounds) {
        facts.append(factOf(use.line, NameKind::Sound, false, nameOf(use.line, use.id.text())));
    }
    return facts;
}

FileNames namesIn(const QString& text, const QString& path)
{
    Family::SourceText source;
    source.text = text;
    source.kind = Family::fileKindOf(path);
    return namesOf(source);
}

}  // namespace

RenamedText::RenamedText(const QString& path) : m_path(path)
{
    Zorv::FileText file;
    QFile device(path);
    if (!file.read(*Zorv::FileSystemArchive::instance(), path, -1, &m_fault)) {
        return;
    }
    m_codec = file.codec;
    m_bytes = device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray();
    m_text = TextCodecs::stringFromData(m_bytes, &m_codec);
    findLines();
    encode(m_text);
    if (!file.isFaithful || m_newBytes != m_bytes) {
        m_fault = Text::tr("%1 does not come back byte for byte from its encoding, %2. Save it in "
                           "UTF-8 first.")
                      .arg(QDir::toNativeSeparators(path), TextCodecs::name(m_codec));
    }
}

void RenamedText::findLines()
{
    int start = 0;
    for (int i = 0; i <= m_text.size(); ++i) {
        const QChar c = i < m_text.size() ? m_text.at(i) : QLatin1Char('\n');
        const bool isReturn = c == QLatin1Char('\r');
        if (!isReturn && c != QLatin1Char('\n')) {
            continue;
        }
        m_lines.append({start, i});
        i += isReturn && i + 1 < m_text.size() && m_text.at(i + 1) == QLatin1Char('\n');
        start = i + 1;
    }
}

QString RenamedText::lineText(int line) const
{
    const Line place = m_lines.value(line - 1);
    return m_text.mid(place.start, place.end - place.start);
}

void RenamedText::replace(const NameUse& use, const Subject& subject, const QString& name)
{
    if (!isNamedAt(use, subject)) {
        m_fault = Text::tr("%1 has been changed meanwhile. Try again.")
                      .arg(QDir::toNativeSeparators(m_path));
        return;
    }
    QString line = lineText(use.line);
    const int column = use.column - 1;
    const QString written = writtenName(line.mid(column, use.length), subject.kind, name);
    line.replace(column, use.length, written);
    m_replaced.insert(use.line, {use.column, name, line});
}

/// The file may have changed since its names were indexed.
bool RenamedText::isNamedAt(const NameUse& use, const Subject& subject)
{
    if (!m_names) {
        m_names = std::make_shared<const FileNames>(namesIn(textOf(false), m_path));
        for (const PlacedName& placed : m_names->names) {
            m_places.insert(placed.line, placed.name);
        }
    }
    const bool isSprite = subject.kind == NameKind::Sprite;
    if (isSprite || subject.kind == NameKind::Sound) {
        const auto& places = isSprite ? m_names->sprites : m_names->sounds;
        const auto found =
            std::lower_bound(places.begin(), places.end(), use.line,
                             [](const auto& place, int line) { return place.line < line; });
        return found != places.end() && found->line == use.line && found->id == subject.id &&
               found->column == use.column && found->length == use.length;
    }
    const Family::LineName name = m_places.value(use.line);
    const bool isIt =
        subject.kind == NameKind::File ? name.kind == NameKind::File : subject.isNamedBy(name);
    return isIt && name.start + 1 == use.column && name.end - name.start == use.length;
}

/// The text as a document has it: lines end in '\n'.
QString RenamedText::textOf(bool isNew) const
{
    QStringList lines;
    for (int i = 1; i <= m_lines.size(); ++i) {
        const auto replaced = isNew ? m_replaced.constFind(i) : m_replaced.cend();
        lines.append(replaced == m_replaced.cend() ? lineText(i) : replaced->line);
    }
    return lines.join(QLatin1Char('\n'));
}

/// Keeps the byte-order mark of the file, if it has one.
void RenamedText::encode(const QString& text)
{
    m_newBytes = TextCodecs::stringToData(text, m_codec);
    m_newBytes.remove(0, TextCodecs::byteOrderMark(m_newBytes).size());
    m_newBytes.prepend(TextCodecs::byteOrderMark(m_bytes));
}

void RenamedText::finish()
{
    QString text = m_text;
    const QList<int> lines = m_replaced.keys();
    for (int i = lines.size() - 1; i >= 0; --i) {
        const Line place = m_lines.at(lines.at(i) - 1);
        text.replace(place.start, place.end - place.start, m_replaced.value(lines.at(i)).line);
        if (TextCodecs::firstUnencodable(m_replaced.value(lines.at(i)).line, m_codec) >= 0) {
            m_fault = Text::tr("%1, line %2: The encoding %3 cannot hold the name. Choose another "
                               "one, or save the file in UTF-8 first.")
                          .arg(QDir::toNativeSeparators(m_path), QString::number(lines.at(i)),
                               TextCodecs::name(m_codec));
            return;
        }
    }
    encode(text);
    readAgain();
}

void RenamedText::readAgain()
{
    const QStringList expected =
        factsOf(namesIn(textOf(false), m_path), [this](int line, const QString& name) {
            return m_replaced.contains(line) ? m_replaced.value(line).name : name;
        });
    const QStringList found =
        factsOf(namesIn(textOf(true), m_path), [](int, const QString& name) { return name; });
    if (found != expected) {
        m_fault =
            Text::tr("%1 would not be read as it is meant with this name. Choose another one.")
                .arg(QDir::toNativeSeparators(m_path));
    }
}

QVector<RenamedLine> RenamedText::lines() const
{
    QVector<RenamedLine> lines;
    for (auto it = m_replaced.cbegin(); it != m_replaced.cend(); ++it) {
        lines.append({m_path, it.key(), it->column, lineText(it.key()), it->line});
    }
    return lines;
}

}  // namespace Operations
