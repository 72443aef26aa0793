#pragma once

#include "support/posegrammar.h"
#include "support/testinterface.h"

#include "animation/animationeditor.h"
#include "animation/import/assetrequest.h"
#include "editors/framework/workspace.h"

#include <utility>

/// A host that brings an editor forward by activating it, in place of the one before.
class PoseHost : public TestInterface
{
public:
    void activateEditor(Zorv::Editor* newEditor) override
    {
        Zorv::Editor* const before = std::exchange(editor, newEditor);
        if (before && before != newEditor) {
            before->deactivate();
        }
        newEditor->activate();
    }
    void showWorkspace(Zorv::Workspace* shown) override
    {
        workspace = shown;
        shown->activate();
    }
};

/// The editor of the grammar. It asks nobody for a new animation, and writes no GIF.
class PoseEditor : public Zorv::AnimationEditor
{
public:
    using AnimationEditor::AnimationEditor;
    void find(const QString&, unsigned) override {}
    void hideExtra() { setFrameExtra(false); }

    /// Sprites hang on the secondary cross, which stands at the offset of the frame.
    void hangOnCross()
    {
        cross = Zorv::GraphicsRenderer::SecondaryCross;
        setSpriteItemType(Zorv::GraphicsRenderer::SecondaryCross);
    }

    QString newIdentifier;
    QString newText;
    int newPosition = 0;
    int stops = 0;
    bool isPosed = false;  // with flip, scale and angle
    int cross = 0;         // that sprites hang on
    QVector<int> interpolated;
    QVector<Zorv::AssetRequest> requests;
    Zorv::AssetResult assets;  ///< what a request comes to

protected:
    void playStopped() override { ++stops; }
    void interpolateFrame(Zorv::FrameCode*, int tick) override { interpolated.append(tick); }
    QVariant spriteProperty(Zorv::FrameCode* frame, Zorv::Sprite* sprite,
                            unsigned key) const override
    {
        const QVariant pose[] = {frame->scale(), int(frame->flip()), float(-frame->angle())};
        return key == 2 ? QVariant(cross)
               : isPosed && key >= 4 && key <= 6
                   ? pose[key - 4]
                   : AnimationEditor::spriteProperty(frame, sprite, key);
    }
    FieldRange fieldRange(Field field) const override
    {
        return field == Field::Time ? FieldRange{-1, 2000} : FieldRange{-500, 500};
    }
    Zorv::ContactBoxCode* addContactBox(Zorv::FrameCode* frame, Zorv::ContactBoxCode::BoxType type,
                                        QPoint topLeft, QPoint bottomRight) override
    {
        return frame->contactBoxes(type)->add(QRect(topLeft, bottomRight));
    }
    void copyContactBoxes(Zorv::FrameCode* source, Zorv::FrameCode* target) override
    {
        PoseData data = static_cast<PoseFrame*>(target)->data;
        data.boxes = static_cast<PoseFrame*>(source)->data.boxes;
        static_cast<PoseFrame*>(target)->write(data);
    }
    Zorv::AssetResult importAssets(const Zorv::AssetRequest& request) override
    {
        requests.append(request);
        Zorv::AssetResult result = assets;
        if (request.leavesBroken) {
            result.error.clear();
        }
        return result;
    }
    bool saveAnimationGIF(const QString&, QString*) override { return false; }
    bool newAnimationData(QString& identifier, QString& text, int& position) override
    {
        identifier = newIdentifier;
        text = newText;
        position = newPosition;
        return true;
    }
};
