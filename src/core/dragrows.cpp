#include "core/dragrows_p.h"

#include <QDataStream>
#include <QDateTime>
#include <QMetaType>
#include <QVariant>

namespace Zorv {

namespace {

const int MaxDepth = 16;
const int PngSignature = 8;
const int TransformSize = 9 * 8;
const int FontSize = 31;

// Types whose values take the same number of bytes in every stream.
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

    // The roles of one item.
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

    // A text or bytes behind their length; all ones stands for a null value.
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

    // Family and style in front, the families behind of what has a fixed size.
    bool skipFont()
    {
        return skipSized() && skipSized() && skip(FontSize) &&
               skipEach(read<quint32>(), [this] { return skipSized(); });
    }

    // Chunks of PNG up to the one that ends it; nothing for a null image.
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

    // An icon of pictures; each is followed by file name, size, mode and state.
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
