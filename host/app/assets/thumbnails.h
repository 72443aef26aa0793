#pragma once

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QVector>

namespace Zorv {
class Sprites;
}

namespace App {

/// Small pictures of a list of sprites, by row. Sprites are decoded a few milliseconds at
/// a time, those first that were asked for since the last `startPage()`.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /// Pictures of `side` by `side` pixels at most.
    explicit Thumbnails(int side, QObject* parent = nullptr);

    /// Forgets the pictures of the list before. Null for none.
    void setSprites(Zorv::Sprites* sprites);

    /// The picture of a row: a null pointer until it is made, a null picture if the sprite
    /// is broken.
    const QPixmap* picture(int row);

    /// What was asked for before is no longer in sight.
    void startPage();

    void forgetAll();
    int side() const { return m_side; }

signals:
    /// Pictures have been made.
    void made();

private:
    void makeSome();
    QPixmap make(int row) const;

    int m_side;
    QPointer<Zorv::Sprites> m_sprites;
    QCache<int, QPixmap> m_pictures;
    QVector<int> m_wanted;
    QTimer m_timer;
};

}  // namespace App
