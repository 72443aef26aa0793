#include "animation/thumbnails/spriteuses.h"

#include "code/codedoc/animations.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"

#include <QHash>
#include <QPointer>
#include <QTextBlock>

#include <algorithm>
#include <utility>

// Each line remembers the sprite that it showed when it was last parsed. After each edit the
// document reports which lines it has parsed again. Their old sprites are subtracted from the count
// and their new ones are added. The lines above and below cannot have changed.

namespace Zorv {

class SpriteUsesPrivate
{
public:
    /// A document whose frames are counted.
    struct Text
    {
        QPointer<CodeDocument> document;
        QVector<SpriteNumber> lines;  ///< the sprite of each line
    };

    void countAll();
    void countAll(Text* text);
    void count(Text* text, int first, int last);
    void uncount(const QVector<SpriteNumber>& lines);
    void recount(Text* text, int first, int last);
    void add(SpriteNumber sprite, int number);
    Text* textOf(const CodeDocument* document);

    QVector<Text> texts;
    bool isCounted = false;
    QHash<SpriteNumber, int> counts;
    bool hasChanged = false;  ///< since the last `changed()`
};

namespace {

SpriteNumber shownIn(const CodeDocument* document, const QTextBlock& line)
{
    const CodeNode* node = document->nodeInBlock(line);
    if (!node || node->type() != CodeNode::Frame || !node->parentCode() ||
        node->parentCode()->type() != CodeNode::Animation) {
        return {};
    }
    const auto* frame = static_cast<const FrameCode*>(node);
    return {frame->spriteGroup(), frame->spriteNumber()};
}

QVector<CodeDocument*> documentsOf(const QVector<Animations*>& lists)
{
    QVector<CodeDocument*> documents;
    for (const Animations* list : lists) {
        CodeDocument* document = list ? list->document() : nullptr;
        if (document && !documents.contains(document)) {
            documents.append(document);
        }
    }
    return documents;
}

}  // namespace

void SpriteUsesPrivate::add(SpriteNumber sprite, int number)
{
    if (!sprite.isValid()) {
        return;
    }
    int& count = counts[sprite];
    hasChanged = hasChanged || (count == 0) != (count + number == 0);
    count += number;
    if (count == 0) {
        counts.remove(sprite);
    }
}

/// Counts these lines; `lines` already has space for them.
void SpriteUsesPrivate::count(Text* text, int first, int last)
{
    QTextBlock line = text->document->findBlockByNumber(first);
    for (int i = first; i <= last; ++i, line = line.next()) {
        text->lines[i] = shownIn(text->document, line);
        add(text->lines[i], 1);
    }
}

void SpriteUsesPrivate::uncount(const QVector<SpriteNumber>& lines)
{
    for (const SpriteNumber& sprite : lines) {
        add(sprite, -1);
    }
}

/// The lines were parsed again. All inserted or removed lines are among them.
void SpriteUsesPrivate::recount(Text* text, int first, int last)
{
    const int more = text->document->blockCount() - text->lines.size();
    const int lastBefore = last - more;
    if (first < 0 || lastBefore < first - 1 || lastBefore >= text->lines.size()) {
        const QVector<SpriteNumber> before = text->lines;
        countAll(text);
        uncount(before);
        return;
    }
    // Add before subtracting: a sprite used before and after must not reach zero in between.
    const QVector<SpriteNumber> before = text->lines.mid(first, lastBefore + 1 - first);
    if (more > 0) {
        text->lines.insert(first, more, SpriteNumber());
    } else {
        text->lines.remove(first, -more);
    }
    count(text, first, last);
    uncount(before);
}

void SpriteUsesPrivate::countAll(Text* text)
{
    text->lines.fill({}, text->document->blockCount());
    count(text, 0, text->lines.size() - 1);
}

void SpriteUsesPrivate::countAll()
{
    counts.clear();
    for (Text& text : texts) {
        countAll(&text);
    }
    isCounted = true;
    hasChanged = false;
}

/// The entry of a document that is being counted.
SpriteUsesPrivate::Text* SpriteUsesPrivate::textOf(const CodeDocument* document)
{
    return &*std::find_if(texts.begin(), texts.end(),
                          [document](const Text& text) { return text.document == document; });
}

SpriteUses::SpriteUses(QObject* parent) : QObject(parent), d(std::make_unique<SpriteUsesPrivate>())
{
}

SpriteUses::~SpriteUses() = default;

void SpriteUses::setAnimations(const QVector<Animations*>& lists)
{
    const QVector<CodeDocument*> documents = documentsOf(lists);
    const bool isSame = std::equal(
        documents.begin(), documents.end(), d->texts.begin(), d->texts.end(),
        [](const CodeDocument* document, const auto& text) { return text.document == document; });
    if (isSame) {
        return;
    }
    for (const auto& text : qAsConst(d->texts)) {
        if (text.document) {
            text.document->disconnect(this);
        }
    }
    d->texts.clear();
    d->isCounted = false;
    for (CodeDocument* document : documents) {
        d->texts.push_back({document, {}});
        connect(document, &CodeDocument::levelsChanged, this, [=](int first, int last) {
            if (d->isCounted) {
                d->recount(d->textOf(document), first, last);
            }
            tell();
        });
        connect(document, &CodeDocument::closing, this, [=] {
            SpriteUsesPrivate::Text* text = d->textOf(document);
            d->uncount(text->lines);
            d->texts.erase(text);
            d->hasChanged = true;
            tell();
        });
    }
    emit changed();
}

bool SpriteUses::hasAnimations() const
{
    return !d->texts.isEmpty();
}

int SpriteUses::count(SpriteNumber sprite) const
{
    if (!d->isCounted) {
        d->countAll();
    }
    return d->counts.value(sprite);
}

void SpriteUses::tell()
{
    if (std::exchange(d->hasChanged, false)) {
        emit changed();
    }
}

}  // namespace Zorv
