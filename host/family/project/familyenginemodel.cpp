#include "family/project/familyenginemodel.h"

#include "family/grammar/grammar.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QStandardPaths>

namespace Family {

FamilyEngineModel::FamilyEngineModel(QObject* parent) : EngineModel(parent) {}

FamilyEngineModel* FamilyEngineModel::instance()
{
    static FamilyEngineModel model;
    return &model;
}

char FamilyEngineModel::commentChar() const
{
    return Grammar::CommentChar;
}

QString FamilyEngineModel::dataPath() const
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/zorv/family");
}

QString FamilyEngineModel::identifier() const
{
    return QStringLiteral("zorv");
}

QString FamilyEngineModel::executableName() const
{
    return m_program.isThere() ? GameProgram::name() : QString();
}

QString FamilyEngineModel::displayName() const
{
    return tr("Zorv reference family");
}

QString FamilyEngineModel::playerPath()
{
    const QFileInfo player(QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                           GameProgram::name());
    return player.isFile() && player.isExecutable() ? player.absoluteFilePath() : QString();
}

bool FamilyEngineModel::isPlayer(const QString& executable)
{
    const QString player = playerPath();
    return !player.isEmpty() && QFileInfo(executable) == QFileInfo(player);
}

void FamilyEngineModel::setPlayerOffered(bool isOffered)
{
    beginResetModel();
    m_player = {tr("Zorv player"), isOffered ? playerPath() : QString(), QStringLiteral("%0"), {}};
    endResetModel();
}

int FamilyEngineModel::engineCount() const
{
    return m_engines.size() + (m_player.executable.isEmpty() ? 0 : 1);
}

Zorv::EngineInfo FamilyEngineModel::engine(unsigned index) const
{
    const bool isPlayerRow = int(index) == m_engines.size() && !m_player.executable.isEmpty();
    Zorv::EngineInfo engine = isPlayerRow ? m_player : m_engines.value(int(index));
    // Never resolve against the current folder: its files may come from anybody.
    if (!engine.executable.isEmpty()) {
        engine.executable = QDir::home().absoluteFilePath(engine.executable);
    }
    return engine;
}

void FamilyEngineModel::setEngines(const QVector<Zorv::EngineInfo>& engines)
{
    beginResetModel();
    m_engines = engines;
    endResetModel();
}

QModelIndex FamilyEngineModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex FamilyEngineModel::parent(const QModelIndex&) const
{
    return {};
}

int FamilyEngineModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : engineCount();
}

int FamilyEngineModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant FamilyEngineModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= engineCount()) {
        return {};
    }
    const Zorv::EngineInfo engine = this->engine(unsigned(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return engine.name;
    case Qt::ToolTipRole:
        return engine.executable;
    case Qt::DecorationRole:
        return engine.icon.isEmpty() ? QVariant() : QVariant(QIcon(engine.icon));
    default:
        return {};
    }
}

}  // namespace Family
