#pragma once

#include <QDialog>

#include <memory>
#include <vector>

class QGridLayout;
class SnipField;

namespace Zorv {

/// Asks for the values of a snippet's fields, one row each; scrolls if there are many.
class SnippetForm : public QDialog
{
    Q_OBJECT

public:
    using Fields = std::vector<std::unique_ptr<SnipField>>;

    /// The fields are only read during the call.
    SnippetForm(QWidget* parent, const QString& title, const Fields& fields);

    /// The value to insert for each field.
    QStringList values() const;

    /// The title of a field or one of its items, in the user's language.
    static QString translated(const QString& text, const QString& fieldName);

    /// The context of these texts in translation files.
    static const char* const Context;

private:
    void addRow(QGridLayout* grid, const SnipField& field);
    static QWidget* makeInput(const SnipField& field);

    std::vector<QWidget*> m_inputs;
};

}  // namespace Zorv
