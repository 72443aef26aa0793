#include "core/dragrows_p.h"

#include <QDataStream>
#include <QDateTime>
#include <QMetaType>
#include <QVariant>

// The payload is a stream of items: row, column, number of roles, then for each role its number and
// a `QVariant`. Only the row is needed, but the size of a value depends on its type. So each value
// is skipped by type: fixed sizes come from a table, texts and lists have a length in front, and
// images end with their last PNG chunk. A type that is not known here ends the reading, because the
// position of the next item is then unknown.

namespace Zorv {

namespace {

const int MaxDepth = 16;
const int PngSignature = 8;
const int TransformSize = 9 * 8;
const int FontSize = 31;

// Types whose values have the same size in every stream.
const struct
{
    int type;
    int size;
} fixedSizes[] = {
    {QMetaType::Bool, 1},     {QMetaType::Char, 1},
    {QMetaType::SChar, 1},    {QMetaType::UChar, 1},
    {QMetaType::Short, 2},    {QMetaType::UShort, 2},
    {QMetaType::Int, 4},      {QMetaType::UInt, 4},
    {QMetaType::Long, 8},     {QMetaType::ULong, 8},
    {QMetaType::LongLong, 8}, {QMetaType::ULongLong, 8},
    {QMetaType::Float, 8},    {QMetaType::Double, 8},
    {QMetaType::QChar, 2},    {QMetaType::QDate, 8},
    {QMetaType::QTime, 4},    {QMetaType::QSize, 8},
    {QMetaType::QSizeF, 16},  {QMetaType::QPoint, 8},
    {QMetaType::QPointF, 16}, {QMetaType::QLine, 16},
    {QMetaType::QLineF, 32},  {QMetaType::QRect, 16},
    {QMetaType::QRectF, 32},  {QMetaType::QColor, 11},
    {QMetaType::QUuid, 16},   {QMetaType::QTransform, TransformSize},
};

class ValueSkipper
{
public:
    explicit ValueSkipper(QDataStream& in) : m_in(in) {}

    // Skips all roles of one item.
    bool skipRoles()
    {
        return skipEach(read<quint32>(), [this] { return skip(4) && skipVariant(0); });
    }

private:
    template <typename T>
    T read()
    {
        T value{};
        m_in >> value;
        return value;
    }

    bool isGood() const { return m_in.status() == QDataStream::Ok; }

    bool skip(quint32 size)
    {
        return isGood() && size <= quint32(INT_MAX) && m_in.skipRawData(int(size)) == int(size);
    }

    template <typename Step>
    bool skipEach(quint32 count, Step step)
    {
        for (quint32 i = 0; i < count; ++i) {
            if (!isGood() || !step()) {
                return false;
            }
        }
        return isGood();
    }

    // Skips a text or byte array with its length in front; all bits set means null.
    bool skipSized()
    {
        const auto size = read<quint32>();
        return size == 0xffffffff ? isGood() : skip(size);
    }

    bool skipVariant(int depth)
    {
        auto type = int(read<quint32>());
        read<quint8>();
        if (!isGood() || depth > MaxDepth) {
            return false;
        }
        if (type == QMetaType::UnknownType) {
            return true;
        }
        for (const auto& entry : fixedSizes) {
            if (entry.type == type) {
                return skip(quint32(entry.size));
            }
        }
        return skipVaried(type, depth);
    }

    bool skipVaried(int type, int depth)
    {
        const auto text = [this] { return skipSized(); };
        const auto value = [this, depth] { return skipVariant(depth + 1); };
        switch (type) {
        case QMetaType::QString:
        case QMetaType::QByteArray:
        case QMetaType::QUrl:
            return skipSized();
        case QMetaType::QStringList:
        case QMetaType::QByteArrayList:
            return skipEach(read<quint32>(), text);
        case QMetaType::QVariantList:
            return skipEach(read<quint32>(), value);
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return skipEach(read<quint32>(), [&] { return text() && value(); });
        case QMetaType::QFont:
            return skipFont();
        case QMetaType::QDateTime:
            read<QDateTime>();
            return isGood();
        case QMetaType::QBrush:
            return skipBrush();
        case QMetaType::QImage:
        case QMetaType::QPixmap:
        case QMetaType::QBitmap:
            return skipImage();
        case QMetaType::QIcon:
            return skipIcon();
        case QMetaType::User:
            return skipHostValue();
        default:
            return false;
        }
    }

    // Family and style come first, then a fixed-size part, then the list of families.
    bool skipFont()
    {
        return skipSized() && skipSized() && skip(FontSize) &&
               skipEach(read<quint32>(), [this] { return skipSized(); });
    }

    // Skips the PNG chunks up to "IEND". A null image has none.
    bool skipImage()
    {
        if (read<qint32>() == 0 || !skip(PngSignature)) {
            return isGood();
        }
        for (;;) {
            const auto size = read<quint32>();
            char name[4];
            if (m_in.readRawData(name, 4) != 4 || !skip(size) || !skip(4)) {
                return false;
            }
            if (qstrncmp(name, "IEND", 4) == 0) {
                return true;
            }
        }
    }

    // Skips a list of pictures, each followed by file name, size, mode and state.
    bool skipIcon()
    {
        const auto engine = read<QString>();
        if (engine.isEmpty()) {
            return isGood();
        }
        if (engine != QLatin1String("QPixmapIconEngine")) {
            return false;
        }
        return skipEach(read<quint32>(),
                        [this] { return skipImage() && skipSized() && skip(8 + 4 + 4); });
    }

    bool skipHostValue()
    {
        const auto name = read<QByteArray>();
        const int type = QMetaType::type(name.constData());
        if (!isGood() || type < QMetaType::User) {
            return false;
        }
        QVariant value(type, nullptr);
        return QMetaType::load(m_in, type, value.data()) && isGood();
    }

    bool skipBrush()
    {
        const auto style = read<quint8>();
        if (!skip(11) || (style >= Qt::LinearGradientPattern && style != Qt::TexturePattern)) {
            return false;
        }
        return (style != Qt::TexturePattern || skipImage()) && skip(TransformSize);
    }

    QDataStream& m_in;
};

}  // namespace

QVector<int> draggedRows(const QByteArray& payload)
{
    QVector<int> rows;
    QDataStream in(payload);
    while (!in.atEnd()) {
        qint32 row, column;
        in >> row >> column;
        if (in.status() != QDataStream::Ok || !ValueSkipper(in).skipRoles()) {
            return {};
        }
        rows.append(row);
    }
    return rows;
}

}  // namespace Zorv
