#pragma once

#include "app/assets/rowlist.h"

#include <QPointer>

namespace Zorv {
class Sprites;
}

namespace App {

class Thumbnails;

/// The sprites of a collection as a grid of small pictures with their numbers. Only what
/// is in sight is decoded.
class SpriteList : public RowList
{
    Q_OBJECT

public:
    explicit SpriteList(QWidget* parent = nullptr);

    /// Null for none. A collection that dies is let go of.
    void setSprites(Zorv::Sprites* sprites);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void updateGrid();

    QPointer<Zorv::Sprites> m_sprites;
    Thumbnails* m_thumbnails;
};

}  // namespace App
