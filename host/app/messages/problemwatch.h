#pragma once

#include "app/window/part.h"
#include "family/check/problem.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>
#include <memory>

class QTimer;

namespace Operations {
class BackgroundCheck;
struct Removal;
}  // namespace Operations

namespace Zorv {
class ProjectFile;
}

namespace App {

class ProblemModel;
struct WindowServices;

/// Keeps the problems of the whole game up to date: passes unsaved contents to the background
/// check, and its results to the list and the tree.
///
/// It checks what the window shows, saved or not. Nothing is checked while the user has switched
/// messages off.
class ProblemWatch : public QObject, public Part
{
    Q_OBJECT

public:
    explicit ProblemWatch(const WindowServices& services);
    ~ProblemWatch() override;

    ProblemModel* model() const { return m_model; }
    Operations::BackgroundCheck* check() const { return m_check; }

    /// Converts a path to the file name used in problems, and back.
    QString nameOf(const QString& path) const;
    QString pathOf(const QString& name) const;

    /// The document of a file named in problems; null if it is not open.
    Family::FamilyDocument* documentOf(const QString& name) const;
    QString nameOf(const Family::FamilyDocument* document) const;

    /// "3 errors, 1 warning", "No problems" once that is known, or the state of the check.
    QString summary() const;

    /// Passes changes on and waits until they are checked. False if that takes too long.
    bool settle();

    /// The places that use something, one line of text each, at most ten. False while the game is
    /// not checked or none is open.
    bool findUses(const Operations::Removal& what, QStringList* places);

    /// If something uses what is to be removed, lists it and asks. True to remove it.
    bool mayRemove(const std::function<Operations::Removal()>& removal);

    void showGame(Family::FamilyParentProject* game) override;
    void showProject(Family::FamilyProject* project) override;
    void forgetProject(Family::FamilyProject* project) override;
    void gameChanged() override;
    void updateState() override;
    void reconfig() override;
    void retranslate() override;

signals:
    /// `summary()` may have changed.
    void summaryChanged();

private:
    void begin();
    void watchAll();
    void watch(Zorv::ProjectFile* file, const QString& path);
    void watchDocument(Family::FamilyDocument* document);
    void changed(const QString& path);
    void handOver();
    void handOverText(const QString& path);
    void handOverAssets(const QString& path);
    void takeProblems(const QStringList& files);
    void showInTree();
    QString pathOf(const Family::FamilyDocument* document) const;
    bool isOn() const;

    const WindowServices& m_services;
    Operations::BackgroundCheck* m_check;
    ProblemModel* m_model;
    QTimer* m_timer;
    Family::FamilyParentProject* m_game = nullptr;
    QString m_folder;                          // of the checked game
    QHash<const QObject*, QString> m_watched;  // path of each file
    QSet<QString> m_changed;                   // paths
    int m_newFiles = 0;
    bool m_isFirst = true;  // no results yet for this game
};

}  // namespace App
