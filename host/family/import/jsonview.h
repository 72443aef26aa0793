#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace Family {

/// A value of a JSON text, read where it stands: nothing is built, so a text of any size costs no
/// more memory than its bytes. Members come in the order of the text, also those whose key stands
/// twice, which `QJsonObject` would sort and drop.
///
/// Good as long as the bytes that it was made of. Re-entrant.
class JsonView
{
public:
    enum Kind { None, Null, Bool, Number, String, Array, Object };

    /// The most that is read.
    static constexpr int MaxBytes = 16 << 20;
    static constexpr int MaxDepth = 64;

    /// None: what is not there.
    JsonView() = default;

    /// The value of a whole text, after a look at all of it. `None` with `error`, which names line
    /// and column, for one that is not JSON, too long or too deep. A byte-order mark is skipped.
    static JsonView read(const QByteArray& bytes, QString* error);

    Kind kind() const;
    explicit operator bool() const { return m_begin != m_end; }

    /// Of a bool; anything else gives `other`.
    bool isTrue(bool other = false) const;

    /// False, and no change, for anything but a number that a double can hold.
    bool readNumber(double* number) const;

    /// Of a string, with its escapes as what they mean; anything else is empty.
    QString text() const;

    /// The first member of an object with that key; `None` without one.
    JsonView member(const char* key) const;

    /// Shows the members of an object, or with empty keys the items of an array, in their order,
    /// until `visit` gives false.
    void forEach(const std::function<bool(const QString& key, const JsonView& value)>& visit) const;

private:
    JsonView(const char* begin, const char* end) : m_begin(begin), m_end(end) {}

    const char* m_begin = nullptr;
    const char* m_end = nullptr;
};

}  // namespace Family
