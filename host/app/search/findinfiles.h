#pragma once

#include "app/window/part.h"
#include "operations/find/codefiles.h"
#include "operations/find/findpattern.h"
#include "operations/find/gametexts.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QMenu;
class QTimer;
class QToolButton;
class QTreeView;

namespace App {

class FindField;
class HitDelegate;
class HitModel;
class OpenTexts;
struct WindowServices;

/// A panel to search and replace in all code files of the game, open or not.
///
/// It searches while the user types, and updates the results when texts or files change. Replacing
/// skips unticked places. In open texts it is one undo step per text and not saved yet; other files
/// are written at once.
class FindInFiles : public QWidget, public Part
{
    Q_OBJECT

public:
    explicit FindInFiles(const WindowServices& services);
    ~FindInFiles() override;

    /// @name The actions
    /// @{
    void openFind();
    void openReplace();
    /// @}

    QVector<ActionRow> actions() override;
    void showGame(Family::FamilyParentProject* game) override;
    void gameChanged() override;
    void updateState() override;
    QVector<PanelPlace> places() override;

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeFields();
    QWidget* makeReplaceRow();
    QToolButton* makeSwitch(const char* name, const char* sign, int option);
    void makeKindMenu();
    void makeTree();
    void giveTexts();

    void open(bool withReplace);
    int options() const;
    Operations::FileKinds kinds() const;
    void searchSoon();
    void search();
    void take(const QVector<Operations::GameFinding>& findings);
    void showState();
    void showReplacement();
    QString stateText() const;

    void goTo(const QModelIndex& index);
    void replaceChosen();
    bool mayReplace(const QVector<Operations::FileHits>& chosen) const;

    const WindowServices& m_services;
    Operations::GameTexts m_texts;
    OpenTexts* m_open;
    HitModel* m_model;
    HitDelegate* m_delegate;
    FindField* m_field;
    FindField* m_with;
    QWidget* m_replaceRow = nullptr;
    QToolButton* m_replace = nullptr;
    QToolButton* m_cancel = nullptr;
    QToolButton* m_kindButton = nullptr;
    QMenu* m_kindMenu = nullptr;
    QTreeView* m_tree;
    QLabel* m_label;
    QLabel* m_state;
    QTimer* m_timer;
    QVector<QPair<QToolButton*, int>> m_switches;
    Operations::FindPattern m_pattern;
    QStringList m_errors;  // messages about files
    bool m_isCut = false;  // more places exist than are kept
    bool m_isGivenUp = false;
};

}  // namespace App
