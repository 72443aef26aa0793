#include "support/posegrammar.h"

#include <QPlainTextDocumentLayout>
#include <QTextBlock>

using namespace Zorv;

namespace {

constexpr int LongestTime = 1000;

QStringList numbers(const QStringList& words, int index)
{
    return words.value(index).split(QLatin1Char(','));
}

QString joined(double x, double y)
{
    return QString::number(x) + QLatin1Char(',') + QString::number(y);
}

class PoseBox : public ContactBoxCode
{
public:
    PoseBox(PoseFrame* frame, int kind, int index) : m_frame(frame), m_kind(kind), m_index(index) {}
    QRect rect() const override { return m_frame->data.boxes[size_t(m_kind)][m_index]; }
    void setRect(const QRect& rect) override
    {
        PoseData data = m_frame->data;
        data.boxes[size_t(m_kind)][m_index] = rect;
        m_frame->write(data);
    }
    ContactBoxesCode* boxes() const override
    {
        return m_frame->contactBoxes(m_kind == 0 ? Attack : Collision);
    }
    int line() const override { return m_frame->block().blockNumber(); }

private:
    PoseFrame* m_frame;
    int m_kind;
    int m_index;
};

}  // namespace

CodeNode* PoseGrammar::parse(const QString& text, CodeNode*, CodeNode* previous, RootCode*,
                             CodeParserSyntax*)
{
    if (text.startsWith(QLatin1Char('@'))) {
        return new PoseAnimation(previous, text.mid(1));
    }
    return text.startsWith(QLatin1Char('>')) ? new PoseFrame(previous, text) : nullptr;
}

PoseData PoseData::of(const QString& line)
{
    const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    PoseData data;
    data.group = numbers(words, 1).value(0).toInt();
    data.number = numbers(words, 1).value(1).toInt();
    data.offset = {numbers(words, 2).value(0).toInt(), numbers(words, 2).value(1).toInt()};
    data.delay = words.value(3).toInt();
    data.flip = words.value(4).toInt();
    data.scale = {numbers(words, 5).value(0).toDouble(), numbers(words, 5).value(1).toDouble()};
    data.angle = words.value(6).toDouble();
    for (const QString& word : words.mid(7)) {
        const QStringList sides = word.mid(1).split(QLatin1Char(','));
        QRect rect;
        rect.setCoords(sides.value(0).toInt(), sides.value(1).toInt(), sides.value(2).toInt(),
                       sides.value(3).toInt());
        data.loop = data.loop || word == QLatin1String("L");
        if (sides.size() == 4) {
            data.boxes[word.startsWith(QLatin1Char('a')) ? 0 : 1].append(rect);
        }
    }
    return data;
}

QString PoseData::line() const
{
    QStringList words{QStringLiteral(">"),    joined(group, number), joined(offset.x(), offset.y()),
                      QString::number(delay), QString::number(flip), joined(scale.x(), scale.y()),
                      QString::number(angle)};
    if (loop) {
        words.append(QStringLiteral("L"));
    }
    for (size_t kind = 0; kind < 2; ++kind) {
        for (const QRect& rect : boxes[kind]) {
            words.append(QLatin1Char(kind == 0 ? 'a' : 'c') + joined(rect.left(), rect.top()) +
                         QLatin1Char(',') + joined(rect.right(), rect.bottom()));
        }
    }
    return words.join(QLatin1Char(' '));
}

PoseBoxes::PoseBoxes(PoseFrame* frame, int kind) : m_frame(frame), m_kind(kind)
{
    for (int i = 0; i < frame->data.boxes[size_t(kind)].size(); ++i) {
        m_boxes.push_back(std::make_unique<PoseBox>(frame, kind, i));
    }
}

PoseBoxes::~PoseBoxes() = default;

int PoseBoxes::count() const
{
    return int(m_boxes.size());
}

ContactBoxCode* PoseBoxes::at(int index) const
{
    return index >= 0 && index < count() ? m_boxes[size_t(index)].get() : nullptr;
}

ContactBoxCode* PoseBoxes::add(const QRect& rect)
{
    CodeDocument* document = m_frame->document();
    const QTextBlock block = m_frame->block();
    const ContactBoxCode::BoxType kind = type();
    PoseData data = m_frame->data;
    data.boxes[size_t(m_kind)].append(rect);
    m_frame->write(data);
    auto* frame = static_cast<PoseFrame*>(document->nodeInBlock(block));
    const ContactBoxesCode* boxes = frame->contactBoxes(kind);
    return boxes->at(boxes->count() - 1);
}

void PoseBoxes::remove(int index)
{
    PoseData data = m_frame->data;
    data.boxes[size_t(m_kind)].remove(index);
    m_frame->write(data);
}

ContactBoxCode::BoxType PoseBoxes::type() const
{
    return m_kind == 0 ? ContactBoxCode::Attack : ContactBoxCode::Collision;
}

FrameCode* PoseBoxes::frame() const
{
    return m_frame;
}

CodeDocument* PoseBoxes::document() const
{
    return m_frame->document();
}

PoseFrame::PoseFrame(CodeNode* previous, const QString& line)
    : FrameCode(previous, nullptr, nullptr), data(PoseData::of(line))
{
}

void PoseFrame::write(const PoseData& wanted)
{
    change(wanted.line());
}

QVariant PoseFrame::property(const QString& name) const
{
    return name == QLatin1String("Identifier") ? identifier() : QVariant();
}

QVariant PoseFrame::identifier() const
{
    return joined(data.group, data.number);
}

void PoseFrame::setSprite(int group, int number)
{
    PoseData wanted = data;
    wanted.group = group;
    wanted.number = number;
    write(wanted);
}

Sprite* PoseFrame::sprite() const
{
    return static_cast<const PoseDocument*>(document())->sprites.value(data.number);
}

void PoseFrame::setDelay(int ticks)
{
    if (ticks <= LongestTime) {
        write(&PoseData::delay, qMax(ticks, -1));
    }
}

ContactBoxesCode* PoseFrame::contactBoxes(ContactBoxCode::BoxType type) const
{
    std::unique_ptr<PoseBoxes>& list = m_boxes[type & 1 ? 0 : 1];
    if (!list) {
        list = std::make_unique<PoseBoxes>(const_cast<PoseFrame*>(this), type & 1 ? 0 : 1);
    }
    return list.get();
}

QString PoseAnimation::frameTemplate(const FrameCode*) const
{
    return PoseData::of(QStringLiteral("> 0,0 0,0 5 0 1,1 0")).line();
}

bool PoseAnimations::canName(const QString& identifier) const
{
    return !identifier.isEmpty() && !identifier.contains(QLatin1Char(' '));
}

QString PoseAnimations::codeFor(unsigned index, const QString& identifier,
                                const QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>& sprites) const
{
    QStringList lines = ownLines(index).selectedText().split(QChar::ParagraphSeparator);
    lines[0] = QLatin1Char('@') + identifier;
    for (QString& line : lines) {
        PoseData data = PoseData::of(line);
        const Zorv::SpriteNumber own{data.group, data.number};
        if (line.startsWith(QLatin1Char('>')) && sprites.contains(own)) {
            data.group = sprites.value(own).group;
            data.number = sprites.value(own).number;
            line = data.line();
        }
    }
    return canName(identifier) && at(index) ? lines.join(QLatin1Char('\n')) : QString();
}

PoseDocument::PoseDocument(const QString& text) : m_animations(new PoseAnimations(this))
{
    setDocumentLayout(new QPlainTextDocumentLayout(this));
    registerDocumentEditor(m_animations, Animation, 0);
    setParser(&m_grammar);
    fromString(text);
}
