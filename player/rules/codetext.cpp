#include "rules/codetext.h"

#include "family/project/filereference.h"
#include "family/project/unreachable.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace Rules {

using Family::FileKind;
using Family::ParsedLine;
using Zorv::FileID;

namespace {

constexpr int MostNotes = 100;

Box boxOf(const QRect& rect)
{
    return {qMin(rect.left(), rect.right()), qMin(rect.top(), rect.bottom()),
            qMax(rect.left(), rect.right()), qMax(rect.top(), rect.bottom())};
}

/// Computes the frame order, once all frames are known. A frame with delay 0 is never shown, and
/// one with a negative delay stays forever. After the last shown frame, the animation continues
/// with the first shown frame at or after the last `loop`.
void finish(Animation* animation)
{
    QVector<Frame>& frames = animation->frames;
    QVector<int> shown;
    int loop = 0;
    for (int i = 0; i < frames.size(); ++i) {
        if (frames.at(i).data.loop) {
            loop = i;
        }
    }
    for (int i = 0; i < frames.size(); ++i) {
        if (frames.at(i).data.delay != 0) {
            shown.append(i);
        }
        if (frames.at(i).data.delay < 0) {
            break;
        }
    }
    if (shown.isEmpty() && !frames.isEmpty()) {
        shown.append(frames.size() - 1);
    }
    const auto again = std::lower_bound(shown.cbegin(), shown.cend(), loop);
    for (int place = 0; place < shown.size(); ++place) {
        Frame& frame = frames[shown.at(place)];
        const bool isLast = place + 1 == shown.size();
        frame.isLastShown = isLast;
        frame.next = !isLast                 ? shown.at(place + 1)
                     : frame.data.delay <= 0 ? shown.at(place)
                                             : (again == shown.cend() ? shown.first() : *again);
        const int ticks = qMax(frame.data.delay, 0);
        animation->ticks = qMin(animation->ticks + ticks, Animation::MostTicks);
        if (!frame.attack.isEmpty() && ticks > 0) {
            animation->lastAttack = animation->ticks - 1;
        }
    }
    animation->first = shown.value(0);
}

}  // namespace

QVariant CodeGroup::value(const char* key) const
{
    for (const auto& entry : values) {
        if (entry.first == QLatin1String(key)) {
            return entry.second;
        }
    }
    return {};
}

CodeText::CodeText(const QString& gameFolder, const QString& mainFile, FileKind kind)
    : m_gameFolder(gameFolder), m_mainFile(QFileInfo(mainFile).absoluteFilePath()), m_kind(kind)
{
}

bool CodeText::read(QString* error)
{
    if (!readFile(m_mainFile, m_kind, error)) {
        return false;
    }
    readNamed();
    finishAll();
    return true;
}

void CodeText::take(const QString& text)
{
    readText(text, m_mainFile, m_kind);
    finishAll();
}

void CodeText::finishAll()
{
    for (Animation& animation : m_animations) {
        finish(&animation);
    }
}

bool CodeText::readFile(const QString& path, FileKind kind, QString* error)
{
    m_files.append(path);
    const QString reason = Family::unreadableReason(path);
    Zorv::FileText file;
    if (!reason.isEmpty()) {
        *error = tr("Cannot read '%1': %2. Check its permissions.").arg(path, reason);
        return false;
    }
    if (!file.read(*Zorv::FileSystemArchive::instance(), path, -1, error)) {
        return false;
    }
    readText(file.text, path, kind);
    return true;
}

void CodeText::readText(const QString& text, const QString& path, FileKind kind)
{
    m_head = {};
    m_boxes = {};
    m_isInGroup = false;
    TextPlace place{path, 0};
    for (int start = 0; start <= text.size();) {
        const int found = text.indexOf(QLatin1Char('\n'), start);
        const int end = found < 0 ? text.size() : found;
        ++place.line;
        const QString written = text.mid(start, end - start);
        Family::LineDetails details;
        Family::LineReport report(nullptr, &details);
        const ParsedLine line = Family::readLine(written, m_head, kind, report);
        if (line.kind == ParsedLine::Value) {
            const Family::LinePart* key = details.part(Family::LinePart::Key);
            seeValue(line, key ? written.mid(key->start, key->end - key->start) : QString());
        } else {
            see(line, place);
        }
        noteErrors(details, place);
        start = end + 1;
    }
}

/// Records the errors of skipped lines.
void CodeText::noteErrors(const Family::LineDetails& details, const TextPlace& place)
{
    for (const Family::LineProblem& problem : details.problems) {
        if (Family::problemInfo(problem.id).level == Family::Level::Error &&
            m_notes.size() < MostNotes) {
            m_notes.append(QStringLiteral("%1:%2: %3")
                               .arg(QFileInfo(place.file).fileName(), QString::number(place.line),
                                    problem.text));
        }
    }
}

/// Reads one kind of file after the other, in the same order as the check and the editor.
void CodeText::readNamed()
{
    QSet<QString> taken{m_mainFile};
    const CodeGroup files = joined("files");
    const QString folder = QFileInfo(m_mainFile).absolutePath();
    for (const auto type : {FileID::Code, FileID::Animations, FileID::Commands}) {
        for (const auto& entry : files.values) {
            const QString path =
                QDir::cleanPath(folder + QLatin1Char('/') + entry.second.toString());
            if (Family::namedFileType(files.name, entry.first) != type || taken.contains(path)) {
                continue;
            }
            taken.insert(path);
            QString error;
            if (Family::pathFault(m_gameFolder, m_mainFile, entry.second.toString()) !=
                Family::PathFault::Fine) {
                m_notes.append(tr("'%1' lies outside of the game.").arg(path));
            } else if (!readFile(path, Family::fileKindOfType(type), &error)) {
                m_notes.append(error);
            }
        }
    }
}

QString CodeText::pathOf(const QString& written) const
{
    const bool isFine =
        Family::pathFault(m_gameFolder, m_mainFile, written) == Family::PathFault::Fine;
    return isFine
               ? QDir::cleanPath(QFileInfo(m_mainFile).absolutePath() + QLatin1Char('/') + written)
               : QString();
}

CodeGroup CodeText::joined(const char* name) const
{
    CodeGroup result;
    result.name = QLatin1String(name);
    for (const CodeGroup& group : m_groups) {
        if (group.name == result.name) {
            result.values += group.values;
            result.subGroups += group.subGroups;
        }
    }
    return result;
}

void CodeText::see(const ParsedLine& line, const TextPlace& place)
{
    switch (line.kind) {
    case ParsedLine::Group:
        m_head = {Family::LineHead::Group, line.group};
        m_boxes = {};
        if (!line.group->isSubGroup()) {
            m_groups.append({line.group->name, line.argument, place, {}, {}});
            m_subGroup.clear();
            m_isInGroup = true;
        } else if (m_isInGroup) {
            m_subGroup = line.group->name + QLatin1Char('.');
            m_groups.last().subGroups.append(line.group->name);
        }
        break;
    case ParsedLine::Animation:
        m_head = {Family::LineHead::Animation, nullptr};
        m_isInGroup = false;
        m_boxes = {};
        m_animations.append({line.argument, place, {}, 0, 0, -1});
        break;
    case ParsedLine::Frame:
        if (m_head.kind == Family::LineHead::Animation) {
            seeFrame(line.frame, place.line);
        }
        break;
    case ParsedLine::Box:
        (line.attack ? m_boxes.attack : m_boxes.body).append(boxOf(line.box));
        break;
    default:
        break;
    }
}

/// A free key keeps its written name. Any other key gets its current name.
void CodeText::seeValue(const ParsedLine& line, const QString& written)
{
    if (m_isInGroup && line.value.isValid()) {
        const QString name = line.key->isFree() ? written : QString(line.key->name);
        m_groups.last().values.append({m_subGroup + name, line.value});
    }
}

void CodeText::seeFrame(const Family::FrameData& data, int line)
{
    m_boxes.data = data;
    m_boxes.line = line;
    m_animations.last().frames.append(m_boxes);
    m_boxes = {};
}

}  // namespace Rules
