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

/// Keeps the problems of the whole game up to date: it hands what is not saved to the check in the
/// background, and what that finds to the list and the tree.
///
/// What stands in the window is judged, saved or not. Nothing is checked while the person has the
/// messages switched off.
class ProblemWatch : public QObject, public Part
{
    Q_OBJECT

public:
    explicit ProblemWatch(const WindowServices& services);
    ~ProblemWatch() override;

    ProblemModel* model() const { return m_model; }
    Operations::BackgroundCheck* check() const { return m_check; }

    /// What the problems have for a file, and the other way round.
    QString nameOf(const QString& path) const;
    QString pathOf(const QString& name) const;

    /// The document of a file that problems name, null if it is not open.
    Family::FamilyDocument* documentOf(const QString& name) const;
    QString nameOf(const Family::FamilyDocument* document) const;

    /// "3 errors, 1 warning", "No problems" when that is known, or what is being done about it.
    QString summary() const;

    /// Hands over what has changed and waits until all of it is checked. False if that takes long.
    bool settle();

    /// The places that name something, a line each, of at most ten. False while the game is not
    /// checked, or no game is open.
    bool findUses(const Operations::Removal& what, QStringList* places);

    /// Tells the person who uses what is to be removed, if anybody does, and asks. True to remove
    /// it.
    bool mayRemove(const std::function<Operations::Removal()>& removal);

    void showGame(Family::FamilyParentProject* game) override;
    void showProject(Family::FamilyProject* project) override;
    void forgetProject(Family::FamilyProject* project) override;
    void gameChanged() override;
    void updateState() override;
    void reconfig() override;
    void retranslate() override;

signals:
    /// `summary()` may be another one.
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
    QString m_folder;                          // of the game that is checked
    QHash<const QObject*, QString> m_watched;  // the path of each file
    QSet<QString> m_changed;                   // paths
    int m_newFiles = 0;
    bool m_isFirst = true;  // nothing has been found yet of this game
};

}  // namespace App
