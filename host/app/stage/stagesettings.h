#pragma once

#include <QSize>

#include <array>

namespace Zorv {
class GraphicsRenderer;
}

namespace App {

/// What the settings say about the stage, and what stays from one start to the next: what is
/// shown, where the origin stands, and the zoom.
class StageSettings
{
public:
    /// What can be hidden.
    enum Part {
        MainCross,
        SecondaryCross,
        ExtraCross,
        Rulers,
        Guides,
        AttackBoxes,
        CollisionBoxes,
        PartCount
    };

    /// Shows what was shown last, and the main cross. The stage outlives this.
    explicit StageSettings(Zorv::GraphicsRenderer* stage);

    /// The checkable action that shows a part.
    static const char* actionName(Part part);

    bool isShown(Part part) const { return m_isShown[part]; }

    /// Kept in the settings but for the main cross, without which nobody finds the animation.
    void setShown(Part part, bool isShown);

    /// Takes background, boxes, crosses, priorities and the steps of zoom anew. `screen` is the
    /// size that the project was made for, which chooses the floor of the background.
    void apply(QSize screen);

    /// Puts origin and zoom back to where they were, on a stage of that size. An origin that is
    /// not on it stands in its middle, a quarter above the bottom: fighters stand on it.
    void restorePlace(QSize stageSize);
    void keepPlace() const;

private:
    void showParts();

    Zorv::GraphicsRenderer* m_stage;
    std::array<bool, PartCount> m_isShown;
};

}  // namespace App
