#pragma once

#include <zorv/code/codedoc/valuecode.h>

namespace Family {

struct KeyInfo;

/// A line "key = value" of a group.
class ValueNode final : public Zorv::ValueCode
{
public:
    /// `value` has the form that `ValueReader::read()` gives.
    ValueNode(Zorv::CodeNode* previous, const KeyInfo* key, const QVariant& value);
    ~ValueNode() override;

    /// The row of the table.
    const KeyInfo* key() const { return m_key; }

    /// The key; for an old name the new one. A free or unknown key is read from the line.
    QString name() const override;

    /// Writes another key; does nothing if the text is not a word.
    void setName(const QString& name) override;

    /// Edits only tokens of the line that differ. The others keep their spelling and spacing,
    /// comments stay, and writing the current value changes nothing. Lists are `QVariantList`s, or
    /// a point or rectangle where that fits. False for a value that the key does not accept.
    bool write(const QVariant& value) override;

    /// The value as code: "0xff8040" for a colour, "80%" for a percentage.
    QString unsignedText(unsigned value) const override;

    /// The value as written in the line, without quotes and escapes.
    QString text() const;

    /// For the parser: same line, new value or another key of the same type. Notifies the parent.
    void update(const KeyInfo* key, const QVariant& value);

    /// Counts changes of values that name a file, in the whole process.
    static quint64 pathRevision();

    void release() override;

private:
    const KeyInfo* m_key;
};

}  // namespace Family
