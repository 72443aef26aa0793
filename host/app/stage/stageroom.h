#pragma once

#include <QObject>

class QSplitter;

namespace Zorv {
class CodeEditor;
}

namespace App {

class StageView;

/// Controls the height of the stage above the text: as the user left it, or one line while it is
/// empty. The stage's share of the height is stored in the settings.
class StageRoom : public QObject
{
    Q_OBJECT

public:
    /// The stage is, or will be, in the splitter. All of them outlive this object.
    StageRoom(QSplitter* splitter, StageView* view, Zorv::CodeEditor* editor, QObject* parent);

    /// Updates the height of the view after it was shown, hidden, emptied or filled.
    void update();

    /// True from `update()` until the view has its height; then `applied()` is sent.
    bool isPending() const { return m_isNeeded; }

    /// Stores the share in the settings.
    void keep();

signals:
    /// The height of the stage changed, but not by the user's hand.
    void applied();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void note();
    void apply();
    int usualHeight() const;

    QSplitter* m_splitter;
    StageView* m_view;
    Zorv::CodeEditor* m_editor;
    double m_share;           // of the splitter's height; 0: the usual one
    bool m_isFull = false;    // shown and not empty
    bool m_isNeeded = false;  // height must be set when there is room
};

}  // namespace App
