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

/// Asks where the axis of sprites is to be: at a place of each picture, moved by a number of
/// pixels. What that makes of one of them is told while it is chosen.
class AxisDialog : public QDialog
{
    Q_OBJECT

public:
    /// Begins with the middle of the bottom edge. The sprite is only looked at now; `count` is how
    /// many there are in all.
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

/// Asks with it, and sets the axes of the sprites that are selected in the panel as one step of
/// undo. What is on the canvas of one of them is taken in first, as part of that step.
void setAxesOfSelected(const SpritePanel* panel, Zorv::SpriteEditor* canvas, QWidget* parent);

}  // namespace App
