#pragma once

#include "support/planneddialogs.h"
#include "support/poseeditor.h"

#include "editors/code/codeworkspace.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/stage/graphicsrenderer.h"

#include <QObject>

#include <memory>

class QAction;

/// A test of the editor of animations, with all that it takes but a document.
class PoseTest : public QObject
{
protected:
    template <class Host = PoseHost>
    void make()
    {
        host = std::make_unique<Host>();
        dialogs = std::make_unique<PlannedDialogs>();
        code = std::make_unique<Zorv::CodeWorkspace>();
        stage = std::make_unique<Zorv::GraphicsWorkspace>();
        renderer = std::make_unique<Zorv::GraphicsRenderer>();
        editor = std::make_unique<PoseEditor>(code.get(), stage.get(), renderer.get());
    }
    void drop()
    {
        editor.reset();
        renderer.reset();
        stage.reset();
        code.reset();
        document.reset();
        dialogs.reset();
        host.reset();
    }

    QAction* action(const char* name) const { return host->actions.value(QLatin1String(name)); }
    template <class Widget>
    Widget* widget(const char* name) const
    {
        return qobject_cast<Widget*>(host->controls.value(QLatin1String(name)));
    }

    std::unique_ptr<TestInterface> host;
    std::unique_ptr<PlannedDialogs> dialogs;
    std::unique_ptr<Zorv::CodeWorkspace> code;
    std::unique_ptr<Zorv::GraphicsWorkspace> stage;
    std::unique_ptr<Zorv::GraphicsRenderer> renderer;
    std::unique_ptr<PoseEditor> editor;
    std::unique_ptr<PoseDocument> document;
};
