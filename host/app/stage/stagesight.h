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

/// Scrolls a frame into view when the user goes to it: sprite and all boxes. If the user has chosen
/// to look at a detail, the view does not move while stepping through the animation. It never moves
/// while the animation plays.
class StageSight : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this object.
    StageSight(FamilyAnimationEditor* editor, StageRenderer* stage, const StageRoom* room,
               QObject* parent);

    /// The area of a frame at a zoom level, relative to the origin, in pixels of the stage; empty
    /// if the frame shows nothing. `sprites` may be null.
    static QRect areaOf(const Family::FrameNode& frame, const Family::SpriteCollection* sprites,
                        float zoom);

    /// Scrolls the frame into view once the stage has its size.
    void bringSoon();

    /// Keeps the view of a text unchanged until the user does something: the work of the last
    /// session is restored over several turns of the event loop.
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
    int m_animation = -1;  // last shown
    int m_frame = -1;
    bool m_wasWhole = true;
    bool m_isPending = false;
    QString m_keptFile;
};

}  // namespace App
