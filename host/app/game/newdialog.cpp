#include "app/game/newdialog.h"

#include "operations/create/namefile.h"
#include "operations/create/newname.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace App {

using Family::FileKind;
using Operations::Created;
using Operations::NewKind;

namespace {

struct KindRow
{
    NewKind kind;
    const char* title;
    const char* name;  ///< default name
};

constexpr KindRow kinds[] = {
    {NewKind::Game, QT_TRANSLATE_NOOP("App::NewDialog", "New game"), "my-game"},
    {NewKind::Character, QT_TRANSLATE_NOOP("App::NewDialog", "New character"), "fighter"},
    {NewKind::Stage, QT_TRANSLATE_NOOP("App::NewDialog", "New stage"), "training-room"},
    {NewKind::File, QT_TRANSLATE_NOOP("App::NewDialog", "New file"), "specials"},
};

struct SuffixRow
{
    const char* suffix;
    const char* text;
};

constexpr SuffixRow suffixes[] = {
    {".code", QT_TRANSLATE_NOOP("App::NewDialog", "Code: moves, constants, palettes")},
    {".anim", QT_TRANSLATE_NOOP("App::NewDialog", "Animations")},
    {".commands", QT_TRANSLATE_NOOP("App::NewDialog", "Commands")},
    {".sprites", QT_TRANSLATE_NOOP("App::NewDialog", "Sprites")},
    {".sounds", QT_TRANSLATE_NOOP("App::NewDialog", "Sounds")},
    {".act", QT_TRANSLATE_NOOP("App::NewDialog", "Palette")},
};

QLabel* wrapped(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

NewDialog::NewDialog(NewKind kind, const QString& folder, const QString& mainFile, QWidget* parent)
    : QDialog(parent), m_kind(kind), m_mainFile(mainFile), m_name(new QLineEdit),
      m_folder(new QLineEdit(QDir::toNativeSeparators(folder))), m_place(wrapped("place")),
      m_fault(wrapped("fault"))
{
    setWindowTitle(tr(kinds[int(kind)].title));
    m_name->setObjectName(QStringLiteral("name"));
    m_folder->setObjectName(QStringLiteral("folder"));
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = box->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Create"));
    auto* layout = new QFormLayout(this);
    addRows(layout);
    layout->addRow(m_place);
    layout->addRow(m_fault);
    layout->addRow(box);
    setMinimumWidth(fontMetrics().averageCharWidth() * 70);
    const QString first = QLatin1String(kinds[int(kind)].name);
    m_name->setText(first);
    for (int i = 2; QFileInfo::exists(target()); ++i) {
        m_name->setText(first + QLatin1Char('-') + QString::number(i));
    }
    m_name->selectAll();
    m_name->setFocus();
    const QList<QLineEdit*> fields = findChildren<QLineEdit*>();
    for (QLineEdit* field : fields) {
        connect(field, &QLineEdit::textChanged, this, &NewDialog::check);
    }
    connect(box, &QDialogButtonBox::accepted, this, &NewDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

void NewDialog::addRows(QFormLayout* layout)
{
    if (m_kind == NewKind::File) {
        m_suffix = new QComboBox;
        m_suffix->setObjectName(QStringLiteral("suffix"));
        for (const SuffixRow& row : suffixes) {
            m_suffix->addItem(tr(row.text), QString(QLatin1String(row.suffix)));
        }
        layout->addRow(tr("&Kind:"), m_suffix);
        connect(m_suffix, qOverload<int>(&QComboBox::currentIndexChanged), this, &NewDialog::check);
    }
    layout->addRow(tr("&Name:"), m_name);
    if (m_kind == NewKind::Game || m_kind == NewKind::File) {
        addPlace(layout);
    }
    if (m_kind == NewKind::Game) {
        m_character = new QLineEdit(QLatin1String(kinds[int(NewKind::Character)].name));
        m_character->setObjectName(QStringLiteral("character"));
        m_stage = new QLineEdit(QLatin1String(kinds[int(NewKind::Stage)].name));
        m_stage->setObjectName(QStringLiteral("stage"));
        layout->addRow(tr("First &character:"), m_character);
        layout->addRow(tr("First &stage:"), m_stage);
    }
    addTemplates(layout);
    if (!m_mainFile.isEmpty()) {
        m_names =
            new QCheckBox(tr("&Write it into [files] of %1").arg(QFileInfo(m_mainFile).fileName()));
        m_names->setChecked(true);
        layout->addRow(QString(), m_names);
    }
}

void NewDialog::addPlace(QFormLayout* layout)
{
    auto* choose = new QPushButton(tr("C&hoose..."));
    choose->setAccessibleName(tr("Choose a folder"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_folder, 1);
    row->addWidget(choose);
    auto* label = new QLabel(tr("In &folder:"));
    label->setBuddy(m_folder);
    layout->addRow(label, row);
    connect(choose, &QPushButton::clicked, this, [this] {
        const QString folder =
            Zorv::Dialogs::instance()->existingFolder(this, tr("In folder"), m_folder->text());
        if (!folder.isEmpty()) {
            m_folder->setText(QDir::toNativeSeparators(folder));
        }
    });
}

/// Hides the choice if there is only one template.
void NewDialog::addTemplates(QFormLayout* layout)
{
    const QStringList names =
        m_kind == NewKind::File ? QStringList() : Operations::templateNames(m_kind);
    if (names.size() > 1) {
        m_template = new QComboBox;
        m_template->setObjectName(QStringLiteral("template"));
        m_template->addItem(tr("(usual)"), QString());
        for (const QString& name : names) {
            m_template->addItem(name, name);
        }
        layout->addRow(tr("&Template:"), m_template);
    }
}

QString NewDialog::suffix() const
{
    return m_suffix ? m_suffix->currentData().toString() : QString();
}

QString NewDialog::target() const
{
    const QString folder = QDir::fromNativeSeparators(m_folder->text());
    if (m_kind == NewKind::Character || m_kind == NewKind::Stage) {
        return Operations::newProjectFolder(
            folder, m_kind == NewKind::Stage ? FileKind::Stage : FileKind::Character,
            m_name->text());
    }
    return QDir::cleanPath(folder + QLatin1Char('/') + m_name->text() + suffix());
}

QString NewDialog::fault() const
{
    for (const QLineEdit* field :
         {static_cast<const QLineEdit*>(m_name), static_cast<const QLineEdit*>(m_character),
          static_cast<const QLineEdit*>(m_stage)}) {
        const QString wrong = field ? Operations::newNameFault(field->text()) : QString();
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    const QFileInfo there(target());
    const bool isFree =
        !there.exists() ||
        (m_kind != NewKind::File && there.isDir() &&
         QDir(target()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    return isFree ? QString() : tr("That is there already. Choose another name.");
}

void NewDialog::check()
{
    const QString wrong = fault();
    m_place->setText(tr("Creates %1").arg(QDir::toNativeSeparators(target())));
    m_place->setVisible(wrong.isEmpty());
    m_fault->setText(wrong);
    m_fault->setVisible(!wrong.isEmpty());
    if (m_names) {
        m_names->setEnabled(Operations::canBeNamed(suffix()));
    }
    if (m_ok) {
        m_ok->setEnabled(wrong.isEmpty());
    }
}

QString NewDialog::templateName() const
{
    return m_template ? m_template->currentData().toString() : QString();
}

QString NewDialog::character() const
{
    return m_character ? m_character->text() : QString();
}

bool NewDialog::wantsNaming() const
{
    return m_names && m_names->isEnabled() && m_names->isChecked();
}

Created NewDialog::create() const
{
    const QString folder = QDir::fromNativeSeparators(m_folder->text());
    switch (m_kind) {
    case NewKind::Game:
        return Operations::createGame(
            {target(), m_character->text(), m_stage->text(), templateName()});
    case NewKind::Character:
        return Operations::createProject(folder, FileKind::Character, m_name->text(),
                                         templateName());
    case NewKind::Stage:
        return Operations::createProject(folder, FileKind::Stage, m_name->text(), templateName());
    default:
        return Operations::createFile(target());
    }
}

void NewDialog::accept()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const Created made = create();
    QApplication::restoreOverrideCursor();
    if (made.error.isEmpty()) {
        m_path = made.path;
        QDialog::accept();
        return;
    }
    m_place->hide();
    m_fault->setText(made.error);
    m_fault->show();
}

}  // namespace App
