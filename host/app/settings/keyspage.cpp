#include "app/settings/keyspage.h"

#include "app/look/language.h"
#include "app/settings/keytable.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace App {

namespace {

constexpr int KeyWidth = 130;  // width of the columns after the action column

}  // namespace

KeysPage::KeysPage(ActionRegistry* registry, QWidget* parent)
    : SettingsPage(parent), m_keys(new KeyTable(registry, this)),
      m_found(new QSortFilterProxyModel(this)), m_filter(new QLineEdit(this)),
      m_table(new QTreeView(this))
{
    makeTable();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_table, 1);
    layout->addLayout(makeEditor());
    connect(m_filter, &QLineEdit::textChanged, m_found,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_keys, &KeyTable::edited, this, &SettingsPage::edited);
    followLanguage(this, [this] { retranslate(); });
    showKey();
}

void KeysPage::makeTable()
{
    m_filter->setObjectName(QStringLiteral("key_filter"));
    m_filter->setClearButtonEnabled(true);
    m_found->setSourceModel(m_keys);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_found->setFilterKeyColumn(-1);
    m_table->setObjectName(QStringLiteral("keys"));
    m_table->setModel(m_found);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->header()->setSectionResizeMode(KeyTable::ActionColumn, QHeaderView::Stretch);
    m_table->header()->setStretchLastSection(false);
    m_table->header()->resizeSection(KeyTable::KeyColumn, KeyWidth);
    m_table->header()->resizeSection(KeyTable::ClashColumn, KeyWidth);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &KeysPage::showKey);
    connect(m_keys, &QAbstractItemModel::modelReset, this, &KeysPage::showKey);
}

QLayout* KeysPage::makeEditor()
{
    m_label = new QLabel(this);
    m_key = new QKeySequenceEdit(this);
    m_key->setObjectName(QStringLiteral("key"));
    m_none = new QPushButton(this);
    m_none->setObjectName(QStringLiteral("key_none"));
    m_reset = new QPushButton(this);
    m_reset->setObjectName(QStringLiteral("key_reset"));
    m_label->setBuddy(m_key);
    auto* layout = new QHBoxLayout;
    layout->addWidget(m_label);
    layout->addWidget(m_key, 1);
    for (QPushButton* button : {m_none, m_reset}) {
        button->setAutoDefault(false);
        layout->addWidget(button);
    }
    m_key->installEventFilter(this);
    connect(m_none, &QPushButton::clicked, this, [this] {
        m_keys->setKey(currentRow(), {});
        showKey();
    });
    connect(m_reset, &QPushButton::clicked, this, [this] {
        m_keys->resetKey(currentRow());
        showKey();
    });
    return layout;
}

void KeysPage::retranslate()
{
    m_filter->setPlaceholderText(tr("Find an action or a key"));
    m_filter->setAccessibleName(tr("Find an action or a key"));
    m_table->setAccessibleName(tr("Actions and keys"));
    m_label->setText(tr("&Key:"));
    m_none->setText(tr("&No key"));
    m_reset->setText(tr("&Default key"));
    m_keys->retranslate();
}

QString KeysPage::title() const
{
    return tr("Keys");
}

void KeysPage::read()
{
    m_keys->read();
}

bool KeysPage::write(QString*)
{
    m_keys->write();
    return true;
}

void KeysPage::restoreDefaults()
{
    m_keys->resetAll();
    showKey();
}

/// The editor reports a key with a delay of a second, in case more keys follow. A click on a button
/// may come earlier, so the key is taken on release.
bool KeysPage::eventFilter(QObject* watched, QEvent* event)
{
    const int row = currentRow();
    if (event->type() == QEvent::KeyRelease && row >= 0 &&
        m_key->keySequence() != m_keys->key(row)) {
        m_keys->setKey(row, m_key->keySequence());
    }
    return SettingsPage::eventFilter(watched, event);
}

int KeysPage::currentRow() const
{
    return m_found->mapToSource(m_table->currentIndex()).row();
}

void KeysPage::showKey()
{
    const int row = currentRow();
    const QSignalBlocker blocker(m_key);
    m_key->setKeySequence(row < 0 ? QKeySequence() : m_keys->key(row));
    for (QWidget* widget : std::initializer_list<QWidget*>{m_key, m_none, m_reset}) {
        widget->setEnabled(row >= 0);
    }
}

}  // namespace App
