#include "operations/references/filenames.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

namespace Operations {

using Family::LineHead;
using Family::LineName;
using Family::NameKind;
using Family::ParsedLine;

namespace {

/// Collects the names of a line and tracks the head that the next line belongs to.
class NamePass
{
public:
    NamePass(Family::FileKind kind, FileNames* names) : m_kind(kind), m_names(names) {}

    void read(const QString& text);

private:
    void take(const LineName& name, const ParsedLine& line);
    void follow(const ParsedLine& line);

    Family::FileKind m_kind;
    FileNames* m_names;
    LineHead m_head;
    int m_line = 0;
};

void NamePass::read(const QString& text)
{
    ++m_line;
    Family::LineDetails details;
    Family::LineReport report(nullptr, &details);
    const ParsedLine line = readLine(text, m_head, m_kind, report);
    take(nameOf(text, line, m_head, details), line);
    follow(line);
}

void NamePass::take(const LineName& name, const ParsedLine& line)
{
    const int length = name.end - name.start;
    switch (name.kind) {
    case NameKind::None:
        return;
    case NameKind::Sprite:
        m_names->sprites.append({name.id, m_line, name.start + 1, length});
        return;
    case NameKind::Sound:
        m_names->sounds.append({name.id, m_line, name.start + 1, length});
        return;
    case NameKind::File:
        m_names->files.append({Family::namedFileType(m_head.group->name, line.key->name), name.name,
                               m_line - 1, name.start, length});
        break;
    default:
        break;
    }
    m_names->names.append({name, m_line});
}

void NamePass::follow(const ParsedLine& line)
{
    if (line.kind == ParsedLine::Group) {
        m_head = {LineHead::Group, line.group};
    } else if (line.kind == ParsedLine::Animation) {
        m_head = {LineHead::Animation, nullptr};
    }
}

}  // namespace

FileNames namesOf(const Family::SourceText& source)
{
    FileNames names;
    NamePass pass(source.kind, &names);
    const QString& text = source.text;
    for (int start = 0; start <= text.size();) {
        const int found = text.indexOf(QLatin1Char('\n'), start);
        const int end = found < 0 ? text.size() : found;
        pass.read(text.mid(start, end - start));
        start = end + 1;
    }
    return names;
}

FileNames namesOfFile(const QString& path)
{
    FileNames names;
    Zorv::FileText file;
    if (!file.read(*Zorv::FileSystemArchive::instance(), path, -1, &names.error)) {
        return names;
    }
    return namesOf({file, Family::fileKindOf(path)});
}

}  // namespace Operations
