#pragma once

#include <QString>

class QBoxLayout;
class QLabel;
class QListView;
class QPlainTextEdit;
class QPushButton;
class QWidget;
class SnipDlg;
class SnipFieldsModel;

namespace Zorv {
class Interface;
}

/// The widgets of the dialog, and what stands in its file.
class SnipDlgPrivate
{
public:
    SnipDlgPrivate(SnipDlg* dialog, const Zorv::Interface* host);

    void build();

    /// Shows a file; false if it cannot be read or is broken, which is told.
    bool load(const QString& fileName);
    QString toString() const;

    /// What the snippet gives, with its fields asked.
    QString result() const;

    /// Takes what is shown for what the file has.
    void setSaved(const QString& fileName);
    void updateTitle();

    /// Where a question for a file begins: the file, or the family's folder of snippets.
    QString startPath(const char* suffix) const;

    /// The name in titles.
    QString name() const;

    int currentRow() const;
    void selectRow(int row);
    void updateButtons();

    /// Tells of names that hide each other.
    void updateHint();

    SnipDlg* q;
    const Zorv::Interface* host;
    QString path;
    QString savedText;
    SnipFieldsModel* fields;
    QListView* fieldList;
    QLabel* hint;
    QPlainTextEdit* code;
    QLabel* previewLabel;
    QPlainTextEdit* preview;
    QPushButton* editBut = nullptr;
    QPushButton* delBut = nullptr;
    QPushButton* upBut = nullptr;
    QPushButton* downBut = nullptr;

private:
    QPushButton* addButton(QBoxLayout* layout, const char* name, const QString& text);
    QLabel* addLabel(QBoxLayout* layout, const QString& text, QWidget* buddy);
    void buildFields(QBoxLayout* layout);
    void buildButtons(QBoxLayout* layout);
};
