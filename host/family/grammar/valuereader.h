#pragma once

#include "family/grammar/keyinfo.h"
#include "family/grammar/linereport.h"
#include "family/grammar/linescanner.h"

#include <QVariant>

namespace Family {

/// Reads the text after '=' and reports its tokens and problems.
class ValueReader
{
public:
    ValueReader(LineScanner& scanner, LineReport& report) : m_scanner(scanner), m_report(report) {}

    /// Reads the value of a key, in the form that a `ValueNode` stores. On failure the value is
    /// invalid, the result false, and the rest of the line meaningless.
    bool read(const KeyInfo& key, QVariant* value);

    /// Reads a quoted text at the scanner's position; removes quotes and escapes.
    bool readText(QString* text);

    /// Read whole numbers, or any numbers, separated by commas. No range if `minimum` is not less
    /// than `maximum`.
    bool readWholes(int count, double minimum, double maximum, qint64* numbers);
    bool readReals(int count, double minimum, double maximum, double* numbers);

private:
    template <class Number>
    bool readNumber(Form form, Number* number);
    template <class Number>
    bool readElement(Form form, int index, double minimum, double maximum, Number* number);
    template <class Number>
    bool readFixed(Form form, int count, double minimum, double maximum, Number* numbers);
    template <class Number>
    bool readList(const KeyInfo& key, QVariant* value);
    template <class Number>
    bool readTuple(const KeyInfo& key, QVariant* value);
    template <class Number>
    bool readScalar(const KeyInfo& key, QVariant* value);
    bool readSingle(const KeyInfo& key, QVariant* value);
    bool readPath(QVariant* value);
    bool readMotionText(QVariant* value);
    bool readWord(QVariant* value);
    bool readChoice(const KeyInfo& key, QVariant* value);
    bool readDate(QVariant* value);
    bool readAny(QVariant* value);
    bool separate(bool* more);
    bool fail(ProblemId id, const QStringRef& found);

    LineScanner& m_scanner;
    LineReport& m_report;
};

}  // namespace Family
