#pragma once

#include "family/project/gameprogram.h"

#include <zorv/core/enginemodel.h>

#include <QVector>

namespace Family {

/// The engine family. Its rows are the engines that the user has configured, and last this
/// program's own player, if it is offered and installed.
class FamilyEngineModel final : public Zorv::EngineModel
{
    Q_OBJECT

public:
    explicit FamilyEngineModel(QObject* parent = nullptr);

    /// The single instance of the process.
    static FamilyEngineModel* instance();

    char commentChar() const override;

    /// "zorv/family" in the user's data folder, without a trailing "/"; `prepareFamilyData()` fills
    /// it.
    QString dataPath() const override;
    QString identifier() const override;

    /// The name of the program set by `setGameProgram()`; empty without one, because a program in a
    /// game folder must not be started without consent.
    QString executableName() const override;
    QString displayName() const override;
    int engineCount() const override;

    /// Ready to start: a relative path is resolved in the user's home folder. An empty record if
    /// out of range.
    Zorv::EngineInfo engine(unsigned index) const override;

    /// The player installed beside this program; empty if missing.
    static QString playerPath();
    static bool isPlayer(const QString& executable);

    /// Whether the player is a row.
    void setPlayerOffered(bool isOffered);

    /// Changes the list; the host stores it in its settings.
    void setEngines(const QVector<Zorv::EngineInfo>& engines);
    const QVector<Zorv::EngineInfo>& engines() const { return m_engines; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QObject::parent;

    /// The program in a game folder that may be started, with the user's consent. None if it does
    /// not exist; initially none.
    void setGameProgram(const GameProgram& program) { m_program = program; }
    const GameProgram& gameProgram() const { return m_program; }

private:
    GameProgram m_program;
    QVector<Zorv::EngineInfo> m_engines;
    Zorv::EngineInfo m_player;  // without a path if it is not a row
};

}  // namespace Family
