#pragma once

#include "editors/code/codeworkspace.h"
#include "editors/code/messagejump_p.h"

#include <QPointer>

class QAction;

namespace Zorv {

class Interface;
class PickBox;

/// The parts of a `CodeWorkspace`, and the slots of its actions. The host finds the
/// slots by name.
class CodeWorkspacePrivate : public QObject
{
    Q_OBJECT

public:
    explicit CodeWorkspacePrivate(CodeWorkspace* workspace);
    ~CodeWorkspacePrivate() override;

    CodeDocument* document() const;

    /// Whether there is a text to edit or navigate.
    bool isUsable() const;

    void showMessages(CodeDocument* newDocument);
    void savePlace(CodeDocument* left) const;
    void restorePlace(const CodeDocument* shown);
    void applySettings();
    void applyBar();
    void setEnabled(bool enabled);
    void setFont(const QFont& font);
    void changeFontSize(double points);
    void tellDocument();
    void updateEncoding();
    void retranslate();
    void insertText(const QString& text);

    CodeWorkspace* const q;
    Interface* const host;
    QPointer<QWidget> widget;
    QTabBar* tabBar;
    QToolBar* toolBar;
    CodeEditor* editor;
    PickBox* snippets;
    PickBox* messages;
    QPointer<QAction> barAction;
    bool isActive = false;

public slots:
    void showTextBar(bool checked);
    void snipInsert();
    void snipNew();
    void snipEdit();
    void goToLine();
    void nextError();
    void prevError();
    void nextDepr();
    void prevDepr();
    void comment();
    void foldAll();
    void unfoldAll();
    void snipActivated(int row);
    void errorActivated(int row);

protected:
    /// Ctrl with the wheel over the text zooms.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void publish();
    void jump(bool (*find)(MessageJump::Kind, QTextCursor*), MessageJump::Kind kind);
    void editSnippet(const QString& path);

    int m_wheel = 0;  ///< wheel movement below one step, in eighths of a degree
};

}  // namespace Zorv
