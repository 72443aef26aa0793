#pragma once

#include <QDialog>

#include <memory>
#include <vector>

class QGridLayout;
class SnipField;

namespace Zorv {

/// Asks for the values of the fields of a snippet, a row each; many of them scroll.
class SnippetForm : public QDialog
{
    Q_OBJECT

public:
    using Fields = std::vector<std::unique_ptr<SnipField>>;

    /// The fields are looked at here and not kept.
    SnippetForm(QWidget* parent, const QString& title, const Fields& fields);

    /// What goes into the code for each field.
    QStringList values() const;

    /// The title of a field, or the text of one of its items, in the person's language.
    static QString translated(const QString& text, const QString& fieldName);

    /// The context of these texts in files of translations.
    static const char* const Context;

private:
    void addRow(QGridLayout* grid, const SnipField& field);
    static QWidget* makeInput(const SnipField& field);

    std::vector<QWidget*> m_inputs;
};

}  // namespace Zorv
