#pragma once

#include "cache/spritenumber.h"
#include "zorv_export.h"

#include <QObject>
#include <QVector>

#include <memory>

namespace Zorv {

class Animations;
class SpriteUsesPrivate;

/// Counts how many frames use each sprite, for example in all animation lists of a project.
///
/// The count follows edits of the text. An edit costs time only for the lines that are parsed
/// again, no matter how many frames there are. Counting starts with the first query. Main thread
/// only.
class ZORV_EXPORT SpriteUses : public QObject
{
    Q_OBJECT

public:
    explicit SpriteUses(QObject* parent = nullptr);
    ~SpriteUses() override;

    /// Replaces the lists to count, each of another document. They are not owned. If one is
    /// destroyed, its frames no longer count.
    void setAnimations(const QVector<Animations*>& lists);

    /// True if there is a list to count.
    bool hasAnimations() const;

    /// The number of frames that use a sprite. Frames outside of animations do not count.
    int count(SpriteNumber sprite) const;

signals:
    /// A sprite became used or unused. Emitted in the middle of a parse: a slot must not edit the
    /// text.
    void changed();

private:
    void tell();

    std::unique_ptr<SpriteUsesPrivate> d;
};

}  // namespace Zorv
