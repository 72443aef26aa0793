#pragma once

#include "animation/animationeditor.h"
#include "animation/edits/boxedits.h"
#include "animation/import/assetrequest.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "support/reelgrammar.h"
#include "support/testinterface.h"
#include "support/testproject.h"

#include <QTest>
#include <QVBoxLayout>

/// The editor of animations for `ReelGrammar`: it says no more than it has to.
class ReelEditor : public Zorv::AnimationEditor
{
    Q_OBJECT

public:
    ReelEditor(Zorv::CodeWorkspace* code, Zorv::GraphicsWorkspace* stage,
               Zorv::GraphicsRenderer* renderer)
        : AnimationEditor(code, stage, renderer)
    {
        setFrameExtra(false);
    }

    QString gifName;  ///< of the last file that was to be written

protected:
    FieldRange fieldRange(Field field) const override
    {
        const double most = ReelGrammar::MostPlace;
        return field == Field::Time ? FieldRange{-1, ReelGrammar::MostTicks}
               : field == Field::BoxWidth || field == Field::BoxHeight ? FieldRange{1, most}
                                                                       : FieldRange{-most, most};
    }
    Zorv::ContactBoxCode* addContactBox(Zorv::FrameCode* frame, Zorv::ContactBoxCode::BoxType type,
                                        QPoint topLeft, QPoint bottomRight) override
    {
        return frame->contactBoxes(type)->add(QRect(topLeft, bottomRight));
    }
    void copyContactBoxes(Zorv::FrameCode* source, Zorv::FrameCode* target) override
    {
        Zorv::copyBoxes(source, target);
    }
    bool saveAnimationGIF(const QString& fileName, QString* error) override
    {
        gifName = fileName;
        *error = QStringLiteral("There are no pictures.");
        return false;
    }
    Zorv::AssetResult importAssets(const Zorv::AssetRequest&) override { return {}; }
    bool newAnimationData(QString& identifier, QString&, int&) override
    {
        identifier = QStringLiteral("new");
        return true;
    }
};

/// A window with stage, strip, text and all tools, and a project with one file of animations.
class ReelStudio
{
public:
    explicit ReelStudio(const QString& text)
    {
        auto* row = new QVBoxLayout(&window);
        host.window = &window;
        code = std::make_unique<Zorv::CodeWorkspace>();
        graphics = std::make_unique<Zorv::GraphicsWorkspace>();
        editor = std::make_unique<ReelEditor>(code.get(), graphics.get(), &stage);
        host.editors["anim"] = editor.get();
        row->addWidget(graphics->widget(), 3);
        row->addWidget(code->widget(), 1);
        window.resize(700, 700);
        code->activate();
        graphics->activate();
        open(text);
        window.show();
        host.controlsWindow()->show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    ~ReelStudio()
    {
        close();
        editor->deactivate();
        editor.reset();
        graphics.reset();
        code.reset();
    }

    void open(const QString& text)
    {
        game = std::make_unique<TestParent>(folder.path());
        project = game->open(QStringLiteral("a.main"), {});
        document = new ReelDocument(text, folder.filePath(QStringLiteral("a.reel")));
        project->addFile(document, Zorv::FileID::Animations);
        host.frontProject = project;
        editor->setProject(project);
        editor->activate();
    }

    /// As a host does it: editors hear of it first.
    void close()
    {
        if (game) {
            editor->projectAboutToClose(project);
            host.frontProject = nullptr;
            game.reset();
        }
    }

    TestInterface host;
    QWidget window;
    QTemporaryDir folder;
    Zorv::GraphicsRenderer stage;
    std::unique_ptr<Zorv::CodeWorkspace> code;
    std::unique_ptr<Zorv::GraphicsWorkspace> graphics;
    std::unique_ptr<ReelEditor> editor;
    std::unique_ptr<TestParent> game;
    TestProject* project = nullptr;
    ReelDocument* document = nullptr;
};
