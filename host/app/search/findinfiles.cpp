#include "app/search/findinfiles.h"

#include "app/find/findfield.h"
#include "app/look/icon.h"
#include "app/look/language.h"
#include "app/look/theme.h"
#include "app/search/hitdelegate.h"
#include "app/search/hitmodel.h"
#include "app/search/opentexts.h"
#include "app/session/gamesession.h"
#include "app/window/editorregistry.h"
#include "app/window/jumps.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "operations/find/bytefilter.h"

#include <zorv/core/interface.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

// Worker threads search the files (`GameTexts`), with a matcher each. Findings arrive in batches,
// also after the first run: when a file or an open text changes, only that file is searched again.
// A search stops when there are more hits than the list can hold.

namespace App {

using Operations::FindPattern;

using Operations::FileHits;
using Operations::FindHit;
using Operations::GameFinding;
using Operations::GameText;
using Operations::GameTexts;
using Operations::StopFlag;

namespace {

constexpr int TypingTime = 250;  // milliseconds

/// More results would be of no use and take memory.
constexpr int MostInFile = 1000;
constexpr int MostHits = 100000;

/// Files are expanded automatically up to this number of rows.
constexpr int MostUnfolded = 400;

constexpr int FieldWidth = 330;

const Family::FileKind allKinds[] = {Family::FileKind::Character, Family::FileKind::Stage,
                                     Family::FileKind::Code, Family::FileKind::Animations,
                                     Family::FileKind::Commands};

QString optionsKey()
{
    return QStringLiteral("find_options");
}

/// The search job of a worker thread.
GameTexts::Work workOf(const QString& text, int options)
{
    const FindPattern pattern(text, options);
    const Operations::ByteFilter filter(pattern);
    return [pattern, filter](const GameText& file,
                             const StopFlag& isStopped) -> std::shared_ptr<const void> {
        FileHits found;
        if (file.text) {
            found = Operations::searchText(Zorv::CodeFind::searchableText(*file.text), pattern,
                                           MostInFile, isStopped);
            found.path = file.path;
        } else {
            found = Operations::searchFile(file.path, pattern, filter, MostInFile, isStopped);
        }
        return found.hits.isEmpty() && found.error.isEmpty()
                   ? nullptr
                   : std::make_shared<const FileHits>(std::move(found));
    };
}

}  // namespace

FindInFiles::FindInFiles(const WindowServices& services)
    : m_services(services), m_open(new OpenTexts(services.session, &m_texts, this)),
      m_model(new HitModel(this)), m_delegate(new HitDelegate(this)),
      m_field(new FindField(QStringLiteral("find_history"))),
      m_with(new FindField(QStringLiteral("replace_history"))), m_tree(new QTreeView),
      m_label(new QLabel), m_state(new QLabel), m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("find_in_files_panel"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 0, 0);
    layout->addWidget(makeFields());
    layout->addWidget(m_tree, 1);
    makeTree();
    m_timer->setSingleShot(true);
    m_timer->setInterval(TypingTime);
    connect(m_timer, &QTimer::timeout, this, &FindInFiles::search);
    connect(m_field, &QComboBox::editTextChanged, this, &FindInFiles::searchSoon);
    connect(m_with, &QComboBox::editTextChanged, this, &FindInFiles::showReplacement);
    connect(&m_texts, &GameTexts::found, this, &FindInFiles::take);
    connect(&m_texts, &GameTexts::stateChanged, this, &FindInFiles::showState);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &FindInFiles::showState);
    followLanguage(this, [this] { giveTexts(); });
}

FindInFiles::~FindInFiles()
{
    m_texts.blockSignals(true);
}

QWidget* FindInFiles::makeFields()
{
    auto* fields = new QWidget;
    fields->setFixedWidth(FieldWidth);
    auto* grid = new QGridLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(3);
    m_field->setObjectName(QStringLiteral("find_files_text"));
    m_field->lineEdit()->installEventFilter(this);
    m_label->setBuddy(m_field);
    auto* switches = new QHBoxLayout;
    switches->addWidget(makeSwitch("find_files_case", "Aa", FindPattern::MatchCase));
    switches->addWidget(makeSwitch("find_files_word", "|ab|", FindPattern::WholeWord));
    switches->addWidget(makeSwitch("find_files_expression", ".*", FindPattern::Expression));
    makeKindMenu();
    switches->addWidget(m_kindButton);
    switches->addStretch();
    m_cancel = new QToolButton;
    m_cancel->setObjectName(QStringLiteral("find_files_cancel"));
    m_cancel->setFocusPolicy(Qt::TabFocus);
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        m_isGivenUp = true;
        m_texts.stop();
        showState();
    });
    switches->addWidget(m_cancel);
    m_state->setObjectName(QStringLiteral("find_files_state"));
    m_state->setWordWrap(true);
    m_state->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    grid->addWidget(m_label, 0, 0);
    grid->addWidget(m_field, 0, 1);
    grid->addLayout(switches, 1, 1);
    grid->addWidget(makeReplaceRow(), 2, 0, 1, 2);
    grid->addWidget(m_state, 3, 0, 1, 2);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(1, 1);
    return fields;
}

QWidget* FindInFiles::makeReplaceRow()
{
    m_replaceRow = new QWidget;
    auto* row = new QHBoxLayout(m_replaceRow);
    row->setContentsMargins(0, 0, 0, 0);
    m_with->setObjectName(QStringLiteral("find_files_with"));
    m_with->lineEdit()->installEventFilter(this);
    m_replace = new QToolButton;
    m_replace->setObjectName(QStringLiteral("find_files_replace"));
    m_replace->setFocusPolicy(Qt::TabFocus);
    connect(m_replace, &QToolButton::clicked, this, &FindInFiles::replaceChosen);
    row->addWidget(m_with, 1);
    row->addWidget(m_replace);
    m_replaceRow->hide();
    return m_replaceRow;
}

QToolButton* FindInFiles::makeSwitch(const char* name, const char* sign, int option)
{
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setText(QLatin1String(sign));
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setChecked(Zorv::Interface::instance()->option(optionsKey()).toInt() & option);
    connect(button, &QToolButton::toggled, this, [this] {
        Zorv::Interface::instance()->setOption(optionsKey(), options());
        searchSoon();
    });
    m_switches.append({button, option});
    return button;
}

void FindInFiles::makeKindMenu()
{
    m_kindMenu = new QMenu(this);
    for (const Family::FileKind kind : allKinds) {
        QAction* action = m_kindMenu->addAction(Family::fileSuffix(kind));
        action->setCheckable(true);
        action->setChecked(true);
        action->setData(int(kind));
        connect(action, &QAction::toggled, this, &FindInFiles::searchSoon);
    }
    m_kindButton = new QToolButton;
    m_kindButton->setObjectName(QStringLiteral("find_files_kinds"));
    m_kindButton->setAutoRaise(true);
    m_kindButton->setFocusPolicy(Qt::TabFocus);
    m_kindButton->setPopupMode(QToolButton::InstantPopup);
    m_kindButton->setMenu(m_kindMenu);
}

void FindInFiles::makeTree()
{
    m_tree->setObjectName(QStringLiteral("find_files_tree"));
    m_tree->setModel(m_model);
    m_tree->setItemDelegate(m_delegate);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_tree, &QTreeView::activated, this, &FindInFiles::goTo);
}

void FindInFiles::giveTexts()
{
    m_label->setText(tr("Find:"));
    m_field->setAccessibleName(tr("Text to find in the files of the game"));
    m_with->setAccessibleName(tr("Text to put in its place"));
    m_with->lineEdit()->setPlaceholderText(tr("Replace with"));
    m_with->setToolTip(tr("With a regular expression \\1 to \\99 are what its groups have found, "
                          "\\n is a line end, \\t a tab"));
    m_replace->setText(tr("Replace"));
    m_replace->setToolTip(tr("Replace all places that are ticked"));
    m_cancel->setText(tr("Stop"));
    m_cancel->setToolTip(tr("Stop searching; what was found stays"));
    m_kindButton->setText(tr("Files"));
    m_kindButton->setToolTip(tr("Kinds of files in which to search"));
    m_tree->setAccessibleName(tr("Places in the files of the game"));
    const QStringList names{tr("Upper and lower case are not the same"), tr("Whole words only"),
                            tr("Regular expression")};
    for (int i = 0; i < m_switches.size(); ++i) {
        m_switches[i].first->setToolTip(names[i]);
        m_switches[i].first->setAccessibleName(names[i]);
    }
    showState();
}

QVector<ActionRow> FindInFiles::actions()
{
    const Members<FindInFiles> on(this);
    const auto hasGame = [this] { return !m_texts.folder().isEmpty(); };
    // clang-format off
    return {
        {"find_in_files",    "edit.find", QT_TRANSLATE_NOOP("App::Actions", "Find in &game files..."),    "Ctrl+Shift+F", on(&FindInFiles::openFind),    hasGame, nullptr, ActionRow::Button, "find"},
        {"replace_in_files", "edit.find", QT_TRANSLATE_NOOP("App::Actions", "Replace in ga&me files..."), "Ctrl+Shift+H", on(&FindInFiles::openReplace), hasGame, nullptr, ActionRow::Button, "replace"},
    };
    // clang-format on
}

void FindInFiles::showGame(Family::FamilyParentProject* game)
{
    m_timer->stop();
    m_model->clear();
    m_errors.clear();
    m_texts.setGame(game ? QDir::cleanPath(game->absolutePath()) : QString());
    m_model->setFolder(m_texts.folder());
    if (game && isVisible()) {
        searchSoon();
    }
    showState();
}

void FindInFiles::gameChanged()
{
    m_texts.look();
}

void FindInFiles::updateState()
{
    m_open->watchAll();
}

QVector<PanelPlace> FindInFiles::places()
{
    return {PanelPlace::inside(m_field->parentWidget()),
            PanelPlace::of(m_tree, {{Command::Copy,
                                     [this] {
                                         QApplication::clipboard()->setText(
                                             m_tree->currentIndex().data().toString());
                                     },
                                     [this] { return m_tree->currentIndex().isValid(); }}})};
}

QSize FindInFiles::sizeHint() const
{
    return {FieldWidth * 3, 180};
}

void FindInFiles::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_texts.setWatching(true);
}

void FindInFiles::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_texts.setWatching(false);
}

void FindInFiles::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_cancel) {
        showState();
    }
}

/// Return searches at once and moves the focus to the results.
bool FindInFiles::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* press = static_cast<QKeyEvent*>(event);
    const bool isReturn = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
    const bool isDown = press->key() == Qt::Key_Down && press->modifiers() == Qt::NoModifier;
    if (!isReturn && !(isDown && m_model->hitCount() > 0)) {
        return QWidget::eventFilter(watched, event);
    }
    if (isReturn && (m_timer->isActive() || m_isGivenUp || m_model->hitCount() == 0)) {
        search();
    } else {
        m_tree->setFocus();
        if (!m_tree->currentIndex().isValid()) {
            m_tree->setCurrentIndex(m_model->index(0, 0));
        }
    }
    m_field->remember();
    return true;
}

void FindInFiles::openFind()
{
    open(m_replaceRow->isVisibleTo(this));
}

void FindInFiles::openReplace()
{
    open(true);
}

/// Opens the panel with the selection, if that is within one line.
void FindInFiles::open(bool withReplace)
{
    const auto* edit = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
    const QString selected = edit ? edit->textCursor().selectedText() : QString();
    m_replaceRow->setVisible(withReplace);
    bringForward(this);
    m_field->readHistory();
    m_with->readHistory();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        m_field->setText(options() & FindPattern::Expression ? QRegularExpression::escape(selected)
                                                             : selected);
    }
    m_field->lineEdit()->selectAll();
    m_field->setFocus(Qt::ShortcutFocusReason);
    showReplacement();
}

int FindInFiles::options() const
{
    int result = 0;
    for (const auto& each : m_switches) {
        result |= each.first->isChecked() ? each.second : 0;
    }
    return result;
}

Operations::FileKinds FindInFiles::kinds() const
{
    Operations::FileKinds kinds = 0;
    const QList<QAction*> all = m_kindMenu->actions();
    for (const QAction* action : all) {
        kinds |= action->isChecked() ? 1 << action->data().toInt() : 0;
    }
    return kinds;
}

void FindInFiles::searchSoon()
{
    m_timer->start();
}

void FindInFiles::search()
{
    m_timer->stop();
    m_texts.stop();
    m_model->clear();
    m_errors.clear();
    m_isCut = false;
    m_isGivenUp = false;
    m_pattern = FindPattern(m_field->text(), options());
    m_delegate->setPattern(m_pattern);
    if (m_pattern.find().isValid()) {
        m_open->watchAll();
        m_open->handOver();
        const QString text = m_pattern.text();
        const int flags = m_pattern.options();
        m_texts.start([text, flags] { return workOf(text, flags); }, kinds());
    }
    showReplacement();
}

void FindInFiles::take(const QVector<GameFinding>& findings)
{
    QVector<FileHits> found;
    for (const GameFinding& each : findings) {
        const auto* hits = static_cast<const FileHits*>(each.result.get());
        found.append(hits ? *hits : FileHits{each.path, {}, false, {}});
        if (hits && !hits->error.isEmpty() && !m_errors.contains(hits->error)) {
            m_errors.append(hits->error);
        }
    }
    const int before = m_model->fileCount();
    m_model->take(found);
    for (int row = before; row < m_model->fileCount(); ++row) {
        if (m_model->hitCount() <= MostUnfolded) {
            m_tree->expand(m_model->index(row, 0));
        }
    }
    if (m_model->hitCount() > MostHits) {
        m_isCut = true;
        m_texts.stop();
    }
    showState();
}

QString FindInFiles::stateText() const
{
    if (!m_pattern.error().isEmpty()) {
        return m_pattern.error();
    }
    if (m_texts.folder().isEmpty() || m_pattern.isEmpty()) {
        return {};
    }
    const int count = m_model->hitCount();
    QString text = tr("%n place(s)", nullptr, count) + QLatin1Char(' ') +
                   tr("in %n file(s)", nullptr, m_model->fileCount());
    if (!m_texts.isDone()) {
        text = tr("Searching... %1").arg(text);
    } else if (m_isCut) {
        text = tr("%1. There are more: look for something longer.").arg(text);
    } else if (m_isGivenUp) {
        text = tr("%1. The search was stopped.").arg(text);
    } else if (count == 0) {
        text = tr("Nothing found");
    }
    return m_errors.isEmpty() ? text : text + QLatin1Char('\n') + m_errors.first();
}

void FindInFiles::showState()
{
    QPalette colours = palette();
    if (!m_pattern.error().isEmpty() || !m_errors.isEmpty()) {
        colours.setColor(QPalette::WindowText, Theme::colour(Theme::ErrorText));
    }
    m_state->setPalette(colours);
    m_state->setText(stateText());
    m_cancel->setVisible(!m_texts.isDone());
    m_replace->setEnabled(m_texts.isDone() && m_model->hitCount() > 0);
}

void FindInFiles::showReplacement()
{
    const bool isReplacing = m_replaceRow->isVisibleTo(this);
    const QString with = m_with->text();
    m_model->setCheckable(isReplacing);
    m_delegate->setReplacement(!isReplacing    ? QString()
                               : with.isNull() ? QString(QLatin1String(""))
                                               : with);
    m_tree->viewport()->update();
    showState();
}

/// Opens the file and its project if necessary.
void FindInFiles::goTo(const QModelIndex& index)
{
    const QString path = m_model->pathAt(index);
    const FindHit* hit = m_model->hitAt(index);
    if (path.isEmpty()) {
        return;
    }
    // Copied, because the tree can change while a file is opened.
    const FindHit place = hit ? *hit : FindHit{0, 0, 0, 0, {}, 0};
    if (!m_services.session->document(path) && !m_services.jumps->openFile(path)) {
        return;
    }
    if (Family::FamilyDocument* document = m_services.session->document(path)) {
        m_services.jumps->showPlace(document, place.line, place.column, place.length);
    }
}

}  // namespace App
