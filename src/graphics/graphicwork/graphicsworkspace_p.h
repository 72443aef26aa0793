#pragma once

#include "graphics/graphicwork/exaxisdlg.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/graphicwork/stageplace_p.h"

#include <QPointer>
#include <QTimer>

#include <array>

class QAction;

namespace Zorv {

class GraphicsRenderer;
class Interface;

class GraphicsWorkspacePrivate : public QObject
{
    Q_OBJECT

public:
    /// What can be hidden, in the order of the tools.
    enum Part {
        MainCross,
        SecondaryCross,
        ExtraCross,
        Rulers,
        Guides,
        AttackBoxes,
        CollisionBoxes,
        PartCount
    };

    explicit GraphicsWorkspacePrivate(GraphicsWorkspace* workspace);
    ~GraphicsWorkspacePrivate() override;

    void publish();

    /// Null for a renderer that is none.
    GraphicsRenderer* stage() const;

    void visibilityChanged();
    void attach();
    void hideExtraAxis();
    void showExtraAxis(bool isShown, QPoint position);
    ExAxisDlg* dialog();

    // graphicssettings.cpp
    void applySettings();
    void applyBackground(QSize resolution);
    QSize screenOfProject() const;
    void restoreOrigin();
    void restoreZoom();
    void centerFirstOrigin();
    void storePlace();
    void store(const char* key, const QVariant& value);

    GraphicsWorkspace* q;
    Interface* host;
    QPointer<StagePlace> place;
    GraphicsRendererBase* renderer = nullptr;
    std::array<QPointer<QAction>, PartCount> actions;
    QPointer<ExAxisDlg> extraAxis;
    QPoint extraAxisPlace;  // of the dialog, when it was hidden last
    QTimer storeTimer;
    bool isActive = false;
    bool waitsForOrigin = false;  // none in the settings, and no stage to put it into the middle of
    QPoint originAtFirst;

public slots:
    void centerOrigin();
    void extraAxisClosed();

signals:
    void mainCrossEnabled(bool isEnabled);
    void secondaryCrossEnabled(bool isEnabled);
    void extraCrossEnabled(bool isEnabled);
};

}  // namespace Zorv
