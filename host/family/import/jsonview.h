#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace Family {

/// A value in a JSON text, read in place. Nothing is built, so a text of any size needs no memory
/// beyond its bytes. Members keep the order of the text, duplicate keys included; `QJsonObject`
/// would sort them and drop duplicates.
///
/// Valid as long as the bytes of the text. Re-entrant.
class JsonView
{
public:
    enum Kind { None, Null, Bool, Number, String, Array, Object };

    /// Limits for the text.
    static constexpr int MaxBytes = 16 << 20;
    static constexpr int MaxDepth = 64;

    /// `None`: a value that does not exist.
    JsonView() = default;

    /// The value of a whole text, which is validated first. `None`, with `error` naming line and
    /// column, if it is not JSON, too long or nested too deep. Skips a byte-order mark.
    static JsonView read(const QByteArray& bytes, QString* error);

    Kind kind() const;
    explicit operator bool() const { return m_begin != m_end; }

    /// The value of a boolean; `other` for anything else.
    bool isTrue(bool other = false) const;

    /// False, without a change, for anything but a number that fits into a double.
    bool readNumber(double* number) const;

    /// The text of a string, with escapes resolved; empty for anything else.
    QString text() const;

    /// The first member of an object with that key; `None` if there is none.
    JsonView member(const char* key) const;

    /// Visits the members of an object, or the items of an array with empty keys, in order, until
    /// `visit` returns false.
    void forEach(const std::function<bool(const QString& key, const JsonView& value)>& visit) const;

private:
    JsonView(const char* begin, const char* end) : m_begin(begin), m_end(end) {}

    const char* m_begin = nullptr;
    const char* m_end = nullptr;
};

}  // namespace Family
