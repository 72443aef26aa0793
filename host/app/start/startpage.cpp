#include "app/start/startpage.h"

#include "app/actions/actionregistry.h"
#include "app/look/icon.h"
#include "app/session/recentfolders.h"
#include "app/window/jumps.h"
#include "app/window/windowservices.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QDir>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

namespace App {

namespace {

constexpr int MaxGames = 5;
constexpr int ColumnWidth = 320;
constexpr int Gap = 32;
constexpr double LargeText = 2.4;
constexpr double HeadText = 1.25;

struct ButtonRow
{
    const char* action;  ///< name of a window action
    const char* text;
    const char* about;
};

constexpr ButtonRow buttonRows[] = {
    {"new_game", QT_TRANSLATE_NOOP("App::StartPage", "New game"),
     QT_TRANSLATE_NOOP("App::StartPage", "A first character that fights, and a stage")},
    {"open_folder", QT_TRANSLATE_NOOP("App::StartPage", "Open a game"),
     QT_TRANSLATE_NOOP("App::StartPage", "The folder with its characters and stages")},
    {"open_sample", QT_TRANSLATE_NOOP("App::StartPage", "Sample game"),
     QT_TRANSLATE_NOOP("App::StartPage", "A copy of it, among your documents, to try things out")},
    {"first_lesson", QT_TRANSLATE_NOOP("App::StartPage", "First lesson"),
     QT_TRANSLATE_NOOP("App::StartPage", "From thirty pictures to a character that fights")},
};

void enlarge(QLabel* label, double factor)
{
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    label->setFont(font);
}

}  // namespace

StartPage::StartPage(const WindowServices& services)
    : m_services(services), m_what(new QLabel), m_begin(new QLabel), m_recent(new QLabel),
      m_none(new QLabel), m_recentLayout(new QVBoxLayout)
{
    setObjectName(QStringLiteral("start_page"));
    auto* name = new QLabel(QStringLiteral("Zorv"));
    enlarge(name, LargeText);
    enlarge(m_begin, HeadText);
    enlarge(m_recent, HeadText);
    m_none->setEnabled(false);
    m_none->setWordWrap(true);
    for (QLabel* label : {m_what, m_none}) {
        label->setTextFormat(Qt::PlainText);
    }
    auto* begin = new QVBoxLayout;
    begin->addWidget(m_begin);
    addButtons(begin);
    begin->addStretch(1);
    m_recentLayout->addWidget(m_recent);
    m_recentLayout->addWidget(m_none);
    m_recentLayout->addStretch(1);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Gap);
    columns->addLayout(begin, 1);
    columns->addLayout(m_recentLayout, 1);
    auto* page = new QWidget;
    page->setMaximumWidth(2 * ColumnWidth + Gap);
    auto* inner = new QVBoxLayout(page);
    inner->addWidget(name);
    inner->addWidget(m_what);
    inner->addSpacing(Gap / 2);
    inner->addLayout(columns, 1);
    auto* sides = new QWidget;
    auto* around = new QHBoxLayout(sides);
    around->addWidget(page, 1);
    // The page scrolls in a small window.
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(sides);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(area);
}

void StartPage::addButtons(QVBoxLayout* layout)
{
    for (const ButtonRow& row : buttonRows) {
        auto* button = new QCommandLinkButton;
        button->setObjectName(QLatin1String("start_") + QLatin1String(row.action));
        layout->addWidget(button);
        m_buttons.append(button);
        connect(button, &QCommandLinkButton::clicked, this, [this, name = row.action] {
            if (QAction* action = m_services.actions->action(QLatin1String(name))) {
                action->trigger();
            }
        });
    }
}

void StartPage::retranslate()
{
    m_what->setText(tr("An editor for characters and stages of two-dimensional fighting games"));
    m_begin->setText(tr("Begin"));
    m_recent->setText(tr("Recent games"));
    m_none->setText(tr("Games that you open are listed here."));
    for (int i = 0; i < m_buttons.size(); ++i) {
        const ButtonRow& row = buttonRows[i];
        QCommandLinkButton* button = m_buttons[i];
        button->setText(tr(row.text));
        button->setDescription(tr(row.about));
        button->setAccessibleName(tr(row.text));
        button->setAccessibleDescription(tr(row.about));
        if (const QAction* action = m_services.actions->action(QLatin1String(row.action))) {
            button->setIcon(action->icon());
        }
    }
    fillRecent();
}

QVector<PanelPlace> StartPage::places()
{
    return {{m_buttons.first(), this}};
}

void StartPage::fillRecent()
{
    for (QCommandLinkButton* game : qAsConst(m_games)) {
        game->deleteLater();  // it may be the clicked one
        game->hide();
        m_recentLayout->removeWidget(game);
    }
    m_games.clear();
    const QStringList folders = RecentFolders::list().mid(0, MaxGames);
    for (const QString& folder : folders) {
        const QString name = QDir(folder).dirName();
        const QString shown = QDir::toNativeSeparators(folder);
        QString text = name;
        auto* game = new QCommandLinkButton(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        game->setDescription(
            QFontMetrics(font()).elidedText(shown, Qt::ElideMiddle, ColumnWidth - 2 * Gap));
        game->setToolTip(shown.toHtmlEscaped());
        game->setAccessibleName(name);
        game->setAccessibleDescription(shown);
        game->setIcon(icon(QStringLiteral(":/icons/icons/open_folder.png")));
        m_recentLayout->insertWidget(m_recentLayout->count() - 1, game);
        setTabOrder(m_games.isEmpty() ? m_buttons.last() : m_games.last(), game);
        m_games.append(game);
        connect(game, &QCommandLinkButton::clicked, this,
                [this, folder] { m_services.jumps->openPath(folder); });
    }
    m_none->setVisible(folders.isEmpty());
}

void StartPage::showEvent(QShowEvent* event)
{
    fillRecent();
    QWidget::showEvent(event);
    // The focused widget may just have been closed.
    QTimer::singleShot(0, this, [this] {
        if (isVisible() && window()->isActiveWindow() &&
            (!window()->focusWidget() || !window()->focusWidget()->isVisible())) {
            m_buttons.first()->setFocus();
        }
    });
}

}  // namespace App
