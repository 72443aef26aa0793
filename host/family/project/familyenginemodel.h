#pragma once

#include "family/project/gameprogram.h"

#include <zorv/core/enginemodel.h>

#include <QVector>

namespace Family {

/// The engine family, with the engines that the person has configured as rows. Behind them comes
/// the player of this program, if it is offered and there.
class FamilyEngineModel final : public Zorv::EngineModel
{
    Q_OBJECT

public:
    explicit FamilyEngineModel(QObject* parent = nullptr);

    /// The one object of the process.
    static FamilyEngineModel* instance();

    char commentChar() const override;

    /// "zorv/family" in the person's folder for data of programs, without "/" at its end;
    /// `prepareFamilyData()` fills it.
    QString dataPath() const override;
    QString identifier() const override;

    /// The name of the program that `setGameProgram()` has named; empty without one: what lies in
    /// a game folder is nothing to be started by itself.
    QString executableName() const override;
    QString displayName() const override;
    int engineCount() const override;

    /// To be started: a path that is not whole begins in the person's own folder. An empty record
    /// outside of the list.
    Zorv::EngineInfo engine(unsigned index) const override;

    /// The player that is installed beside this program; empty if it is not there.
    static QString playerPath();
    static bool isPlayer(const QString& executable);

    /// Whether the player is a row.
    void setPlayerOffered(bool isOffered);

    /// Changes to the list; the host keeps it in its settings.
    void setEngines(const QVector<Zorv::EngineInfo>& engines);
    const QVector<Zorv::EngineInfo>& engines() const { return m_engines; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

    /// The program of a game folder that may be started, for which the person was asked; one that
    /// is not there for none, as at first.
    void setGameProgram(const GameProgram& program) { m_program = program; }
    const GameProgram& gameProgram() const { return m_program; }

private:
    GameProgram m_program;
    QVector<Zorv::EngineInfo> m_engines;
    Zorv::EngineInfo m_player;  // without a path if it is no row
};

}  // namespace Family
