#pragma once

#include "family/stage/animationrow.h"
#include "family/stage/frameprovider.h"

#include <zorv/animation/followedanimation.h>

#include <QHash>
#include <QObject>
#include <QPointer>

namespace Family {
class AnimationNode;
class FamilyDocument;
}  // namespace Family

namespace Zorv {
class TimeLineWidget;
}

namespace App {

class StagePlayer;
class StageRenderer;

/// Shows a frame of the text on the stage and the time line, follows every edit, plays, and leads
/// what is done on the stage into the text.
///
/// Which animation and which frame is told by the cursor of the text or the organizer; each
/// animation of a document remembers its frame. Main thread only.
class StageController : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    StageController(StageRenderer* stage, Zorv::TimeLineWidget* timeLine, QObject* parent);
    ~StageController() override;

    /// Null for none. A document that closes and sprites that die are let go of.
    void setDocument(Family::FamilyDocument* document);
    void setSprites(Family::SpriteCollection* sprites);

    /// Shows the frame that a line, counted from 0, belongs to: boxes to the frame behind them, the
    /// head of an animation to the frame of it that was shown last. Outside of animations the one
    /// that is shown stays, or the first comes.
    void followLine(int line);

    /// Shows an animation by its place in the list, with the frame that was shown last.
    void showAnimation(int row);

    /// Null, 0 and -1 for none. Nodes are good until the next edit.
    Family::AnimationNode* animation() const;
    Family::FrameNode* frame() const { return m_provider.frame(); }
    Family::FamilySprite* sprite() const { return m_provider.sprite(); }
    int frameIndex() const;
    int frameCount() const { return m_animation.frameCount(); }
    const Zorv::FrameTicks& ticks() const { return m_animation.ticks(); }
    const Family::FramePose& pose() const { return m_provider.pose(); }

    /// A frame of the animation; nothing for one that is not there.
    void showFrame(int index);

    /// Goes so many frames on, round and round.
    void stepFrame(int step);

    bool isPlaying() const;
    void play();

    /// Where the person has stopped it the text follows; an end by other things leaves it alone.
    void stop();
    void breakOff();

    bool hasSelectedBoxes() const { return m_hasSelection; }
    void removeSelectedBoxes();

    /// The stage has its place. With `isKept` the person has left it there, and the first frame is
    /// shown as it was.
    void placeTaken(bool isKept);

    /// Looks at what is selected, after a change of the stage's mode.
    void followSelection();

    /// Shows a frame of the animation through; -1 shows none.
    void setOnionFrame(int index);

signals:
    /// Another frame, another text of it, playing begins or ends, boxes are selected.
    void stateChanged();

    /// The text is to go to a line: that of the frame, or of the box, which was moved or made.
    void lineRequested(int line);

private:
    void setAnimation(Family::AnimationNode* animation);
    void frameReached(int index, bool byHand);
    void updateSoon();
    void update();
    void showScene();
    void showOnion();
    void inputComes();
    void inputTaken();
    void requestLine();
    void requestEditedLine();
    void bringSoon();
    void bring();

    StageRenderer* m_stage;
    QPointer<Zorv::TimeLineWidget> m_timeLine;
    QPointer<Family::FamilyDocument> m_document;
    QPointer<Family::SpriteCollection> m_sprites;
    Zorv::FollowedAnimation m_animation;
    Family::FrameProvider m_provider;
    Family::FrameProvider m_onion;
    Family::AnimationRow m_row;
    StagePlayer* m_player;
    QHash<QString, int> m_lastFrames;  // by the names of animations
    int m_inputs = 0;                  // the library is at work on nodes
    int m_revision = 0;                // of the text in front of an input
    bool m_isStale = false;
    bool m_isUpdatePending = false;
    bool m_isBringPending = false;
    bool m_isPlaceKept = false;
    bool m_hasSelection = false;
};

}  // namespace App
