#include "animation/edits/frameorder.h"

// Frames are moved as whole lines: everything from the end of the frame before to their own line.
// All line numbers are read before the first edit. Edits then go from the bottom up, so that the
// numbers of the lines above stay valid.

#include "animation/edits/followedframe_p.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codelines.h"
#include "code/codedoc/framecode.h"

#include <algorithm>

namespace Zorv {

namespace {

/// The lines of a frame including those above it that belong to it; both ends are included.
struct Lines
{
    int first;
    int last;
};

/// The frames of an animation as lines of its document.
class FrameLines
{
public:
    FrameLines(const Animations* animations, int animation);

    int count() const { return m_lines.size(); }
    const Lines& at(int frame) const { return m_lines.at(frame); }

    /// The line before which a frame must be inserted to come before frame `to`.
    int placeOf(int to) const { return to < count() ? at(to).first : m_end; }

    QString text(int frame) const;
    QString text(const QVector<int>& frames) const;

private:
    CodeDocument* m_document = nullptr;
    QVector<Lines> m_lines;
    int m_end = 0;  // the line after the last frame
};

FrameLines::FrameLines(const Animations* animations, int animation)
{
    const AnimationCode* code = animationAt(animations, animation);
    if (!code) {
        return;
    }
    m_document = animations->document();
    m_end = code->block().blockNumber() + 1;
    const QList<FrameCode*> frames = code->frames();
    for (const FrameCode* frame : frames) {
        m_lines.append({frame->firstLine(), frame->lastLine()});
        m_end = frame->lastLine() + 1;
    }
}

QString FrameLines::text(int frame) const
{
    QTextBlock block = m_document->findBlockByNumber(at(frame).first);
    QString result = block.text();
    for (int line = at(frame).first; line < at(frame).last; ++line) {
        block = block.next();
        result += QLatin1Char('\n') + block.text();
    }
    return result;
}

QString FrameLines::text(const QVector<int>& frames) const
{
    QStringList texts;
    for (const int frame : frames) {
        texts.append(text(frame));
    }
    return texts.join(QLatin1Char('\n'));
}

/// Removes a run of adjacent frames in one edit.
void removeRuns(CodeDocument* document, const FrameLines& lines, const QVector<int>& frames)
{
    for (int end = frames.size(); end > 0;) {
        int begin = end - 1;
        while (begin > 0 && frames.at(begin - 1) == frames.at(begin) - 1) {
            --begin;
        }
        removeLines(document, lines.at(frames.at(begin)).first, lines.at(frames.at(end - 1)).last);
        end = begin;
    }
}

int countBefore(const QVector<int>& sorted, int frame)
{
    return int(std::lower_bound(sorted.begin(), sorted.end(), frame) - sorted.begin());
}

}  // namespace

int moveFrames(Animations* animations, int animation, const QVector<int>& frames, int to)
{
    const FrameLines lines(animations, animation);
    const QVector<int> moved = validPlaces(frames, lines.count());
    if (moved.isEmpty()) {
        return -1;
    }
    to = qBound(0, to, lines.count());
    const int place = to - countBefore(moved, to);
    const bool isThere = moved.first() == place && moved.last() == place + moved.size() - 1;
    if (isThere) {
        return -1;
    }
    CodeDocument* document = animations->document();
    const QString text = lines.text(moved);
    int line = lines.placeOf(to);
    for (const int frame : moved.mid(0, countBefore(moved, to))) {
        line -= lines.at(frame).last - lines.at(frame).first + 1;
    }
    const EditStep step(animations, EditText::tr("Move frames"));
    removeRuns(document, lines, moved);
    insertLines(document, line, text);
    return place;
}

int reverseFrames(Animations* animations, int animation, const QVector<int>& frames)
{
    const FrameLines lines(animations, animation);
    const QVector<int> places = validPlaces(frames, lines.count());
    if (places.size() < 2) {
        return -1;
    }
    QStringList texts;
    for (const int frame : places) {
        texts.append(lines.text(frame));
    }
    const EditStep step(animations, EditText::tr("Reverse frames"));
    for (int i = places.size() - 1; i >= 0; --i) {
        const QString& text = texts.at(places.size() - 1 - i);
        if (text != texts.at(i)) {
            const Lines& here = lines.at(places.at(i));
            replaceLines(animations->document(), here.first, here.last, text);
        }
    }
    return places.first();
}

int removeFrames(Animations* animations, int animation, const QVector<int>& frames)
{
    const FrameLines lines(animations, animation);
    const QVector<int> removed = validPlaces(frames, lines.count());
    if (removed.isEmpty()) {
        return -1;
    }
    const EditStep step(animations, EditText::tr("Remove frames"));
    removeRuns(animations->document(), lines, removed);
    return qMin(removed.first(), lines.count() - removed.size() - 1);
}

int insertFrames(Animations* animations, int animation, int to,
                 const QVector<SpriteNumber>& sprites)
{
    const AnimationCode* code = animationAt(animations, animation);
    if (!code || sprites.isEmpty()) {
        return -1;
    }
    const QList<FrameCode*> frames = code->frames();
    to = qBound(0, to, frames.size());
    const FrameCode* before = frames.value(to - 1);
    const QString text = code->frameTemplate(before);
    if (text.isEmpty()) {
        return -1;
    }
    const int above = before ? before->lastLine() : code->block().blockNumber();
    const EditStep step(animations, EditText::tr("Insert frames"));
    QStringList texts;
    for (int i = 0; i < sprites.size(); ++i) {
        texts.append(text);
    }
    insertLines(animations->document(), above + 1, texts.join(QLatin1Char('\n')));
    const QVector<int> made =
        linesOf(animations, framesOf(animations, animation).mid(to, sprites.size()));
    editFrames(animations, made, [&sprites](const FollowedFrame& frame, int i) {
        frame.get()->setSprite(sprites.at(i).group, sprites.at(i).number);
        return EditCount();
    });
    return to;
}

}  // namespace Zorv
