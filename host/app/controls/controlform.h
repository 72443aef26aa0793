#pragma once

#include <QWidget>

#include <vector>

class QAction;
class QHBoxLayout;
class QToolButton;

namespace App {

struct FormRow;

/// The content of a panel or a page that has its tools in rows (`formTable()`). Fields that stand
/// one below the other begin at the same place.
class ControlForm : public QWidget
{
    Q_OBJECT

public:
    /// `bar` is that of the rows.
    explicit ControlForm(const QString& bar, QWidget* parent = nullptr);

    /// A button, in the place of its action's name.
    QToolButton* addButton(QAction* action);

    /// A field with its label; the form owns it.
    void addWidget(const QString& name, QWidget* widget);

    /// True with nothing in it.
    bool isEmpty() const;

    /// Labels may have other texts.
    void align();

private:
    struct Row
    {
        const FormRow* row;  ///< null for one behind those of the table
        QHBoxLayout* layout;
    };

    Row& rowOf(const QString& name, int* rank);
    const FormRow* insert(const QString& name, QWidget* widget, int stretch);

    std::vector<Row> m_rows;
};

}  // namespace App
