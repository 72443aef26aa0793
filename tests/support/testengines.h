#pragma once

#include "core/enginemodel.h"

#include <QList>

/// An engine family with a list of engines.
class TestEngines : public Zorv::EngineModel
{
public:
    QList<Zorv::EngineInfo> list;
    QString executable = QStringLiteral("engine.exe");
    QString folder;  ///< of the family's data

    char commentChar() const override { return '#'; }
    QString dataPath() const override { return folder; }
    QString identifier() const override { return QStringLiteral("family"); }
    QString executableName() const override { return executable; }
    QString displayName() const override { return {}; }
    int engineCount() const override { return list.size(); }
    Zorv::EngineInfo engine(unsigned index) const override { return list.value(int(index)); }
    QModelIndex index(int row, int column, const QModelIndex&) const override
    {
        return createIndex(row, column);
    }
    QModelIndex parent(const QModelIndex&) const override { return {}; }
    int rowCount(const QModelIndex&) const override { return list.size(); }
    int columnCount(const QModelIndex&) const override { return 1; }
    QVariant data(const QModelIndex& index, int) const override
    {
        return list.value(index.row()).name;
    }
};
