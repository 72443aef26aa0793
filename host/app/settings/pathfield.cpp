#include "app/settings/pathfield.h"

#include "app/look/language.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

namespace App {

PathField::PathField(Kind kind, QWidget* parent)
    : QWidget(parent), m_kind(kind), m_line(new QLineEdit(this)), m_button(new QToolButton(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(m_button);
    setFocusProxy(m_line);
    m_line->setObjectName(QStringLiteral("path"));
    m_button->setObjectName(QStringLiteral("browse"));
    m_button->setText(QStringLiteral("..."));
    connect(m_line, &QLineEdit::textEdited, this, &PathField::edited);
    connect(m_button, &QToolButton::clicked, this, &PathField::choose);
    followLanguage(this, [this] {
        const QString text = m_kind == Folder ? tr("Choose a folder") : tr("Choose a file");
        m_button->setToolTip(text);
        m_button->setAccessibleName(text);
    });
}

QString PathField::path() const
{
    return QDir::fromNativeSeparators(m_line->text().trimmed());
}

void PathField::setPath(const QString& path)
{
    m_line->setText(QDir::toNativeSeparators(path));
}

void PathField::choose()
{
    Zorv::Dialogs* dialogs = Zorv::Dialogs::instance();
    QString chosen;
    switch (m_kind) {
    case Folder:
        chosen = dialogs->existingFolder(this, tr("Choose a folder"), path());
        break;
    case Program:
        chosen = dialogs->openFileName(this, tr("Choose a program"),
                                       QFileInfo(path()).absolutePath(), QString());
        break;
    case Picture:
        chosen =
            dialogs->openFileName(this, tr("Choose a picture"), QFileInfo(path()).absolutePath(),
                                  tr("Pictures (*.png *.bmp *.gif *.svg *.ico)"));
        break;
    }
    if (!chosen.isEmpty() && chosen != path()) {
        setPath(chosen);
        emit edited();
    }
}

}  // namespace App
