#include "family/nodes/valuenode.h"

#include "family/grammar/grammar.h"
#include "family/grammar/linescanner.h"
#include "family/nodes/lineedit.h"
#include "family/nodes/valuetext.h"

#include <zorv/code/codedoc/parentcode.h>

#include <QTextBlock>

namespace Family {

namespace {

quint64 revisionOfPaths = 1;

void noteKey(const KeyInfo* key)
{
    revisionOfPaths += key->form == Form::Path ? 1 : 0;
}

/// The replacements that give a line other elements: elements that differ, and the end of a list
/// that grows or shrinks.
QVector<Replacement> elementReplacements(const LinePart& whole, const QVector<LinePart>& present,
                                         const QStringList& oldTexts, const QStringList& newTexts)
{
    const bool known = !present.isEmpty() && present.size() == oldTexts.size();
    if (!known) {
        // A line with nothing after '=' also gets the usual blank.
        const QString blank = whole.start == whole.end ? QStringLiteral(" ") : QString();
        return {{whole.start, whole.end, blank + newTexts.join(QLatin1String(", "))}};
    }
    QVector<Replacement> result;
    const int common = std::min(oldTexts.size(), newTexts.size());
    for (int i = 0; i < common; ++i) {
        if (oldTexts.at(i) != newTexts.at(i)) {
            result.append({present.at(i).start, present.at(i).end, newTexts.at(i)});
        }
    }
    const int lastCommon = present.at(common - 1).end;
    if (newTexts.size() < oldTexts.size()) {
        result.append({lastCommon, present.last().end, QString()});
    } else if (newTexts.size() > oldTexts.size()) {
        const QStringList more = newTexts.mid(common);
        result.append(
            {lastCommon, lastCommon, QLatin1String(", ") + more.join(QLatin1String(", "))});
    }
    return result;
}

}  // namespace

ValueNode::ValueNode(Zorv::CodeNode* previous, const KeyInfo* key, const QVariant& value)
    : ValueCode(previous, key->valueType(), value), m_key(key)
{
    noteKey(m_key);
}

ValueNode::~ValueNode()
{
    noteKey(m_key);
}

QString ValueNode::name() const
{
    if (!m_key->isFree()) {
        return m_key->name;
    }
    const QString line = block().text();
    LineScanner scanner(line);
    scanner.skipBlanks();
    return scanner.word().toString();
}

void ValueNode::setName(const QString& name)
{
    const NodeLine line(this);
    const LinePart* key = line.details.part(LinePart::Key);
    if (key && isWord(name) && name != this->name()) {
        replaceColumns(this, {{key->start, key->end, name}});
    }
}

bool ValueNode::write(const QVariant& value)
{
    const QVariant wanted = normalized(*m_key, value);
    const NodeLine line(this);
    const LinePart* whole = line.details.part(LinePart::Value);
    const bool readable = whole;
    if (!readable) {
        whole = line.details.part(LinePart::Value, LinePart::Unread);
    }
    if (!wanted.isValid() || !whole) {
        return false;
    }
    const QStringList oldTexts = readable ? elementTexts(*m_key, this->value()) : QStringList();
    const QStringList newTexts = elementTexts(*m_key, wanted);
    if (oldTexts != newTexts) {
        const QVector<LinePart> present = line.details.elements(whole);
        replaceColumns(this, elementReplacements(*whole, present, oldTexts, newTexts));
    }
    return true;
}

QString ValueNode::unsignedText(unsigned value) const
{
    switch (m_key->form) {
    case Form::Colour:
    case Form::Colours:
    case Form::Percent:
        return elementTexts(*m_key, value).constFirst();
    default:
        return QString::number(value);
    }
}

QString ValueNode::text() const
{
    const NodeLine line(this);
    const LinePart* whole = line.details.part(LinePart::Value);
    if (whole && m_key->valueType() == Text) {
        return value().toString();
    }
    if (!whole) {
        whole = line.details.part(LinePart::Value, LinePart::Unread);
    }
    return whole ? line.text.mid(whole->start, whole->end - whole->start) : QString();
}

void ValueNode::update(const KeyInfo* key, const QVariant& value)
{
    noteKey(m_key);
    m_key = key;
    noteKey(m_key);
    setValue(value);
    if (parentCode()) {
        parentCode()->childChanged(this);
    }
}

quint64 ValueNode::pathRevision()
{
    return revisionOfPaths;
}

void ValueNode::release()
{
    delete this;
}

}  // namespace Family
