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
    /// The parts that can be hidden, in the order of their tools.
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

    /// Null if the renderer is not a `GraphicsRenderer`.
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
    QPoint extraAxisPlace;  // where the dialog was when last hidden
    QTimer storeTimer;
    bool isActive = false;
    bool waitsForOrigin = false;  // no origin in the settings, and no stage yet to center it
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
