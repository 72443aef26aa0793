#pragma once

#include <QWidget>

#include <vector>

class QAction;
class QHBoxLayout;
class QToolButton;

namespace App {

struct FormRow;

/// The content of a panel or page whose tools are arranged in rows (`formTable()`). Fields in
/// different rows are aligned in one column.
class ControlForm : public QWidget
{
    Q_OBJECT

public:
    /// `bar` is the bar whose rows it shows.
    explicit ControlForm(const QString& bar, QWidget* parent = nullptr);

    /// Adds a button at the place of its action's name.
    QToolButton* addButton(QAction* action);

    /// Adds a field with its label; the form owns it.
    void addWidget(const QString& name, QWidget* widget);

    /// True if it has no rows.
    bool isEmpty() const;

    /// Aligns the fields again, after the text of a label changed.
    void align();

private:
    struct Row
    {
        const FormRow* row;  ///< null for rows added after those of the table
        QHBoxLayout* layout;
    };

    Row& rowOf(const QString& name, int* rank);
    const FormRow* insert(const QString& name, QWidget* widget, int stretch);

    std::vector<Row> m_rows;
};

}  // namespace App
