#pragma once

#include <QPoint>
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

    /// Where the origin stands on a stage of some size.
    struct Place
    {
        QPoint origin;
        QSize size;
        bool isKept;  ///< from the last session, with the same text on the stage
    };

    /// Puts the zoom back to what it was, and gives the place of the origin, which is that of the
    /// last session, far from the view as it may be. The first is in the middle, a quarter above
    /// the bottom: fighters stand on it. `file` is the text on the stage.
    Place restorePlace(QSize stageSize, const QString& file);
    void keepPlace(QSize stageSize, const QString& file) const;

private:
    void showParts();

    Zorv::GraphicsRenderer* m_stage;
    std::array<bool, PartCount> m_isShown;
};

}  // namespace App
