#pragma once

#include "cache/spritenumber.h"
#include "zorv_export.h"

#include <QObject>
#include <QVector>

#include <memory>

namespace Zorv {

class Animations;
class SpriteUsesPrivate;

/// How many frames of some lists of animations, those of a project say, show each sprite.
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

    /// Counts in other lists, each of another document. They are not owned, and may die: their
    /// frames do not count any more then.
    void setAnimations(const QVector<Animations*>& lists);

    /// True if there is a list to count in.
    bool hasAnimations() const;

    /// The number of frames that show a sprite. Frames that stand below no animation do not count.
    int count(SpriteNumber sprite) const;

signals:
    /// A sprite has come into use, or is not in use any more. Comes in the middle of a parse: the
    /// text must not be edited here.
    void changed();

private:
    void tell();

    std::unique_ptr<SpriteUsesPrivate> d;
};

}  // namespace Zorv
