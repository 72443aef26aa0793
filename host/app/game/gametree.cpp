#include "app/game/gametree.h"

#include "app/look/icon.h"
#include "app/look/language.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"
#include "family/grammar/filekind.h"
#include "family/project/familyparentproject.h"

#include <QDir>
#include <QStyledItemDelegate>
#include <QTimer>

namespace App {

using Family::FamilyParentProject;
using Zorv::ParentProject;

namespace {

const ParentProject* gameOf(const QModelIndex& index)
{
    return static_cast<const ParentProject*>(index.model());
}

/// Main files look like files, and those of open projects are bold.
class PathDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Draws the problems of a file or folder at the end of its row.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const bool isError = index.data(FamilyParentProject::ErrorRole).toInt() > 0;
        if (isError || index.data(FamilyParentProject::WarningRole).toInt() > 0) {
            const int size = option.rect.height() - 2;
            const QRect place(option.rect.right() - size, option.rect.top() + 1, size, size);
            (isError ? m_error : m_warning).paint(painter, place);
        }
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const ParentProject::Path* path = gameOf(index)->itemPath(index);
        if (path->isProject() && !path->isDirectory()) {
            option->icon = m_mainFile;
        }
        option->font.setBold(path->isFile() && path->fileID().has(Zorv::FileID::MainCode));
    }

private:
    const QIcon m_error{QStringLiteral(":/icons/icons/error.png")};
    const QIcon m_warning{QStringLiteral(":/icons/icons/warn.png")};
    const QIcon m_mainFile = icon(QStringLiteral(":/zorvl_icons/icons/code.png"));
};

}  // namespace

GameTree::GameTree(const WindowServices& services) : m_services(services)
{
    followLanguage(this, [this] { setAccessibleName(tr("Projects and files of the game")); });
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setExpandsOnDoubleClick(true);
    setItemDelegate(new PathDelegate(this));
    connect(this, &QTreeView::activated, this, &GameTree::request);
    connect(this, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { m_expanded.insert(pathOf(index)); });
    connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { m_expanded.remove(pathOf(index)); });
}

void GameTree::showGame(Family::FamilyParentProject* game)
{
    if (m_game) {
        m_game->disconnect(this);
    }
    m_game = game;
    m_expanded.clear();
    m_current.clear();
    if (game) {
        // Connect before the view does, because its own handlers change the current row.
        connect(game, &QAbstractItemModel::rowsAboutToBeRemoved, this, &GameTree::restoreSoon);
        connect(game, &QAbstractItemModel::rowsAboutToBeInserted, this, &GameTree::restoreSoon);
    }
    setModel(game);
    if (!game) {
        return;
    }
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (!m_isChanging && current.isValid()) {
                    m_current = pathOf(current);
                    m_services.parts->updateSoon();
                }
            });
    // Expand the folders of characters and stages, and the project folders in them.
    for (int i = 0; i < game->rowCount(); ++i) {
        const QModelIndex folder = game->index(i, 0);
        expand(folder);
        for (int j = 0; j < game->rowCount(folder); ++j) {
            expand(game->index(j, 0, folder));
        }
    }
}

QVector<PanelPlace> GameTree::places()
{
    return {PanelPlace::of(this)};
}

QString GameTree::pathOf(const QModelIndex& index) const
{
    const ParentProject::Path* path = m_game ? m_game->itemPath(index) : nullptr;
    if (!path) {
        return {};
    }
    // For the main file of a closed project, absolutePath() is its folder.
    const bool isMainFile = path->isProject() && !path->isDirectory();
    return isMainFile ? path->absolutePath() + path->pathName() : path->absolutePath();
}

QModelIndex GameTree::indexOf(const QString& path) const
{
    return m_game ? m_game->indexOf(path) : QModelIndex();
}

void GameTree::reveal(const QString& fileName)
{
    restore();
    const QModelIndex index = indexOf(fileName);
    if (index.isValid()) {
        expand(index.parent());
        setCurrentIndex(index);
    }
}

void GameTree::request(const QModelIndex& index)
{
    const ParentProject::Path* path = m_game ? m_game->itemPath(index) : nullptr;
    if (!path) {
        return;
    }
    if (!path->isDirectory()) {
        m_services.jumps->openFile(QDir::cleanPath(pathOf(index)));
    } else if (path->isProject() && !m_game->hasChildren(index)) {
        // The folder of a closed project has no rows and represents it. Open it later: the double
        // click would collapse the row again.
        QTimer::singleShot(0, this, [this, folder = QDir(path->absolutePath())] {
            const QStringList names = folder.entryList(Family::mainFileFilters(), QDir::Files);
            for (const QString& name : names) {
                m_services.jumps->openFile(folder.absoluteFilePath(name));
            }
        });
    }
}

void GameTree::restoreSoon()
{
    if (!m_isChanging) {
        m_isChanging = true;
        QTimer::singleShot(0, this, &GameTree::restore);
    }
}

void GameTree::restore()
{
    if (!m_isChanging) {
        return;
    }
    // Outer folders first; sorting works because the paths in them are longer.
    QStringList paths(m_expanded.begin(), m_expanded.end());
    paths.sort();
    for (const QString& path : qAsConst(paths)) {
        const QModelIndex index = indexOf(path);
        if (index.isValid()) {
            setExpanded(index, true);
        }
    }
    const QModelIndex current = indexOf(m_current);
    if (current.isValid() && current != currentIndex()) {
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
    }
    m_isChanging = false;
}

}  // namespace App
