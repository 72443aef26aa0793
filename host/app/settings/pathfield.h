#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace App {

/// A line for a path of a file or a folder, with a button that lets the person choose it
/// through `Zorv::Dialogs`.
class PathField : public QWidget
{
    Q_OBJECT

public:
    enum Kind { Program, Picture, Folder };

    explicit PathField(Kind kind, QWidget* parent = nullptr);

    /// With "/" between its parts.
    QString path() const;
    void setPath(const QString& path);

signals:
    /// The person has changed the path.
    void edited();

private:
    void choose();

    Kind m_kind;
    QLineEdit* m_line;
    QToolButton* m_button;
};

}  // namespace App
