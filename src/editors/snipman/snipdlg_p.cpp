#include "editors/snipman/snipdlg_p.h"

#include "core/dialogs/dialogs.h"
#include "core/enginemodel.h"
#include "core/interface.h"
#include "editors/snipman/snipdlg.h"
#include "editors/snipman/snipfield.h"
#include "editors/snipman/snipfieldsmodel.h"
#include "editors/snipman/snippetfile_p.h"
#include "editors/snipman/snippetmanager.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

/// The problem with field names that makes them useless; empty if there is none.
QString nameTrouble(const std::vector<const SnipField*>& fields)
{
    for (size_t later = 1; later < fields.size(); ++later) {
        const QString& name = fields[later]->name;
        for (size_t i = 0; i < later; ++i) {
            const QString& first = fields[i]->name;
            if (name == first) {
                return SnipDlg::tr("Two fields have the name %1. Rename one of them.").arg(name);
            }
            if (!first.isEmpty() && name.startsWith(first)) {
                return SnipDlg::tr("@%1 begins with @%2, which is filled in before it. Move the "
                                   "field %1 up, in front of %2, or rename it.")
                    .arg(name, first);
            }
        }
    }
    return {};
}

/// The font for code from the user's settings.
QFont codeFont(const Zorv::Interface* host)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString family = host ? host->option(QStringLiteral("font_name")).toString() : QString();
    if (!family.isEmpty()) {
        font.setFamily(family);
    }
    return font;
}

QPlainTextEdit* makeCodeBox(const char* name, const Zorv::Interface* host)
{
    auto* box = new QPlainTextEdit;
    box->setObjectName(QLatin1String(name));
    box->setFont(codeFont(host));
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    // Leading tabs are not part of the text, so the Tab key is free to change the
    // focus.
    box->setTabChangesFocus(true);
    return box;
}

QString rawText(const QPlainTextEdit* box)
{
    // The document's plain text would lose non-breaking spaces.
    QString text = box->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

}  // namespace

SnipDlgPrivate::SnipDlgPrivate(SnipDlg* dialog, const Zorv::Interface* interface)
    : q(dialog), host(interface), fields(new SnipFieldsModel(dialog)), fieldList(new QListView),
      hint(new QLabel), code(makeCodeBox("code", interface)), previewLabel(nullptr),
      preview(makeCodeBox("preview", interface))
{
}

void SnipDlgPrivate::build()
{
    auto* layout = new QVBoxLayout(q);
    buildFields(layout);
    addLabel(layout,
             SnipDlg::tr("&Code, in which @ and a name stand for the value of a field, and CURSOR "
                         "for the place of the cursor:"),
             code);
    layout->addWidget(code, 2);
    previewLabel = addLabel(layout, SnipDlg::tr("&Result:"), preview);
    layout->addWidget(preview, 2);
    preview->setReadOnly(true);
    preview->hide();
    previewLabel->hide();
    buildButtons(layout);
    q->resize(q->fontMetrics().averageCharWidth() * 90, q->fontMetrics().height() * 32);
}

void SnipDlgPrivate::buildFields(QBoxLayout* layout)
{
    fieldList->setObjectName(QStringLiteral("fieldList"));
    fieldList->setModel(fields);
    addLabel(layout, SnipDlg::tr("&Fields, asked and filled in from top to bottom:"), fieldList);

    auto* row = new QHBoxLayout;
    auto* buttons = new QVBoxLayout;
    addButton(buttons, "addBut", SnipDlg::tr("&Add..."));
    editBut = addButton(buttons, "editBut", SnipDlg::tr("&Edit..."));
    delBut = addButton(buttons, "delBut", SnipDlg::tr("&Delete"));
    upBut = addButton(buttons, "upBut", SnipDlg::tr("&Up"));
    downBut = addButton(buttons, "downBut", SnipDlg::tr("Do&wn"));
    buttons->addStretch();
    row->addWidget(fieldList);
    row->addLayout(buttons);
    layout->addLayout(row, 1);

    hint->setObjectName(QStringLiteral("hint"));
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    hint->hide();
    layout->addWidget(hint);
}

void SnipDlgPrivate::buildButtons(QBoxLayout* layout)
{
    auto* row = new QHBoxLayout;
    addButton(row, "previewBut", SnipDlg::tr("&Preview"));
    addButton(row, "insertBut", SnipDlg::tr("&Insert"));
    addButton(row, "saveTSBut", SnipDlg::tr("Save for &translation..."));
    row->addStretch();
    addButton(row, "saveBut", SnipDlg::tr("&Save..."));
    QPushButton* close = addButton(row, "closeBut", SnipDlg::tr("C&lose"));
    QObject::connect(close, &QPushButton::clicked, q, &QDialog::reject);
    layout->addLayout(row);
}

bool SnipDlgPrivate::load(const QString& fileName)
{
    QString xml, error;
    if (!Zorv::readSnippetText(fileName, &xml, &error)) {
        Zorv::Dialogs::instance()->error(
            SnipDlg::tr("Code snippet"),
            SnipDlg::tr("Cannot read %1: %2").arg(QDir::toNativeSeparators(fileName), error));
        return false;
    }
    Zorv::SnippetFile file = Zorv::SnippetFile::read(xml);
    for (const Zorv::SnippetProblem& problem : {file.fault, file.flaw}) {
        if (problem.isThere()) {
            Zorv::Dialogs::instance()->error(SnipDlg::tr("Code snippet"), problem.message());
        }
    }
    if (file.fault.isThere()) {
        return false;
    }
    for (auto& field : file.fields) {
        fields->add(field.release());
    }
    code->setPlainText(file.editedCode());
    return true;
}

QString SnipDlgPrivate::toString() const
{
    return Zorv::SnippetFile::write(fields->fields(), rawText(code));
}

QString SnipDlgPrivate::result() const
{
    return host ? Zorv::SnippetManager::snippet(*host, name(), toString()) : QString();
}

void SnipDlgPrivate::setSaved(const QString& fileName)
{
    path = fileName;
    savedText = toString();
    updateTitle();
}

void SnipDlgPrivate::updateTitle()
{
    q->setWindowTitle(name() + QLatin1String("[*]"));
    q->setWindowModified(q->hasUnsavedChanges());
}

QString SnipDlgPrivate::startPath(const char* suffix) const
{
    if (!path.isEmpty()) {
        const QFileInfo info(path);
        return info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1String(suffix);
    }
    const Zorv::EngineModel* engine = host ? host->engineModel() : nullptr;
    return engine ? engine->dataPath() + QLatin1String("/snippets") : QString();
}

QString SnipDlgPrivate::name() const
{
    return path.isEmpty() ? SnipDlg::tr("New code snippet") : QFileInfo(path).completeBaseName();
}

int SnipDlgPrivate::currentRow() const
{
    return fieldList->currentIndex().row();
}

void SnipDlgPrivate::selectRow(int row)
{
    fieldList->setCurrentIndex(fields->index(row));
}

void SnipDlgPrivate::updateButtons()
{
    const int row = currentRow();
    editBut->setEnabled(row >= 0);
    delBut->setEnabled(row >= 0);
    upBut->setEnabled(row > 0);
    downBut->setEnabled(row >= 0 && row + 1 < fields->rowCount());
}

void SnipDlgPrivate::updateHint()
{
    hint->setText(nameTrouble(fields->fields()));
    hint->setVisible(!hint->text().isEmpty());
}

QPushButton* SnipDlgPrivate::addButton(QBoxLayout* layout, const char* name, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    layout->addWidget(button);
    return button;
}

QLabel* SnipDlgPrivate::addLabel(QBoxLayout* layout, const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setBuddy(buddy);
    // A label does not give every widget an accessible name.
    buddy->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    layout->addWidget(label);
    return label;
}
