#pragma once

#include "operations/references/referenceindex.h"

#include <QTreeWidget>

namespace App {

/// The places of one name: a row per file, with a row per line below it.
class ReferencePanel : public QTreeWidget
{
    Q_OBJECT

public:
    ReferencePanel();

    /// Shows the uses of a subject in a game, with the text of each line.
    void showUses(const QString& title, const QVector<Operations::NameUse>& uses,
                  const QString& gameFolder);

    /// Clears the list.
    void forget();

    const QVector<Operations::NameUse>& uses() const { return m_uses; }

    QSize minimumSizeHint() const override;

signals:
    /// The user wants to see a place.
    void useRequested(const Operations::NameUse& use);

protected:
    /// An empty list explains how to fill it.
    void paintEvent(QPaintEvent* event) override;

private:
    void request(const QTreeWidgetItem* item);

    QVector<Operations::NameUse> m_uses;
};

}  // namespace App
