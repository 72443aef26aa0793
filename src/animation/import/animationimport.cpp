#include "animation/import/animationimport.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"

#include <QSet>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

// All positions and texts are computed before the first edit, because any edit can destroy nodes.
// The edits use cursors and go from the end of the text to its start. So no edit moves the position
// of another one, and each line is parsed once, when the change ends.

namespace Zorv {

namespace {

struct TextEdit
{
    int start = 0;
    int end = 0;
    QString text;
};

const Animations* listOf(const ImportEntry& entry)
{
    return qobject_cast<const Animations*>(entry.source.model());
}

QString codeOf(const ImportEntry& entry, const QHash<SpriteNumber, SpriteNumber>& sprites)
{
    const Animations* list = listOf(entry);
    return list ? list->codeFor(unsigned(entry.source.row()), entry.identifier, sprites)
                : QString();
}

QHash<QString, int> firstRows(const Animations* list)
{
    QHash<QString, int> rows;
    rows.reserve(list->count());
    for (int row = list->count() - 1; row >= 0; --row) {
        rows.insert(list->at(unsigned(row))->property(QStringLiteral("Identifier")).toString(),
                    row);
    }
    return rows;
}

bool isBlank(const QTextBlock& line)
{
    return line.text().trimmed().isEmpty();
}

/// Appends lines at the end of a text, after an empty line.
TextEdit atEnd(const CodeDocument* document, const QString& code)
{
    const QTextBlock last = document->lastBlock();
    const bool isLineBegun = !last.text().isEmpty();
    const bool isApart = isBlank(last) && isBlank(last.previous());
    const int end = document->characterCount() - 1;
    const int breaks = int(isLineBegun) + int(!isApart);
    return {end, end, QString(breaks, QLatin1Char('\n')) + code + QLatin1Char('\n')};
}

/// Inserts lines after those of an animation, with an empty line above and below.
TextEdit behindLines(const CodeDocument* document, const QTextCursor& lines, const QString& code)
{
    const int end = lines.selectionEnd();
    const QTextBlock below = document->findBlock(end).next();
    const bool isApart = !below.isValid() || isBlank(below);
    return {end, end, QLatin1String("\n\n") + code + QString(int(!isApart), QLatin1Char('\n'))};
}

void apply(CodeDocument* document, QVector<TextEdit> edits, const QString& title)
{
    std::stable_sort(edits.begin(), edits.end(),
                     [](const TextEdit& a, const TextEdit& b) { return a.start > b.start; });
    document->beginChange(title);
    for (const TextEdit& edit : qAsConst(edits)) {
        QTextCursor cursor(document);
        cursor.setPosition(edit.start);
        cursor.setPosition(edit.end, QTextCursor::KeepAnchor);
        const QString present = cursor.selectedText().replace(QChar::ParagraphSeparator, '\n');
        if (present != edit.text) {
            document->placeChange(cursor);
            cursor.insertText(edit.text);
        }
    }
    document->endChange();
}

}  // namespace

AnimationImport::AnimationImport(Animations* destination, const QVector<ImportEntry>& entries,
                                 ImportConflict conflicts)
    : m_destination(destination)
{
    plan(entries, conflicts);
}

void AnimationImport::plan(const QVector<ImportEntry>& entries, ImportConflict conflicts)
{
    const QHash<QString, int> present = firstRows(m_destination);
    QHash<QString, int> planned;
    for (const ImportEntry& entry : entries) {
        const QString& identifier = entry.identifier;
        const int before = planned.value(identifier, -1);
        const int row = present.value(identifier, -1);
        if (!listOf(entry) || !m_destination->canName(identifier)) {
            m_result.refused.append(identifier);
        } else if (before < 0 && row < 0) {
            planned.insert(identifier, m_steps.size());
            m_steps.append({entry, true, {}});
            m_result.added.append(identifier);
        } else if (conflicts == ImportConflict::Skip) {
            m_result.skipped.append(identifier);
        } else {
            if (before >= 0) {
                m_steps[before].entry = entry;
            } else {
                planned.insert(identifier, m_steps.size());
                m_steps.append({entry, false, m_destination->index(row)});
            }
            m_result.replaced.append(identifier);
        }
    }
}

QVector<SpriteNumber> AnimationImport::sprites() const
{
    QVector<SpriteNumber> result;
    QSet<SpriteNumber> seen;
    for (const Step& step : m_steps) {
        const Animations* list = listOf(step.entry);
        const AnimationCode* animation =
            list ? list->at(unsigned(step.entry.source.row())) : nullptr;
        const QList<FrameCode*> frames = animation ? animation->frames() : QList<FrameCode*>();
        for (const FrameCode* frame : frames) {
            const SpriteNumber sprite{frame->spriteGroup(), frame->spriteNumber()};
            if (sprite.isValid() && !seen.contains(sprite)) {
                seen.insert(sprite);
                result.append(sprite);
            }
        }
    }
    return result;
}

AnimationImportResult AnimationImport::insert(int behind, const QString& title,
                                              const QHash<SpriteNumber, SpriteNumber>& sprites)
{
    CodeDocument* document = m_destination ? m_destination->document() : nullptr;
    if (!document) {
        return {};
    }
    QVector<TextEdit> edits;
    QStringList added;
    for (const Step& step : qAsConst(m_steps)) {
        const QString code = codeOf(step.entry, sprites);
        if (code.isNull() || (!step.isNew && !step.replaced.isValid())) {
            refuse(step.entry.identifier);
        } else if (step.isNew) {
            added.append(code);
        } else {
            const QTextCursor lines = m_destination->ownLines(unsigned(step.replaced.row()));
            edits.append({lines.selectionStart(), lines.selectionEnd(), code});
        }
    }
    if (!added.isEmpty()) {
        const QTextCursor lines = m_destination->ownLines(unsigned(behind));
        const QString code = added.join(QLatin1String("\n\n"));
        edits.append(lines.isNull() ? atEnd(document, code) : behindLines(document, lines, code));
    }
    if (!edits.isEmpty()) {
        apply(document, edits, title);
    }
    return m_result;
}

void AnimationImport::refuse(const QString& identifier)
{
    m_result.added.removeAll(identifier);
    m_result.replaced.removeAll(identifier);
    m_result.refused.append(identifier);
}

}  // namespace Zorv
