#include "app/run/outputtext.h"

#include <QChar>

namespace App {

namespace {

enum Sequence { Whole, Cut, Wrong };

/// Decodes the character at `at`.
Sequence readCharacter(const QByteArray& bytes, int at, uint* code, int* length)
{
    const uchar first = uchar(bytes.at(at));
    *length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (*length == 0 || first > 0xF4) {
        *length = 1;
        return Wrong;
    }
    *code = *length == 1 ? first : first & (0x7F >> *length);
    for (int i = 1; i < *length; ++i) {
        if (at + i == bytes.size()) {
            return Cut;
        }
        const uchar next = uchar(bytes.at(at + i));
        if ((next & 0xC0) != 0x80) {
            *length = i;
            return Wrong;
        }
        *code = *code << 6 | (next & 0x3F);
    }
    const bool isTooLong = (*length == 3 && *code < 0x800) || (*length == 4 && *code < 0x10000);
    return isTooLong || *code > 0x10FFFF || QChar::isSurrogate(*code) ? Wrong : Whole;
}

/// Shows control characters like a terminal: "^[".
QString signOf(uint code)
{
    return code < 0x20 || code == 0x7F
               ? QLatin1Char('^') + QString(QChar(code ^ 0x40))
               : QStringLiteral("<U+%1>").arg(code, 4, 16, QLatin1Char('0')).toUpper();
}

bool doesSomething(uint code)
{
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return QChar::isNonCharacter(code);
    }
}

}  // namespace

QString OutputText::decode(const QByteArray& bytes)
{
    const QByteArray all = m_rest + bytes;
    m_rest.clear();
    QString text;
    text.reserve(all.size());
    for (int at = 0; at < all.size();) {
        uint code = 0;
        int length = 0;
        const Sequence sequence = readCharacter(all, at, &code, &length);
        if (sequence == Cut) {
            m_rest = all.mid(at);
            break;
        }
        if (sequence == Whole) {
            addCharacter(code, &text);
        } else {
            addBytes(all.mid(at, length), &text);
        }
        at += length;
    }
    return text;
}

QString OutputText::finish()
{
    QString text;
    if (m_hasReturn) {
        m_hasReturn = false;
        append(signOf('\r'), &text);
    }
    addBytes(m_rest, &text);
    m_rest.clear();
    m_column = 0;
    return text;
}

// A carriage return is shown only if no line feed follows.
void OutputText::addCharacter(uint code, QString* text)
{
    if (m_hasReturn && code != '\n') {
        append(signOf('\r'), text);
    }
    m_hasReturn = code == '\r';
    if (code == '\n') {
        *text += QLatin1Char('\n');
        m_column = 0;
    } else if (!m_hasReturn) {
        const bool isPlain = code == '\t' || (code >= 0x20 && code < 0x7F);
        const bool isSign = !isPlain && doesSomething(code);
        append(isPlain  ? QString(QChar(code))
               : isSign ? signOf(code)
                        : QString::fromUcs4(&code, 1),
               text);
    }
}

void OutputText::addBytes(const QByteArray& bytes, QString* text)
{
    for (const char byte : bytes) {
        append(QStringLiteral("\\x") +
                   QString::number(uchar(byte), 16).toUpper().rightJustified(2, QLatin1Char('0')),
               text);
    }
}

void OutputText::append(const QString& piece, QString* text)
{
    if (m_column >= MaxLine) {
        *text += QLatin1Char('\n');
        m_column = 0;
    }
    *text += piece;
    m_column += piece.size();
}

}  // namespace App
