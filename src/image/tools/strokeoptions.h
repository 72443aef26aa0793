#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QPointF>

#include <optional>

class QSize;

namespace Zorv {

/// Options of strokes that several tools share. All are off at first, and take effect with the
/// next point that is painted. Main thread only.
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
        LeftRight = 1,  ///< about an upright axis
        TopBottom = 2   ///< about a level one
    };
    Q_DECLARE_FLAGS(Symmetry, SymmetryFlag)
    Q_FLAG(Symmetry)

    explicit StrokeOptions(QObject* parent = nullptr);

    /// A stroke of one pixel's width has no corners: a pixel that only joins two others is taken
    /// away again.
    bool isPixelPerfect() const;
    void setPixelPerfect(bool isOn);

    /// Moves with Shift held draw one line from where Shift was first seen, in runs of equal
    /// length.
    bool straightLines() const;
    void setStraightLines(bool isOn);

    /// A click on a colour sets the replace tool up with the ramp that the colour is in.
    bool isShading() const;
    void setShading(bool isOn);

    /// What is painted appears on the other side of the axes, too.
    Symmetry symmetry() const;
    void setSymmetry(Symmetry symmetry);

    /// Where both axes cross, in pixels from the top left corner: at a whole number an axis lies
    /// between two pixels, at a half in the middle of one. Others are rounded to halves. What is no
    /// number is ignored.
    void setSymmetryAxis(const QPointF& axis);

    /// The axes are in the middle of whatever canvas it is, as at first.
    void centerSymmetryAxis();

    /// Axes that are beside a canvas of this size come to its edge.
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
