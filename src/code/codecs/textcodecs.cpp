#include "code/codecs/textcodecs.h"

#include <QCoreApplication>
#include <QList>
#include <QTextCodec>

#include <uchardet.h>

#include <memory>

namespace Zorv {

namespace {

const int Block = 64 * 1024;

QList<QByteArray> codecNames()
{
    QList<QByteArray> names = QTextCodec::availableCodecs();
    names.removeAll("System");
    return names;
}

const QList<QByteArray> s_codecs = codecNames();
int s_defCodec = 0;

const struct
{
    QByteArray mark;
    const char* codec;
} marks[] = {
    {QByteArray("\xef\xbb\xbf", 3), "UTF-8"},
    // Longer marks come first, because UTF-32 begins like UTF-16.
    {QByteArray("\xff\xfe\0\0", 4), "UTF-32LE"},
    {QByteArray("\0\0\xfe\xff", 4), "UTF-32BE"},
    {QByteArray("\xff\xfe", 2), "UTF-16LE"},
    {QByteArray("\xfe\xff", 2), "UTF-16BE"},
};

QTextCodec* orLocale(QTextCodec* codec)
{
    return codec ? codec : QTextCodec::codecForLocale();
}

QTextCodec* codecOf(int number)
{
    const bool isListed = number > 0 && number <= s_codecs.size();
    return orLocale(isListed ? QTextCodec::codecForName(s_codecs[number - 1]) : nullptr);
}

int numberOf(const QTextCodec* codec)
{
    const QByteArray name = codec->name();
    return name == "System" ? 0 : s_codecs.indexOf(name) + 1;
}

QTextCodec* detected(const QByteArray& data)
{
    const std::unique_ptr<uchardet, decltype(&uchardet_delete)> detector(uchardet_new(),
                                                                         &uchardet_delete);
    if (uchardet_handle_data(detector.get(), data.constData(), size_t(data.size())) != 0) {
        return nullptr;
    }
    uchardet_data_end(detector.get());
    const QByteArray name = uchardet_get_charset(detector.get());
    // ASCII is part of every codec, so it does not tell which one is meant.
    const bool isTelling = !name.isEmpty() && qstricmp(name.constData(), "ASCII") != 0 &&
                           qstricmp(name.constData(), "US-ASCII") != 0;
    return isTelling ? QTextCodec::codecForName(name) : nullptr;
}

}  // namespace

int TextCodecs::count()
{
    return s_codecs.size() + 1;
}

int TextCodecs::index(const char* name)
{
    return s_codecs.indexOf(QByteArray(name)) + 1;
}

QString TextCodecs::name(int number)
{
    if (number == 0) {
        return QCoreApplication::translate("Zorv::TextCodecs", "System");
    }
    return number > 0 ? QString::fromLatin1(s_codecs.value(number - 1).constData()) : QString();
}

void TextCodecs::setDefaultCodec(int number)
{
    s_defCodec = number;
}

QTextCodec* TextCodecs::get(const QByteArray& data)
{
    QTextCodec* codec = detected(data);
    return codec ? codec : codecOf(s_defCodec);
}

QString TextCodecs::stringFromData(const QByteArray& data, int* number)
{
    const QTextCodec* codec = *number < 0 ? get(data) : codecOf(*number);
    *number = numberOf(codec);
    return codec->toUnicode(data);
}

QByteArray TextCodecs::stringToData(const QString& text, int number)
{
    return codecOf(number)->fromUnicode(text);
}

int TextCodecs::firstUnencodable(const QString& text, int number)
{
    // Compares the decoded text, because some codecs replace characters silently.
    const QTextCodec* codec = codecOf(number);
    QTextCodec::ConverterState encoding(QTextCodec::IgnoreHeader);
    QTextCodec::ConverterState decoding(QTextCodec::IgnoreHeader);
    int same = 0;
    for (int start = 0; start < text.size(); start += Block) {
        const int size = qMin(Block, text.size() - start);
        const QByteArray bytes = codec->fromUnicode(text.constData() + start, size, &encoding);
        const QString back = codec->toUnicode(bytes.constData(), bytes.size(), &decoding);
        for (const QChar c : back) {
            if (same == text.size() || text[same] != c) {
                return same > 0 && text[same - 1].isHighSurrogate() ? same - 1 : same;
            }
            ++same;
        }
    }
    return same == text.size() ? -1 : same;
}

bool TextCodecs::isFaithful(const QByteArray& data, int number)
{
    const QTextCodec* codec = codecOf(number);
    const QByteArray mark = byteOrderMark(data);
    QTextCodec::ConverterState decoding;
    QTextCodec::ConverterState encoding(QTextCodec::IgnoreHeader);
    // Works in blocks, so that the first difference ends the work.
    int same = -1;
    for (int start = 0; start < data.size(); start += Block) {
        const int size = qMin(Block, data.size() - start);
        const QString text = codec->toUnicode(data.constData() + start, size, &decoding);
        const QByteArray back = codec->fromUnicode(text.constData(), text.size(), &encoding);
        // A codec that is not Unicode decodes the mark as text.
        if (same < 0) {
            same = back.startsWith(mark) ? 0 : mark.size();
        }
        if (back.size() > data.size() - same ||
            memcmp(back.constData(), data.constData() + same, size_t(back.size())) != 0) {
            return false;
        }
        same += back.size();
    }
    return data.isEmpty() || same == data.size();
}

int TextCodecs::faithfulCodec(const QByteArray& data)
{
    QList<int> candidates{index("UTF-8")};
    const QByteArray mark = byteOrderMark(data);
    for (const auto& entry : marks) {
        if (entry.mark == mark) {
            candidates.append(index(entry.codec));
        }
    }
    if (const QTextCodec* codec = detected(data)) {
        candidates.append(numberOf(codec));
    }
    candidates.append(index("windows-1252"));
    for (const int number : qAsConst(candidates)) {
        if (number > 0 && isFaithful(data, number)) {
            return number;
        }
    }
    // ISO-8859-1 has a character for every byte.
    return index("ISO-8859-1");
}

QByteArray TextCodecs::byteOrderMark(const QByteArray& data)
{
    for (const auto& entry : marks) {
        if (data.startsWith(entry.mark)) {
            return entry.mark;
        }
    }
    return {};
}

}  // namespace Zorv
