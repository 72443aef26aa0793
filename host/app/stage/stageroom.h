#pragma once

#include <QObject>

class QSplitter;

namespace Zorv {
class CodeEditor;
}

namespace App {

class StageView;

/// How high the stage is above the text: as the person has left it, and one line while it is empty.
/// The share of both is kept in the settings.
class StageRoom : public QObject
{
    Q_OBJECT

public:
    /// The stage is, or will be, in the splitter. All outlive this.
    StageRoom(QSplitter* splitter, StageView* view, Zorv::CodeEditor* editor, QObject* parent);

    /// Gives the view the height that it needs, after it was shown, hidden, emptied or filled.
    void update();

    /// True from `update()` until the view has its height, which `applied()` tells.
    bool isPending() const { return m_isNeeded; }

    /// Keeps the share in the settings.
    void keep();

signals:
    /// The stage has got another height that the person has not chosen by hand.
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
    double m_share;           // of the height of the splitter; 0 for the usual one
    bool m_isFull = false;    // shown, with a stage in it
    bool m_isNeeded = false;  // the height is to be set when there is room
};

}  // namespace App
