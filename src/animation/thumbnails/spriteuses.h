#pragma once

#include "cache/spritenumber.h"
#include "zorv_export.h"

#include <QObject>

#include <memory>

namespace Zorv {

class Animations;
class SpriteUsesPrivate;

/// How many frames of a list of animations show each sprite.
///
/// The count is kept up while the text is edited: an edit costs what the lines cost that are parsed
/// again for it, however many frames there are. Nothing is counted before somebody asks. Main
/// thread only.
class ZORV_EXPORT SpriteUses : public QObject
{
    Q_OBJECT

public:
    explicit SpriteUses(QObject* parent = nullptr);
    ~SpriteUses() override;

    /// Counts in other animations; null for none. They are not owned, and may die.
    void setAnimations(Animations* animations);
    Animations* animations() const;

    /// The number of frames that show a sprite; 0 without animations. Frames that stand below no
    /// animation do not count.
    int count(SpriteNumber sprite) const;

signals:
    /// A sprite has come into use, or is not in use any more. Comes in the middle of a parse: the
    /// text must not be edited here.
    void changed();

private:
    std::unique_ptr<SpriteUsesPrivate> d;
};

}  // namespace Zorv
