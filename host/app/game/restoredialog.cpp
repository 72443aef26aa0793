#include "app/game/restoredialog.h"

#include "family/project/familyparentproject.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace App {

using Operations::Backup;
using Operations::RestoredFile;

namespace {

enum BackupColumn { NameColumn, TimeColumn, CountColumn, SizeColumn };

// A longer list would not be readable.
constexpr int MaxFiles = 2000;

QString changeText(RestoredFile::Change change)
{
    return change == RestoredFile::New ? RestoreDialog::tr("comes back")
                                       : RestoreDialog::tr("is replaced");
}

}  // namespace

RestoreDialog::RestoreDialog(QWidget* parent, const Family::FamilyParentProject& game)
    : QDialog(parent), m_game(game), m_list(new QTreeWidget), m_files(new QTreeWidget),
      m_summary(new QLabel)
{
    setWindowTitle(tr("Restore backup"));
    makeLists();
    auto* box = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_restore = box->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    m_restore->setObjectName(QStringLiteral("restore"));
    auto* hint = new QLabel(tr("Files that the backup lacks stay as they are. What is replaced is "
                               "kept in a backup of its own first."));
    hint->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_summary);
    layout->addWidget(m_files, 1);
    layout->addWidget(hint);
    layout->addWidget(box);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &RestoreDialog::showFiles);
    resize(640, 520);
    fillBackups();
}

void RestoreDialog::makeLists()
{
    m_list->setObjectName(QStringLiteral("backups"));
    m_list->setHeaderLabels({tr("Backup"), tr("Time"), tr("Files"), tr("Size")});
    m_list->setAccessibleName(tr("Backups"));
    m_files->setObjectName(QStringLiteral("files"));
    m_files->setHeaderLabels({tr("File"), tr("Restoring")});
    m_files->setAccessibleName(tr("Files that would change"));
    for (QTreeWidget* list : {m_list, m_files}) {
        list->setRootIsDecorated(false);
        list->setUniformRowHeights(true);
        list->header()->setStretchLastSection(false);
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
}

void RestoreDialog::fillBackups()
{
    m_backups = Operations::listBackups(m_game);
    const QLocale locale;
    for (const Backup& backup : qAsConst(m_backups)) {
        auto* item = new QTreeWidgetItem(m_list);
        item->setText(NameColumn, backup.name);
        item->setToolTip(NameColumn, backup.folder);
        item->setText(TimeColumn, locale.toString(backup.time, QLocale::ShortFormat));
        item->setText(CountColumn, locale.toString(backup.fileCount));
        item->setText(SizeColumn, locale.formattedDataSize(backup.bytes));
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    showFiles();
}

QString RestoreDialog::folder() const
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    return row < 0 ? QString() : m_backups.at(row).folder;
}

void RestoreDialog::showFiles()
{
    m_files->clear();
    m_restore->setEnabled(!folder().isEmpty());
    if (folder().isEmpty()) {
        m_summary->setText(tr("There is no backup of this game."));
        return;
    }
    QString error;
    QVector<RestoredFile> files = Operations::filesToRestore(m_game, folder(), &error);
    const int all = files.size();
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const auto& file) { return file.change == RestoredFile::Same; }),
                files.end());
    m_restore->setEnabled(error.isEmpty());
    m_summary->setText(
        error.isEmpty()
            ? tr("%1 of %n file(s) differ from those on the disk:", nullptr, all).arg(files.size())
            : error);
    QList<QTreeWidgetItem*> items;
    for (const RestoredFile& file : files.mid(0, MaxFiles)) {
        items.append(
            new QTreeWidgetItem({QDir::toNativeSeparators(file.path), changeText(file.change)}));
    }
    if (files.size() > MaxFiles) {
        items.append(new QTreeWidgetItem({tr("and %n more", nullptr, files.size() - MaxFiles)}));
    }
    m_files->addTopLevelItems(items);
}

}  // namespace App
