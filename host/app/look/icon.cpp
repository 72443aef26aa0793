#include "app/look/icon.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <iterator>

namespace App {

namespace {

struct Scale
{
    int size;  // pixels
    const char* mark;
};

constexpr Scale scales[] = {{16, ""}, {24, "@1.5x"}, {32, "@2x"}};
constexpr int Largest = 32;

QString fileOf(const QString& file, const char* mark)
{
    QString name = file;
    return name.insert(name.lastIndexOf(QLatin1Char('.')), QLatin1String(mark));
}

/// Reads a picture when it is first drawn. A window has many more icons than it shows, and Qt's own
/// engine reads all their pictures at once.
class PictureEngine final : public QIconEngine
{
public:
    explicit PictureEngine(const QString& file) : m_file(file) {}

    QIconEngine* clone() const override { return new PictureEngine(m_file); }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min({size.width(), size.height(), Largest});
        return {side, side};
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) const override
    {
        QList<QSize> sizes;
        for (const Scale& scale : scales) {
            sizes.append({scale.size, scale.size});
        }
        return sizes;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    /// `size` in pixels of the screen.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const int side = actualSize(size, mode, state).width();
        QPixmap picture = pictureFor(side);
        if (!picture.isNull() && picture.width() != side) {
            picture = picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        }
        if (mode == QIcon::Normal) {
            return picture;
        }
        QStyleOption option;
        option.palette = QApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, picture, &option);
    }

private:
    /// The smallest picture that is large enough.
    QPixmap pictureFor(int side)
    {
        const auto* scale = std::find_if(std::begin(scales), std::end(scales) - 1,
                                         [side](const Scale& row) { return row.size >= side; });
        QPixmap& picture = m_pictures[scale->size];
        if (picture.isNull()) {
            picture.load(fileOf(m_file, scale->mark));
            // Qt derives the ratio 2 from "@2x" in the file name; the size is in screen pixels
            // here.
            picture.setDevicePixelRatio(1);
        }
        return picture;
    }

    QString m_file;
    QHash<int, QPixmap> m_pictures;
};

}  // namespace

QIcon icon(const QString& file)
{
    return QFile::exists(file) ? QIcon(new PictureEngine(file)) : QIcon();
}

}  // namespace App
