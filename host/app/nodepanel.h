#pragma once

#include <QTreeView>

class QTimer;

namespace Family {
class FamilyDocument;
}

namespace App {

class NodeModel;

/// The tree of nodes of one document. It follows the cursor, and a click or the
/// return key asks for a line.
class NodePanel : public QTreeView
{
    Q_OBJECT

public:
    explicit NodePanel(QWidget* parent = nullptr);

    void setDocument(Family::FamilyDocument* document);

    /// The cursor stands there now; the row is selected a little later.
    void followCursor(int line);

    NodeModel* nodes() const { return m_nodes; }

signals:
    /// The person wants to see a line, counted from 0.
    void lineRequested(int line);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void selectLine();
    void requestLine(const QModelIndex& index);

    NodeModel* m_nodes;
    QTimer* m_follow;
    int m_line = -1;
};

}  // namespace App
