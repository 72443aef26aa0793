#pragma once

#include "operations/media/spriteedits.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QSpinBox;

namespace Family {
class FamilySprite;
}

namespace Zorv {
class SpriteEditor;
}

namespace App {

class SpritePanel;

/// Asks for the new axis of sprites: a place in each picture, plus an offset in pixels. Previews
/// the resulting axis of one sprite.
class AxisDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts with the middle of the bottom edge. The sprite is only read in the constructor;
    /// `count` is the total number of sprites.
    AxisDialog(const Family::FamilySprite& sprite, int count, QWidget* parent);

    Operations::AxisBase base() const;
    QPoint offset() const;

private:
    void showResult();

    QString m_name;
    QSize m_size;
    QPoint m_axis;
    QComboBox* m_base;
    QSpinBox* m_x;
    QSpinBox* m_y;
    QLabel* m_result;
};

/// Shows the dialog and sets the axes of the selected sprites as one undo step. If one of them has
/// unsaved changes on the canvas, these are stored first, as part of that step.
void setAxesOfSelected(const SpritePanel* panel, Zorv::SpriteEditor* canvas, QWidget* parent);

}  // namespace App
