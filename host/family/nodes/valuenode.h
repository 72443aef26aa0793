#pragma once

#include <zorv/code/codedoc/valuecode.h>

namespace Family {

struct KeyInfo;

/// A line "key = value" of a group.
class ValueNode final : public Zorv::ValueCode
{
public:
    /// `value` is in the form that `parseValue()` gives.
    ValueNode(Zorv::CodeNode* previous, const KeyInfo* key, const QVariant& value);
    ~ValueNode() override;

    /// The row of the table.
    const KeyInfo* key() const { return m_key; }

    /// The key; for an old name the new one. A free or unknown key is read from
    /// the line.
    QString name() const override;

    /// Writes another key; nothing for a text that is no word.
    void setName(const QString& name) override;

    /// Edits the tokens of the line that differ. What stays keeps its spelling
    /// and spacing, a comment stays, and writing the present value changes
    /// nothing. Lists are `QVariantList`s, or a point or rectangle where that
    /// fits. False for a value that the key does not take.
    bool write(const QVariant& value) override;

    /// The value as code: "0xff8040" for a colour, "80%" for a percentage.
    QString unsignedText(unsigned value) const override;

    /// The value as the line has it, without quotes and escapes.
    QString text() const;

    /// For the parser: the same line with another value, or another key of the
    /// same type. Tells the parent.
    void update(const KeyInfo* key, const QVariant& value);

    /// Counts every change of a value that names a file, in the whole process.
    static quint64 pathRevision();

    void release() override;

private:
    const KeyInfo* m_key;
};

}  // namespace Family
