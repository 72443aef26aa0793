#pragma once

#include "editors/import/importentry.h"
#include "zorv_export.h"

#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <QVector>

#include <functional>

/// What the user has chosen to import: rows of another project's lists, with their new identifiers,
/// which can be edited.
///
/// It knows nothing about animations or sounds. An entry is removed when its row or list dies. An
/// identifier that already exists in the destination, or in another entry, is only marked as a
/// clash: it may be intended. Main thread only.
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

    /// Sets the check for usable identifiers; without it any non-empty identifier is usable.
    void setCheck(std::function<bool(const QString& identifier)> isUsable);

    /// Appends entries.
    void add(const QVector<Zorv::ImportEntry>& entries);
    void clear();
    const QVector<Zorv::ImportEntry>& entries() const { return m_entries; }

    /// The number of entries that clash.
    int clashCount() const;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The identifier. For a clash an icon and a tool tip, else the row's picture.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Sets an identifier, trimmed. If it is unusable, emits `refused()`, changes nothing and
    /// returns false.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

signals:
    void refused(const QString& identifier);

    /// Entries were added or removed, or clash differently.
    void clashesChanged();

private:
    Clash clash(int row) const;
    void follow(const QAbstractItemModel* list);
    void dropGone();
    void count(int first, int last, int step);
    void tellAll();

    QVector<Zorv::ImportEntry> m_entries;
    QSet<QString> m_present;
    QHash<QString, int> m_counts;  // number of entries with each identifier
    QSet<const QObject*> m_followed;
    std::function<bool(const QString&)> m_isUsable;
};
