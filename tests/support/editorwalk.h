#pragma once

#include "code/codedoc/codedocument.h"
#include "support/monkey.h"
#include "support/planneddialogs.h"
#include "support/randomtext.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>

class QAction;

namespace Zorv {
class AnimationEditor;
class CodeEditor;
class FrameCode;
class GraphicsRenderer;
class RenderWidget;
class Sprite;
class TimeLineWidget;
}  // namespace Zorv

/// A person who does things at random with an animation editor, by its tools, stage, strip and
/// text. After each of them everything that shows is compared with what a fresh parse of the text
/// gives, and at the end undo leads back to the first byte.
class EditorWalk : public MonkeyOf<EditorWalk>
{
public:
    /// What differs from host to host.
    struct Host
    {
        virtual ~Host() = default;
        virtual Zorv::AnimationEditor* editor() = 0;
        virtual Zorv::CodeEditor* edit() = 0;
        virtual QAction* action(const QString& name) = 0;
        virtual QWidget* control(const QString& name) = 0;
        virtual QStringList actions() = 0;  ///< names of what can be triggered
        virtual void undo() = 0;
        virtual void redo() = 0;

        /// Closes what is worked on, whatever is under way, and opens it again. The text is the
        /// same, and there is nothing to undo.
        virtual void closeAndOpen() = 0;

        /// The editor has been put away, and is wanted again.
        virtual void bringForward() {}

        /// A change that only this host knows, of its sprites say.
        virtual void changeOther(QRandomGenerator&) {}

        /// False where the stage follows the cursor of the text when that has rested.
        virtual bool followsAtOnce() const { return true; }

        /// What else a stage is to be told, beside sprite and boxes of a frame.
        virtual void setUp(Zorv::GraphicsRenderer*, const Zorv::FrameCode*) {}

        /// A new document in the same grammar; to be released.
        virtual Zorv::CodeDocument* parsed(const QString& text) = 0;

        /// What the stage is to ask for by key, of the sprite of a frame.
        virtual QVector<QVariant> pose(const Zorv::FrameCode* frame, const Zorv::Sprite* sprite);

        /// The sprite that a frame of a new document stands for.
        virtual Zorv::Sprite* sprite(const Zorv::FrameCode* frame) = 0;
    };

    EditorWalk(quint32 seed, Host* host, const RandomText& text);
    ~EditorWalk();

    /// Does so many things, and looks after each.
    void walk(int count);

    /// Triggers every tool once, and undoes it all.
    void triggerAll();

    void tidy();

    /// What is wrong now; empty for nothing.
    QString fault();

private:
    struct Fresh;

    void trigger();
    void slide();
    void fillField();
    void dragOnStage();
    void keyOnStage();
    void useStrip();
    void keyInText();
    void edit();
    void undoOrRedo();
    void play();
    void useDialog();
    void openAnew();

    static void letComeWhatIsPutOff();
    void did(const QString& what);
    void planAnswers();
    void triggerAction(const QString& name);
    void watchDialogs();
    void answer();
    void useWindow(QWidget* window, int acts);
    void useChild(QWidget* child);
    void interrupt();
    void changeOther() { m_host->changeOther(random); }
    void gesture(QWidget* widget, const std::function<QPoint()>& place);
    QPoint anyPlaceOnStage();
    QPoint stagePlace(QPoint model);
    Qt::KeyboardModifiers anyModifiers();

    QString faultOfSelection(const Fresh& fresh);
    QString faultOfTools(const Fresh& fresh);
    QString faultOfStage(const Fresh& fresh);
    QString faultOfStrip(const Fresh& fresh);
    QString faultOfCursor(const Fresh& fresh);
    void setUpLike(Zorv::GraphicsRenderer* other, const Zorv::GraphicsRenderer& model);
    int inRange(const char* name, int value);
    QString undoAll();
    QString goToEnd(bool (Zorv::CodeDocument::*hasMore)() const, void (Host::*step)());

    Zorv::AnimationEditor* editor() { return m_host->editor(); }
    Zorv::CodeDocument* document();
    Zorv::GraphicsRenderer* stage();
    Zorv::RenderWidget* stageWidget();
    Zorv::TimeLineWidget* strip();

    Host* m_host;
    RandomText m_text;
    PlannedDialogs m_dialogs;
    QTemporaryDir m_folder;
    QPointer<QWidget> m_answered;
    int m_answers = 0;
    QString m_first;
    QStringList m_log;
    bool m_hasMovedCursor = false;  // to another line, with nothing behind that
    QObject m_context;              // of the timers
};
