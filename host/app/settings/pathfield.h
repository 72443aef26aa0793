#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace App {

/// A field for the path of a file or folder, with a button to choose it through `Zorv::Dialogs`.
class PathField : public QWidget
{
    Q_OBJECT

public:
    enum Kind { Program, Picture, Folder };

    explicit PathField(Kind kind, QWidget* parent = nullptr);

    /// With "/" as separator.
    QString path() const;
    void setPath(const QString& path);

signals:
    /// The user changed the path.
    void edited();

private:
    void choose();

    Kind m_kind;
    QLineEdit* m_line;
    QToolButton* m_button;
};

}  // namespace App
