#include "animation/thumbnails/spriteuses.h"

#include "code/codedoc/animations.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"

#include <QHash>
#include <QPointer>
#include <QTextBlock>
#include <QVector>

#include <utility>

// Each line keeps the sprite that it showed when it was parsed last. The document tells after each
// edit which lines it has parsed again: their old sprites are taken off the count, and the new ones
// added to it. Lines in front of these and behind them show what they did.

namespace Zorv {

class SpriteUsesPrivate
{
public:
    void count(int first, int last);
    void recount(int first, int last);
    void countAll();
    void add(SpriteNumber sprite, int number);

    QPointer<Animations> animations;
    QPointer<CodeDocument> document;  ///< theirs
    bool isCounted = false;
    QVector<SpriteNumber> lines;  ///< what each line shows
    QHash<SpriteNumber, int> counts;
    bool hasChanged = false;  ///< since `changed()` was told
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

/// Adds what the lines show now, which have room among `lines`.
void SpriteUsesPrivate::count(int first, int last)
{
    QTextBlock line = document->findBlockByNumber(first);
    for (int i = first; i <= last; ++i, line = line.next()) {
        lines[i] = shownIn(document, line);
        add(lines[i], 1);
    }
}

/// The lines have been parsed again. Lines that came or went did so among them.
void SpriteUsesPrivate::recount(int first, int last)
{
    const int more = document->blockCount() - lines.size();
    const int lastBefore = last - more;
    if (first < 0 || lastBefore < first - 1 || lastBefore >= lines.size()) {
        countAll();
        return;
    }
    // Added first: a sprite that is shown before and after has not gone between.
    const QVector<SpriteNumber> before = lines.mid(first, lastBefore + 1 - first);
    if (more > 0) {
        lines.insert(first, more, SpriteNumber());
    } else {
        lines.remove(first, -more);
    }
    count(first, last);
    for (const SpriteNumber& sprite : before) {
        add(sprite, -1);
    }
}

void SpriteUsesPrivate::countAll()
{
    counts.clear();
    lines.fill({}, document ? document->blockCount() : 0);
    isCounted = true;
    hasChanged = true;
    if (document) {
        count(0, lines.size() - 1);
    }
}

SpriteUses::SpriteUses(QObject* parent) : QObject(parent), d(std::make_unique<SpriteUsesPrivate>())
{
}

SpriteUses::~SpriteUses() = default;

void SpriteUses::setAnimations(Animations* animations)
{
    if (animations == d->animations) {
        return;
    }
    if (d->document) {
        d->document->disconnect(this);
    }
    d->animations = animations;
    d->document = animations ? animations->document() : nullptr;
    d->isCounted = false;
    if (d->document) {
        connect(d->document, &CodeDocument::levelsChanged, this, [this](int first, int last) {
            if (d->isCounted) {
                d->recount(first, last);
            }
            if (std::exchange(d->hasChanged, false)) {
                emit changed();
            }
        });
        connect(d->document, &CodeDocument::closing, this, [this] { setAnimations(nullptr); });
    }
    emit changed();
}

Animations* SpriteUses::animations() const
{
    return d->animations;
}

int SpriteUses::count(SpriteNumber sprite) const
{
    if (!d->isCounted) {
        d->countAll();
        d->hasChanged = false;
    }
    return d->counts.value(sprite);
}

}  // namespace Zorv
