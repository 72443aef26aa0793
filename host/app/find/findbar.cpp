#include "app/find/findbar.h"

#include "app/find/findfield.h"
#include "app/find/findsearch.h"
#include "app/look/icon.h"
#include "app/look/language.h"
#include "app/look/theme.h"

#include <zorv/code/codedoc/codedocument.h>
#include <zorv/core/interface.h>
#include <zorv/editors/code/codeeditor.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>

namespace App {

namespace {

struct ButtonText
{
    const char* name;
    const char* sign;  ///< text of a button without a picture
    const char* text;
};

const ButtonText buttonTexts[] = {
    {"find_case", "Aa", QT_TRANSLATE_NOOP("App::FindBar", "Upper and lower case are not the same")},
    {"find_word", "|ab|", QT_TRANSLATE_NOOP("App::FindBar", "Whole words only")},
    {"find_expression", ".*", QT_TRANSLATE_NOOP("App::FindBar", "Regular expression")},
    {"find_previous", nullptr, QT_TRANSLATE_NOOP("App::FindBar", "Previous match")},
    {"find_next", nullptr, QT_TRANSLATE_NOOP("App::FindBar", "Next match")},
    {"find_close", nullptr, QT_TRANSLATE_NOOP("App::FindBar", "Close")},
    {"replace_one", nullptr, QT_TRANSLATE_NOOP("App::FindBar", "Replace and go to the next match")},
    {"replace_all", nullptr, QT_TRANSLATE_NOOP("App::FindBar", "Replace all")},
};

constexpr int StateWidth = 22;  // characters

enum Column { LabelColumn, FieldColumn, ButtonColumn, StateColumn, CloseColumn };

QString optionsKey()
{
    return QStringLiteral("find_options");
}

}  // namespace

FindBar::FindBar(Zorv::CodeEditor* editor, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_search(new FindSearch(editor, this)),
      m_field(new FindField(QStringLiteral("find_history"), this)),
      m_with(new FindField(QStringLiteral("replace_history"), this)), m_label(new QLabel(this)),
      m_withLabel(new QLabel(this)), m_state(new QLabel(this))
{
    setObjectName(QStringLiteral("find_bar"));
    m_field->setObjectName(QStringLiteral("find_text"));
    m_with->setObjectName(QStringLiteral("replace_text"));
    m_withLabel->setObjectName(QStringLiteral("replace_label"));
    m_state->setObjectName(QStringLiteral("find_state"));
    m_label->setBuddy(m_field);
    m_withLabel->setBuddy(m_with);
    m_state->setWordWrap(true);
    m_state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_state->setMinimumWidth(fontMetrics().averageCharWidth() * StateWidth);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 3, 6, 3);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(FieldColumn, 3);
    grid->setColumnStretch(StateColumn, 2);
    grid->addWidget(m_label, 0, LabelColumn);
    grid->addWidget(m_field, 0, FieldColumn);
    grid->addLayout(makeFindButtons(), 0, ButtonColumn);
    grid->addWidget(m_state, 0, StateColumn);
    grid->addWidget(makeButton("find_close", "find_close", &FindBar::closeBar), 0, CloseColumn);
    grid->addWidget(m_withLabel, 1, LabelColumn);
    grid->addWidget(m_with, 1, FieldColumn);
    grid->addLayout(makeReplaceButtons(), 1, ButtonColumn);
    showReplaceRow(false);
    const QList<QWidget*> parts = findChildren<QWidget*>();
    for (QWidget* part : parts) {
        part->installEventFilter(this);
    }
    m_editor->installEventFilter(this);
    connect(m_field, &QComboBox::editTextChanged, this, &FindBar::patternChanged);
    connect(m_search, &FindSearch::stateChanged, this, &FindBar::showState);
    followLanguage(this, [this] { giveTexts(); });
    hide();
}

FindBar::~FindBar() = default;

QHBoxLayout* FindBar::makeFindButtons()
{
    auto* row = new QHBoxLayout;
    row->addWidget(makeSwitch("find_case", FindPattern::MatchCase, Qt::ALT | Qt::Key_C));
    row->addWidget(makeSwitch("find_word", FindPattern::WholeWord, Qt::ALT | Qt::Key_W));
    row->addWidget(makeSwitch("find_expression", FindPattern::Expression, Qt::ALT | Qt::Key_R));
    row->addWidget(makeButton("find_previous", "find_previous", &FindBar::findPrevious));
    row->addWidget(makeButton("find_next", "find_next", &FindBar::findNext));
    return row;
}

QHBoxLayout* FindBar::makeReplaceButtons()
{
    auto* row = new QHBoxLayout;
    row->addWidget(makeButton("replace_one", "replace", &FindBar::replaceOne));
    row->addWidget(makeButton("replace_all", "replace_all", &FindBar::replaceAll));
    row->addStretch();
    return row;
}

void FindBar::showReplaceRow(bool isShown)
{
    for (const char* name : {"replace_label", "replace_text", "replace_one", "replace_all"}) {
        findChild<QWidget*>(QLatin1String(name))->setVisible(isShown);
    }
}

QToolButton* FindBar::makeButton(const char* name, const char* picture, void (FindBar::*slot)())
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIcon(icon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(picture))));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, slot);
    return button;
}

QToolButton* FindBar::makeSwitch(const char* name, int option, int key)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    const int stored = Zorv::Interface::instance()->option(optionsKey()).toInt();
    button->setChecked((stored & option) != 0);
    connect(button, &QToolButton::toggled, this, [this] {
        Zorv::Interface::instance()->setOption(optionsKey(), options());
        patternChanged();
    });
    m_switches.append({button, option, key});
    return button;
}

void FindBar::giveTexts()
{
    m_label->setText(tr("Find:"));
    m_withLabel->setText(tr("Replace with:"));
    m_field->setAccessibleName(tr("Text to find"));
    m_with->setAccessibleName(tr("Text to put in its place"));
    m_with->setToolTip(tr("With a regular expression \\1 to \\99 are what its groups have found, "
                          "\\n is a line end, \\t a tab"));
    for (const ButtonText& row : buttonTexts) {
        auto* button = findChild<QToolButton*>(QLatin1String(row.name));
        button->setText(QLatin1String(row.sign));
        button->setToolTip(tr(row.text));
        button->setAccessibleName(tr(row.text));
    }
    for (const Switch& row : qAsConst(m_switches)) {
        row.button->setToolTip(QStringLiteral("%1 (%2)").arg(
            row.button->accessibleName(),
            QKeySequence(row.key).toString(QKeySequence::NativeText)));
    }
    patternChanged();
}

void FindBar::follow()
{
    m_search->follow();
    if (!m_editor->codeDocument() && isVisible()) {
        m_search->setActive(false);
        hide();
    }
}

int FindBar::options() const
{
    int result = 0;
    for (const Switch& row : m_switches) {
        result |= row.button->isChecked() ? row.option : 0;
    }
    return result;
}

void FindBar::patternChanged()
{
    m_search->setPattern(FindPattern(m_field->text(), options()));
    if (isVisible()) {
        m_search->findWhileTyping();
    }
}

void FindBar::showState()
{
    const bool isWrong = !m_search->pattern().error().isEmpty();
    QPalette colours = palette();
    if (isWrong) {
        colours.setColor(QPalette::WindowText, Theme::colour(Theme::ErrorText));
    }
    m_state->setPalette(colours);
    m_state->setText(m_search->state());
    const bool canReplace = m_search->canFind() && !m_editor->isReadOnly();
    for (const char* name : {"find_next", "find_previous"}) {
        findChild<QToolButton*>(QLatin1String(name))->setEnabled(m_search->canFind());
    }
    for (const char* name : {"replace_one", "replace_all"}) {
        findChild<QToolButton*>(QLatin1String(name))->setEnabled(canReplace);
    }
}

/// The text that is selected within one line.
QString FindBar::selectedText() const
{
    const QString text = m_editor->textCursor().selectedText();
    return text.contains(QChar::ParagraphSeparator) ? QString() : text;
}

/// Searches for this text literally from now on, without moving yet.
void FindBar::takeText(const QString& text)
{
    {
        const QSignalBlocker blocker(m_field);
        m_field->setText(options() & FindPattern::Expression ? QRegularExpression::escape(text)
                                                             : text);
    }
    m_search->setPattern(FindPattern(m_field->text(), options()));
}

void FindBar::bringUp(bool withReplace)
{
    showReplaceRow(withReplace);
    if (isVisible()) {
        return;
    }
    m_field->readHistory();
    m_with->readHistory();
    setVisible(true);
    m_search->follow();
    m_search->setActive(true);
}

void FindBar::open(bool withReplace)
{
    if (!m_editor->codeDocument()) {
        return;
    }
    // A text found by an expression is not the expression to search for.
    const QString selected = m_search->isMatchSelected() ? QString() : selectedText();
    bringUp(withReplace);
    if (!selected.isEmpty() && !isAncestorOf(QApplication::focusWidget())) {
        takeText(selected);
        m_search->findWhileTyping();
    }
    m_field->lineEdit()->selectAll();
    m_field->setFocus(Qt::ShortcutFocusReason);
}

void FindBar::openFind()
{
    open(m_with->isVisible());
}

void FindBar::openReplace()
{
    open(true);
}

bool FindBar::isReadyToGo()
{
    if (!m_editor->codeDocument()) {
        return false;
    }
    if (m_search->pattern().isEmpty()) {
        openFind();
        return false;
    }
    bringUp(m_with->isVisible());
    m_field->remember();
    return true;
}

void FindBar::findNext()
{
    if (isReadyToGo()) {
        m_search->next();
    }
}

void FindBar::findPrevious()
{
    if (isReadyToGo()) {
        m_search->previous();
    }
}

void FindBar::findSelection()
{
    if (!m_editor->codeDocument()) {
        return;
    }
    QTextCursor cursor = m_editor->textCursor();
    if (!cursor.hasSelection()) {
        cursor.select(QTextCursor::WordUnderCursor);
        m_editor->setTextCursor(cursor);
    }
    const QString text = selectedText();
    if (!text.isEmpty()) {
        takeText(text);
        findNext();
    }
}

void FindBar::replaceOne()
{
    if (isReadyToGo()) {
        m_with->remember();
        m_search->replaceOne(m_with->text());
    }
}

void FindBar::replaceAll()
{
    if (isReadyToGo()) {
        m_with->remember();
        m_search->replaceAll(m_with->text());
    }
}

void FindBar::closeBar()
{
    hide();
    m_search->setActive(false);
    m_editor->setFocus(Qt::OtherFocusReason);
}

bool FindBar::handleReturn(const QWidget* widget, bool isShifted, bool isPressed)
{
    const bool isInWith = widget == m_with || widget == m_with->lineEdit();
    if (!isInWith && widget != m_field && widget != m_field->lineEdit()) {
        return false;
    }
    if (isPressed && isShifted) {
        findPrevious();
    } else if (isPressed && isInWith) {
        replaceOne();
    } else if (isPressed) {
        findNext();
    }
    return true;
}

bool FindBar::handleKey(const QWidget* widget, int key, bool isPressed)
{
    const int plain = key & ~int(Qt::ShiftModifier);
    if (plain == Qt::Key_Return || plain == Qt::Key_Enter) {
        return handleReturn(widget, key != plain, isPressed);
    }
    if (key == Qt::Key_Escape) {
        if (isPressed) {
            closeBar();
        }
        return true;
    }
    for (const Switch& row : qAsConst(m_switches)) {
        if (row.key == key) {
            if (isPressed) {
                row.button->toggle();
            }
            return true;
        }
    }
    const QList<QAction*> all = actions();
    const auto action = std::find_if(all.begin(), all.end(), [key](const QAction* candidate) {
        return candidate->shortcuts().contains(QKeySequence(key));
    });
    if (action != all.end() && isPressed) {
        (*action)->trigger();
    }
    return action != all.end();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* press = static_cast<QKeyEvent*>(event);
    const int key = press->key() | int(press->modifiers() & ~Qt::KeypadModifier);
    if (watched == m_editor) {
        const QCompleter* completer = m_editor->completer();
        const bool isForPopup = completer && completer->popup()->isVisible();
        if (key != Qt::Key_Escape || !isVisible() || isForPopup ||
            event->type() != QEvent::KeyPress) {
            return false;
        }
        closeBar();
        return true;
    }
    const auto* widget = static_cast<const QWidget*>(watched);
    if (handleKey(widget, key, event->type() == QEvent::KeyPress)) {
        event->accept();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FindBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        showState();
    }
}

}  // namespace App
