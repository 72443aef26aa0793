#pragma once

#include "family/nodes/valuetext.h"
#include "rules/codetext.h"
#include "rules/fixed.h"

#include <initializer_list>

namespace Rules {

using Family::numbersOf;

/// Reads numbers of a group, if they exist.
class Values
{
public:
    explicit Values(const CodeGroup& group) : m_group(group) {}

    void whole(const char* key, int* number) const
    {
        const QVariant value = m_group.value(key);
        *number = value.isValid() ? value.toInt() : *number;
    }

    void real(const char* key, double* number) const
    {
        const QVariant value = m_group.value(key);
        *number = value.isValid() ? value.toDouble() : *number;
    }

    void speed(const char* key, Fixed* number) const
    {
        const QVariant value = m_group.value(key);
        *number = value.isValid() ? fixedOf(value.toDouble()) : *number;
    }

    /// True if the key exists.
    bool speeds(const char* key, Fixed* x, Fixed* y) const
    {
        const QVariantList list = numbersOf(m_group.value(key));
        if (list.size() == 2) {
            *x = fixedOf(list.at(0).toDouble());
            *y = fixedOf(list.at(1).toDouble());
        }
        return list.size() == 2;
    }

    bool wholes(const char* key, int* first, int* second) const
    {
        const QVariantList list = numbersOf(m_group.value(key));
        if (list.size() == 2) {
            *first = list.at(0).toInt();
            *second = list.at(1).toInt();
        }
        return list.size() == 2;
    }

    QString word(const char* key) const { return m_group.value(key).toString(); }

private:
    const CodeGroup& m_group;
};

/// The index of a word in a list, 0 for any other word.
template <class Choice>
Choice choiceOf(const QString& word, std::initializer_list<const char*> words)
{
    int place = 0;
    for (const char* each : words) {
        if (word == QLatin1String(each)) {
            return Choice(place);
        }
        ++place;
    }
    return Choice(0);
}

inline QVector<int> wholesOf(const QVariant& value)
{
    QVector<int> result;
    const QVariantList list = value.toList();
    for (const QVariant& number : list) {
        result.append(number.toInt());
    }
    return result;
}

}  // namespace Rules
