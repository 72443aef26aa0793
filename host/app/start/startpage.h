#pragma once

#include "app/window/part.h"

#include <QWidget>

class QCommandLinkButton;
class QLabel;
class QVBoxLayout;

namespace App {

struct WindowServices;

/// Shown in the middle of the window while no game is open: first steps, and recently opened games.
/// Tab and the arrow keys move between the buttons.
class StartPage : public QWidget, public Part
{
    Q_OBJECT

public:
    /// The buttons trigger actions of the window by name.
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
