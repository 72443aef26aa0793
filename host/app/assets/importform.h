#pragma once

#include "operations/media/spriteimport.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace Family {
class FamilyAnimations;
class SpriteCollection;
}  // namespace Family

namespace App {

/// The import options: numbers, axis, palette, cropping, and an animation of the images.
class ImportForm : public QWidget
{
    Q_OBJECT

public:
    /// Numbers start with `group`. Without `animations` no animation is offered; `place` is the
    /// name shown for it. Sprites and animations are only read in the constructor.
    ImportForm(const Family::SpriteCollection& sprites, int group,
               const Family::FamilyAnimations* animations, const QString& place,
               QWidget* parent = nullptr);

    Operations::ImportRequest request() const;

    /// Whether to create an animation, its identifier, and the ticks of each frame; 0 means the
    /// times stored in the images.
    bool makesAnimation() const;
    QString animation() const;
    int ticks() const;

    /// Whether the images store frame times.
    void setTimed(bool isTimed);

    /// What is wrong with the input; empty if nothing is.
    QString fault() const;

signals:
    void changed();

private:
    void addNumbers(QFormLayout* layout);
    void addAxis(QFormLayout* layout);
    void addPalette(QFormLayout* layout, const Family::SpriteCollection& sprites);
    void addAnimation(QFormLayout* layout, const QString& place);
    void update();

    QComboBox* m_numbers;
    QLineEdit* m_pattern;
    QSpinBox* m_group;
    QSpinBox* m_first;
    QComboBox* m_taken;
    QComboBox* m_axis;
    QSpinBox* m_x;
    QSpinBox* m_y;
    QComboBox* m_palette;
    QSpinBox* m_colors;
    QCheckBox* m_crops;
    QGroupBox* m_animation;
    QLineEdit* m_identifier;
    QSpinBox* m_ticks;
    QStringList m_takenIds;
};

}  // namespace App
