#pragma once

#include <QObject>
#include <QRect>

namespace Family {
class FrameNode;
class SpriteCollection;
}  // namespace Family

namespace App {

class FamilyAnimationEditor;
class StageRenderer;
class StageRoom;

/// Brings the frames that the person goes to into sight: sprite and all boxes. Who has chosen a
/// detail keeps it from frame to frame of the animation, and nothing moves while it plays.
class StageSight : public QObject
{
    Q_OBJECT

public:
    /// All outlive it.
    StageSight(FamilyAnimationEditor* editor, StageRenderer* stage, const StageRoom* room,
               QObject* parent);

    /// The area of a frame at a zoom, from the origin, in pixels of the stage; empty for one that
    /// shows nothing. `sprites` may be null.
    static QRect areaOf(const Family::FrameNode& frame, const Family::SpriteCollection* sprites,
                        float zoom);

    /// Brings the frame into sight when the stage has its room.
    void bringSoon();

    /// Leaves the view of a text as it is until the person does something: what was open at the
    /// last end comes back in several turns of the event loop.
    void keepPlaceOf(const QString& file);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isWhole() const;
    void follow();
    void bring();
    void moveInto(const Family::FrameNode& frame);
    QRect sight() const;

    FamilyAnimationEditor* m_editor;
    StageRenderer* m_stage;
    const StageRoom* m_room;
    int m_animation = -1;  // as they were shown last
    int m_frame = -1;
    bool m_wasWhole = true;
    bool m_isPending = false;
    QString m_keptFile;
};

}  // namespace App
