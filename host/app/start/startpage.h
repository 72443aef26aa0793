#pragma once

#include "app/window/part.h"

#include <QWidget>

class QCommandLinkButton;
class QLabel;
class QVBoxLayout;

namespace App {

struct WindowServices;

/// What stands in the middle of the window while no game is open: what to begin with, and the games
/// that were opened last. Tab and the arrow keys lead from one button to the next.
class StartPage : public QWidget, public Part
{
    Q_OBJECT

public:
    /// Its buttons trigger actions of the window by their names.
    explicit StartPage(const WindowServices& services);

    void retranslate() override;
    QVector<PanelPlace> places() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addButtons(QVBoxLayout* layout);
    void fillRecent();

    const WindowServices& m_services;
    QLabel* m_what;
    QLabel* m_begin;
    QLabel* m_recent;
    QLabel* m_none;
    QVBoxLayout* m_recentLayout;
    QVector<QCommandLinkButton*> m_buttons;
    QVector<QCommandLinkButton*> m_games;
};

}  // namespace App
