#pragma once

#include "editors/import/importentry.h"
#include "zorv_export.h"

#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <QVector>

#include <functional>

/// What a person has chosen to import: rows of lists of another project, each with the identifier
/// that it is to have, which can be edited.
///
/// It knows neither animations nor sounds. An entry whose row goes, with its list or without, goes
/// too. An identifier that the destination has, or another entry, is marked as a clash: it may be
/// meant. Main thread only.
class ZORV_EXPORT ImportModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Clash {
        NoClash,
        Present,  ///< the destination has the identifier
        Repeated  ///< another entry has it
    };

    /// The `Clash` of a row, as a number.
    static constexpr int ClashRole = Qt::UserRole;

    explicit ImportModel(QObject* parent = nullptr);
    ~ImportModel() override;

    /// The identifiers that the destination has.
    void setPresent(const QSet<QString>& identifiers);

    /// Tells which identifiers can be used; without it any that is not empty.
    void setCheck(std::function<bool(const QString& identifier)> isUsable);

    /// Adds entries behind the others.
    void add(const QVector<Zorv::ImportEntry>& entries);
    void clear();
    const QVector<Zorv::ImportEntry>& entries() const { return m_entries; }

    /// How many entries clash.
    int clashCount() const;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The identifier; what is wrong with it as an icon and tool tip, else the picture of its row.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Takes an identifier, without blanks around it. False, and no change, for one that cannot be
    /// used, which `refused()` tells.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

signals:
    void refused(const QString& identifier);

    /// Entries have come, gone, or clash otherwise than before.
    void clashesChanged();

private:
    Clash clash(int row) const;
    void follow(const QAbstractItemModel* list);
    void dropGone();
    void count(int first, int last, int step);
    void tellAll();

    QVector<Zorv::ImportEntry> m_entries;
    QSet<QString> m_present;
    QHash<QString, int> m_counts;  // how many entries have each identifier
    QSet<const QObject*> m_followed;
    std::function<bool(const QString&)> m_isUsable;
};
