#pragma once

#include "operations/references/referenceindex.h"

#include <QTreeWidget>

namespace App {

/// The places of one name: a row for each file, below it a row for each line.
class ReferencePanel : public QTreeWidget
{
    Q_OBJECT

public:
    ReferencePanel();

    /// Shows the uses of a subject in a game, with the texts of their lines.
    void showUses(const QString& title, const QVector<Operations::NameUse>& uses,
                  const QString& gameFolder);

    /// Shows nothing.
    void forget();

    const QVector<Operations::NameUse>& uses() const { return m_uses; }

    QSize minimumSizeHint() const override;

signals:
    /// The person wants to see a place.
    void useRequested(const Operations::NameUse& use);

protected:
    /// A list without places tells how to get them.
    void paintEvent(QPaintEvent* event) override;

private:
    void request(const QTreeWidgetItem* item);

    QVector<Operations::NameUse> m_uses;
};

}  // namespace App
