#pragma once

#include "editors/code/codeworkspace.h"

#include <QPointer>

class QAction;
class QComboBox;

namespace Zorv {

class Interface;

/// The parts of a `CodeWorkspace`, and the slots of its actions, which the host finds
/// by name.
class CodeWorkspacePrivate : public QObject
{
    Q_OBJECT

public:
    explicit CodeWorkspacePrivate(CodeWorkspace* workspace);
    ~CodeWorkspacePrivate() override;

    CodeDocument* document() const;

    CodeWorkspace* const q;
    Interface* const host;
    QPointer<QWidget> widget;
    QTabBar* tabBar;
    QToolBar* toolBar;
    CodeEditor* editor;
    bool isActive = false;
};

}  // namespace Zorv
