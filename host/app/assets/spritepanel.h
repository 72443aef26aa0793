#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class QLabel;

namespace Family {
struct AssetId;
class FamilySprite;
class SpriteCollection;
}  // namespace Family

namespace Zorv {
class SpriteList;
}

namespace App {

/// The sprites of the project in front: a list, and what is to be known of the selected one.
class SpritePanel : public QWidget
{
    Q_OBJECT

public:
    explicit SpritePanel(QWidget* parent = nullptr);

    /// Null for none. A collection that dies is let go of.
    void setSprites(Family::SpriteCollection* sprites);
    Family::SpriteCollection* sprites() const;

    Zorv::SpriteList* list() const { return m_list; }
    int currentRow() const;

    /// The sprite of the current row, or null.
    Family::FamilySprite* currentSprite() const;
    void setCurrentRow(int row);
    QVector<int> selectedRows() const;

    /// The numbers of the selected sprites, one for each sprite that has it.
    QVector<Family::AssetId> selectedIds() const;

    /// Makes the sprite of that group and number the current one. False if there is none.
    bool showSprite(int group, int number);

signals:
    /// The current row, or anything in the collection.
    void changed();

    /// A double click on a sprite, or Return.
    void spriteActivated(int row);

private:
    void updateCurrent();
    QString currentText() const;

    QPointer<Family::SpriteCollection> m_sprites;
    Zorv::SpriteList* m_list;
    QLabel* m_text;
};

}  // namespace App
