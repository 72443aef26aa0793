#pragma once

#include "core/parentproject.h"
#include "core/run/runresult.h"
#include "core/run/temporarycopies.h"

#include <QMap>
#include <QPointer>
#include <QString>

#include <memory>
#include <vector>

namespace Zorv {

class EngineModel;
class EngineProcess;
class ParentProjectPrivate;
class Project;

/// One run of an engine, from choosing it to removing the copies.
///
/// The object is on the stack of `ParentProject::run()`. It outlives the tree
/// if the tree is deleted while events are processed.
class EngineRun
{
public:
    explicit EngineRun(ParentProjectPrivate* tree);
    ~EngineRun();

    void run();

    /// See `ParentProject::copyForEngine()`.
    bool copyAgain(Project* project, ParentProject::RunCopy* copy, QStringList* failed);

private:
    bool findEngine();
    bool chooseEngine(EngineModel* engines);
    bool copyProjects();
    void copyProject(unsigned mark, Project* project, const QString& name);
    bool writeCopy(Project* project, const QString& folder, const QString& name);
    void startEngine();
    void dropCopies(size_t kept);
    void finish(const EngineProcess& process);
    bool refuse(RunResult::Outcome outcome, const QString& warning);
    void keepResult();

    QPointer<ParentProjectPrivate> m_tree;
    RunResult m_result;
    QString m_executable;
    QString m_folder;  ///< of the copies, with "/" at its end
    QString m_parameters;
    QMap<unsigned, QString> m_texts;  ///< the replacement for each placeholder
    QVector<ParentProject::RunCopy> m_runCopies;
    std::vector<std::unique_ptr<TemporaryCopies>> m_copies;  ///< newest last
    bool m_isCopying = false;
};

}  // namespace Zorv
