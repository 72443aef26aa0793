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

/// The sprites of the current project: a list, and information about the selected one.
class SpritePanel : public QWidget
{
    Q_OBJECT

public:
    explicit SpritePanel(QWidget* parent = nullptr);

    /// Null for none. The panel releases a collection when it is destroyed.
    void setSprites(Family::SpriteCollection* sprites);
    Family::SpriteCollection* sprites() const;

    Zorv::SpriteList* list() const { return m_list; }
    int currentRow() const;

    /// The sprite of the current row, or null.
    Family::FamilySprite* currentSprite() const;
    void setCurrentRow(int row);
    QVector<int> selectedRows() const;

    /// The identifiers of the selected sprites, one per sprite: an identifier used twice appears
    /// twice.
    QVector<Family::AssetId> selectedIds() const;

    /// Selects the sprite with this group and number. False if there is none.
    bool showSprite(int group, int number);

signals:
    /// The current row or the collection changed.
    void changed();

    /// Double click on a sprite, or Return.
    void spriteActivated(int row);

private:
    void updateCurrent();
    QString currentText() const;

    QPointer<Family::SpriteCollection> m_sprites;
    Zorv::SpriteList* m_list;
    QLabel* m_text;
};

}  // namespace App
