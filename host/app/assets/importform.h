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

/// What becomes of images that come in: numbers, axis, palette, cropping, and an animation of them.
class ImportForm : public QWidget
{
    Q_OBJECT

public:
    /// Numbers begin with `group`. Without `animations`, to which `place` gives a name, there is no
    /// offer of one. Both are only looked at now.
    ImportForm(const Family::SpriteCollection& sprites, int group,
               const Family::FamilyAnimations* animations, const QString& place,
               QWidget* parent = nullptr);

    Operations::ImportRequest request() const;

    /// Whether an animation is asked for, its identifier, and the ticks of each frame; 0 for what
    /// the images tell.
    bool makesAnimation() const;
    QString animation() const;
    int ticks() const;

    /// Whether the images tell their times.
    void setTimed(bool isTimed);

    /// What is wrong with what stands in it; empty if nothing is.
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
