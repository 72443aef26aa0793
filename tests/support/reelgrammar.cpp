#include "support/reelgrammar.h"

#include "cache/spritenumber.h"

#include <limits>

using namespace Zorv;

namespace {

bool isPlace(int number)
{
    return std::abs(number) <= ReelGrammar::MostPlace;
}

bool isBox(const QRect& rect)
{
    return isPlace(rect.left()) && isPlace(rect.top()) && rect.width() >= 1 &&
           rect.width() <= ReelGrammar::MostPlace && rect.height() >= 1 &&
           rect.height() <= ReelGrammar::MostPlace;
}

/// Both ends are numbers.
bool isRange(int start, int size)
{
    return size > 0 && qint64(start) + size <= std::numeric_limits<int>::max();
}

/// The numbers of a line behind its first character; none if one of them is none, or too large.
QVector<int> numbersOf(const QString& line)
{
    QVector<int> numbers;
    const QStringList words = line.mid(1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        bool isNumber = false;
        numbers.append(word == QLatin1String("*") ? 1 : word.toInt(&isNumber));
        if (!isNumber && word != QLatin1String("*")) {
            return {};
        }
    }
    return numbers;
}

QString textOf(const ReelFrame::Data& data)
{
    return QStringLiteral("+ %1 %2 %3 %4 %5 %6%7")
        .arg(QString::number(data.group), QString::number(data.number), QString::number(data.x),
             QString::number(data.y), QString::number(data.ticks), QString::number(data.flip),
             data.loop ? QStringLiteral(" *") : QString());
}

QString textOf(ContactBoxCode::BoxType type, const QRect& rect)
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(QLatin1Char(type == ContactBoxCode::Attack ? 'a' : 'b'))
        .arg(rect.left())
        .arg(rect.top())
        .arg(rect.width())
        .arg(rect.height());
}

QString nameOf(const QString& line)
{
    const bool isHead = line.startsWith(QLatin1Char('<')) && line.endsWith(QLatin1Char('>'));
    return isHead ? line.mid(1, line.size() - 2) : QString();
}

}  // namespace

QStringList ReelGrammar::lines()
{
    return {"<walk>",
            "<jab>",
            "<walk>",
            "+ 0 0 0 0 2 0",
            "+ 0 1 5 -7 3 1",
            "+ 0 0 -20 8 4 2 *",
            "+ 0 2 1 1 1 0",
            "+ 7 7 0 0 2 3",
            "+ -1 -1 0 0 2 0",
            "+ 0 0 9 9 -1 0",
            "+ 0 1 0 0 0 0",
            "+ 0 1 9999 -9999 2 0",
            "a -60 -30 20 10",
            "a 10 -20 50 16",
            "a 9999 9999 9999 9999",
            "b -30 -40 20 20",
            "b 20 -40 20 32",
            "b 0 0 1 1",
            "b 4 4",
            "",
            "note",
            "+ 0 0 2000000000 0 2000000000 0"};
}

CodeNode* ReelGrammar::parse(const QString& text, CodeNode*, CodeNode* previous, RootCode*,
                             CodeParserSyntax*)
{
    const QString name = nameOf(text);
    if (!name.isEmpty()) {
        return new ReelAnimation(previous, name);
    }
    const QVector<int> numbers =
        text.startsWith(QLatin1Char('+')) ? numbersOf(text) : QVector<int>();
    const CodeNode* head = lineHead(previous);
    if (numbers.size() < 6 || !head || head->type() != CodeNode::Animation) {
        return nullptr;
    }
    return new ReelFrame(previous, {numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3),
                                    numbers.at(4), numbers.at(5) & 3, numbers.size() > 6});
}

/// A line of the text, found again by nothing: it is good until the next edit.
class ReelBoxes::Box : public ContactBoxCode
{
public:
    Box(ReelBoxes* boxes, int line, const QRect& rect) : m_boxes(boxes), m_line(line), m_rect(rect)
    {
    }
    QRect rect() const override { return m_rect; }
    void setRect(const QRect& rect) override
    {
        if (isBox(rect) && rect != m_rect) {
            QTextCursor cursor(m_boxes->document()->findBlockByNumber(m_line));
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            m_boxes->document()->replaceSelection(textOf(m_boxes->type(), rect), cursor);
        }
    }
    ContactBoxesCode* boxes() const override { return m_boxes; }
    int line() const override { return m_line; }

private:
    ReelBoxes* m_boxes;
    int m_line;
    QRect m_rect;
};

ReelBoxes::ReelBoxes(ReelFrame* frame, ContactBoxCode::BoxType type) : m_frame(frame), m_type(type)
{
}

ReelBoxes::~ReelBoxes() = default;

/// Boxes that are as they were stay, for a pointer to one is good until the next edit.
void ReelBoxes::read() const
{
    std::vector<std::unique_ptr<Box>> boxes;
    const QTextBlock end = m_frame->block();
    for (QTextBlock block = m_frame->document()
                                ? m_frame->document()->findBlockByNumber(m_frame->firstLine())
                                : end;
         block != end && block.isValid(); block = block.next()) {
        const QLatin1Char mark(m_type == ContactBoxCode::Attack ? 'a' : 'b');
        const QVector<int> n =
            block.text().startsWith(mark) ? numbersOf(block.text()) : QVector<int>();
        if (n.size() == 4 && isRange(n.at(0), n.at(2)) && isRange(n.at(1), n.at(3))) {
            boxes.push_back(std::make_unique<Box>(const_cast<ReelBoxes*>(this), block.blockNumber(),
                                                  QRect(n.at(0), n.at(1), n.at(2), n.at(3))));
        }
    }
    const auto isSame = [](const auto& a, const auto& b) {
        return a->line() == b->line() && a->rect() == b->rect();
    };
    if (!std::equal(boxes.begin(), boxes.end(), m_boxes.begin(), m_boxes.end(), isSame)) {
        m_boxes = std::move(boxes);
    }
}

int ReelBoxes::count() const
{
    read();
    return int(m_boxes.size());
}

ContactBoxCode* ReelBoxes::at(int index) const
{
    return index >= 0 && index < count() ? m_boxes[size_t(index)].get() : nullptr;
}

ContactBoxCode* ReelBoxes::add(const QRect& rect)
{
    CodeDocument* text = document();
    if (!text || !isBox(rect)) {
        return nullptr;
    }
    const int line = m_frame->block().blockNumber();
    const ContactBoxCode::BoxType type = m_type;
    text->beginChange({});
    text->insertBefore(m_frame, textOf(type, rect), true);
    text->endChange();
    auto* frame = dynamic_cast<ReelFrame*>(text->nodeInBlock(text->findBlockByNumber(line + 1)));
    ContactBoxesCode* boxes = frame ? frame->contactBoxes(type) : nullptr;
    return boxes ? boxes->at(boxes->count() - 1) : nullptr;
}

void ReelBoxes::remove(int index)
{
    if (const ContactBoxCode* box = at(index)) {
        QTextCursor cursor(document()->findBlockByNumber(box->line()));
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
        document()->replaceSelection({}, cursor);
    }
}

FrameCode* ReelBoxes::frame() const
{
    return m_frame;
}

CodeDocument* ReelBoxes::document() const
{
    return m_frame->document();
}

ReelFrame::ReelFrame(CodeNode* previous, const Data& data)
    : FrameCode(previous, &m_attack, &m_body), m_data(data), m_attack(this, ContactBoxCode::Attack),
      m_body(this, ContactBoxCode::Collision)
{
}

QVariant ReelFrame::identifier() const
{
    return QStringLiteral("%1.%2").arg(m_data.group).arg(m_data.number);
}

Sprite* ReelFrame::sprite() const
{
    auto* text = static_cast<ReelDocument*>(document());
    return text ? text->sprite(m_data.group, m_data.number) : nullptr;
}

void ReelFrame::write(const Data& data)
{
    if (isPlace(data.x) && isPlace(data.y) && data.ticks <= ReelGrammar::MostTicks &&
        textOf(data) != textOf(m_data)) {
        change(textOf(data));
    }
}

void ReelFrame::setSprite(int group, int number)
{
    Data data = m_data;
    data.group = group;
    data.number = number;
    write(data);
}

void ReelFrame::setOffset(const QPoint& offset)
{
    Data data = m_data;
    data.x = offset.x();
    data.y = offset.y();
    write(data);
}

QVariant ReelFrame::property(const QString& name) const
{
    return name == QLatin1String("Identifier")  ? identifier()
           : name == QLatin1String("LoopPoint") ? QVariant(m_data.loop)
                                                : QVariant();
}

void ReelFrame::setProperty(const QString& name, const QVariant& value)
{
    if (name == QLatin1String("LoopPoint")) {
        setLoopPoint(value.toBool());
    }
}

QString ReelAnimation::frameTemplate(const FrameCode* before) const
{
    ReelFrame::Data data =
        before ? static_cast<const ReelFrame*>(before)->data() : ReelFrame::Data();
    data.ticks = ReelFrame::Data().ticks;
    data.loop = false;
    return textOf(data);
}

int ReelAnimations::optimize(bool dryRun, QStringList* lines)
{
    int count = 0;
    beginChange(QStringLiteral("Optimize"));
    for (QTextBlock block = document()->lastBlock().previous(); block.isValid();) {
        const QTextBlock above = block.previous();
        if (block.length() == 1) {
            ++count;
            if (lines) {
                lines->append(QStringLiteral("line %1").arg(block.blockNumber() + 1));
            }
            if (!dryRun) {
                QTextCursor cursor(block);
                cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
                document()->replaceSelection({}, cursor);
            }
        }
        block = above;
    }
    endChange();
    return count;
}

QString ReelAnimations::codeFor(unsigned index, const QString& identifier,
                                const QHash<SpriteNumber, SpriteNumber>& sprites) const
{
    QStringList lines =
        at(index) ? at(index)->code().split(QChar::ParagraphSeparator) : QStringList();
    for (QString& line : lines) {
        const QVector<int> n = line.startsWith(QLatin1Char('+')) ? numbersOf(line) : QVector<int>();
        if (n.size() >= 6 && sprites.contains({n.at(0), n.at(1)})) {
            const SpriteNumber sprite = sprites.value({n.at(0), n.at(1)});
            line = textOf({sprite.group, sprite.number, n.at(2), n.at(3), n.at(4), n.at(5) & 3,
                           n.size() > 6});
        }
    }
    if (!lines.isEmpty()) {
        lines.first() = QStringLiteral("<%1>").arg(identifier);
    }
    return lines.join(QLatin1Char('\n'));
}

ReelDocument::ReelDocument(const QString& text, const QString& fileName)
{
    QImage picture(32, 24, QImage::Format_ARGB32);
    picture.fill(0xff3060a0);
    m_sprites[0].setImage(picture);
    m_sprites[1].setImage(picture.copy(0, 0, 16, 16));
    registerDocumentEditor(new ReelAnimations(this), CodeNode::Animation, 0);
    setParser(&m_grammar);
    setFileName(fileName);
    setPlainText(text);
}

int ReelDocument::blockFolding(const QString& line) const
{
    return !nameOf(line).isEmpty() ? 5 : 2;
}

ReelAnimations* ReelDocument::animations() const
{
    return static_cast<ReelAnimations*>(documentEditor(CodeNode::Animation, 0));
}

Sprite* ReelDocument::sprite(int group, int number)
{
    return group == 0 && number >= 0 && number < 3 ? &m_sprites[number] : nullptr;
}
