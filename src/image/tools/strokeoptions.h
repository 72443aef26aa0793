#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QPointF>

#include <optional>

class QSize;

namespace Zorv {

/// Stroke options shared by several tools. All are off initially. A change applies from the next
/// painted point on. Main thread only.
class ZORV_EXPORT StrokeOptions : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool pixelPerfect READ isPixelPerfect WRITE setPixelPerfect NOTIFY changed)
    Q_PROPERTY(bool straightLines READ straightLines WRITE setStraightLines NOTIFY changed)
    Q_PROPERTY(bool shading READ isShading WRITE setShading NOTIFY changed)
    Q_PROPERTY(Symmetry symmetry READ symmetry WRITE setSymmetry NOTIFY changed)

public:
    enum SymmetryFlag {
        NoSymmetry = 0,
        LeftRight = 1,  ///< mirrors at a vertical axis
        TopBottom = 2   ///< mirrors at a horizontal axis
    };
    Q_DECLARE_FLAGS(Symmetry, SymmetryFlag)
    Q_FLAG(Symmetry)

    explicit StrokeOptions(QObject* parent = nullptr);

    /// A stroke one pixel wide gets no corners: a pixel that only joins two others is removed
    /// again.
    bool isPixelPerfect() const;
    void setPixelPerfect(bool isOn);

    /// While Shift is held, a drag draws one straight line from where Shift was first seen, in runs
    /// of equal length.
    bool straightLines() const;
    void setStraightLines(bool isOn);

    /// A click on a colour fills the replace tool with the ramp of that colour.
    bool isShading() const;
    void setShading(bool isOn);

    /// What is painted also appears mirrored on the other side of the axes.
    Symmetry symmetry() const;
    void setSymmetry(Symmetry symmetry);

    /// The crossing of both axes, in pixels from the top left corner: at a whole number an axis
    /// lies between two pixels, at a half in the middle of one. Other values are rounded to halves.
    /// NaN and values beyond +-65536 are ignored.
    void setSymmetryAxis(const QPointF& axis);

    /// Keeps the axes in the middle of any canvas, as initially.
    void centerSymmetryAxis();

    /// Moves axes that lie outside a canvas of this size to its edge.
    void keepSymmetryAxisOn(const QSize& canvas);

    /// The crossing for a canvas of this size.
    QPointF symmetryAxis(const QSize& canvas) const;

signals:
    void changed();

private:
    template <class Value>
    void set(Value& member, const Value& value);

    bool m_pixelPerfect = false;
    bool m_straightLines = false;
    bool m_shading = false;
    Symmetry m_symmetry;
    std::optional<QPointF> m_axis;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(StrokeOptions::Symmetry)

}  // namespace Zorv
