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

/// The widgets of the dialog, and the saved text of its file.
class SnipDlgPrivate
{
public:
    SnipDlgPrivate(SnipDlg* dialog, const Zorv::Interface* host);

    void build();

    /// Shows a file. Reports and returns false if it cannot be read or is broken.
    bool load(const QString& fileName);
    QString toString() const;

    /// The result of the snippet, after asking for its fields.
    QString result() const;

    /// Marks the shown snippet as saved in this file.
    void setSaved(const QString& fileName);
    void updateTitle();

    /// The start path of a file dialog: the file, or the engine family's snippet
    /// folder.
    QString startPath(const char* suffix) const;

    /// The name for window titles.
    QString name() const;

    int currentRow() const;
    void selectRow(int row);
    void updateButtons();

    /// Shows a hint about field names that hide each other.
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
