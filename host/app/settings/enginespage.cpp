#include "app/settings/enginespage.h"

#include "app/look/language.h"
#include "app/look/theme.h"
#include "app/settings/pathfield.h"
#include "family/project/familyenginemodel.h"
#include "operations/engines.h"
#include "operations/hostinterface.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

namespace App {

using Zorv::EngineInfo;

namespace {

QSettings* settings()
{
    const auto* host = dynamic_cast<Operations::HostInterface*>(Zorv::Interface::instance());
    return host ? host->settings() : nullptr;
}

}  // namespace

EnginesPage::EnginesPage(QWidget* parent) : SettingsPage(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(makeList());
    layout->addWidget(makeForm(), 1);
    followLanguage(this, [this] { retranslate(); });
    showEngine();
}

QWidget* EnginesPage::makeList()
{
    auto* side = new QWidget(this);
    auto* layout = new QGridLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    m_list = new QListWidget(side);
    m_list->setObjectName(QStringLiteral("engines"));
    layout->addWidget(m_list, 0, 0, 1, 2);
    const auto addButton = [&](const char* name, int row, int column, auto pressed) {
        auto* button = new QPushButton(side);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        layout->addWidget(button, row, column);
        connect(button, &QPushButton::clicked, this, pressed);
        return button;
    };
    m_add = addButton("engine_add", 1, 0, &EnginesPage::add);
    m_remove = addButton("engine_remove", 1, 1, &EnginesPage::remove);
    m_up = addButton("engine_up", 2, 0, [this] { move(-1); });
    m_down = addButton("engine_down", 2, 1, [this] { move(1); });
    connect(m_list, &QListWidget::currentRowChanged, this, &EnginesPage::showEngine);
    return side;
}

QWidget* EnginesPage::makeForm()
{
    m_fields = new QWidget(this);
    m_form = new QFormLayout(m_fields);
    m_form->setContentsMargins(0, 0, 0, 0);
    m_name = new QLineEdit(m_fields);
    m_executable = new PathField(PathField::Program, m_fields);
    m_parameters = new QLineEdit(m_fields);
    m_icon = new PathField(PathField::Picture, m_fields);
    m_name->setObjectName(QStringLiteral("engine_name"));
    m_executable->setObjectName(QStringLiteral("engine_executable"));
    m_parameters->setObjectName(QStringLiteral("engine_parameters"));
    m_icon->setObjectName(QStringLiteral("engine_icon"));
    m_help = new QLabel(m_fields);
    m_problem = new QLabel(m_fields);
    m_problem->setObjectName(QStringLiteral("engine_problem"));
    m_problem->setTextFormat(Qt::PlainText);
    for (QLabel* label : {m_help, m_problem}) {
        label->setWordWrap(true);
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{m_name, m_executable, m_parameters}) {
        m_form->addRow(new QLabel(m_fields), widget);
    }
    m_form->addRow(m_help);
    m_form->addRow(new QLabel(m_fields), m_icon);
    m_form->addRow(m_problem);
    connect(m_name, &QLineEdit::textEdited, this, &EnginesPage::takeEngine);
    connect(m_parameters, &QLineEdit::textEdited, this, &EnginesPage::takeEngine);
    connect(m_executable, &PathField::edited, this, &EnginesPage::takeEngine);
    connect(m_icon, &PathField::edited, this, &EnginesPage::takeEngine);
    return m_fields;
}

void EnginesPage::retranslate()
{
    m_list->setAccessibleName(tr("Engines"));
    m_add->setText(tr("&Add"));
    m_remove->setText(tr("&Remove"));
    m_up->setText(tr("Move &up"));
    m_down->setText(tr("Move do&wn"));
    const std::pair<QWidget*, QString> labels[] = {{m_name, tr("&Name:")},
                                                   {m_executable, tr("&Program:")},
                                                   {m_parameters, tr("Para&meters:")},
                                                   {m_icon, tr("&Icon:")}};
    for (const auto& [widget, text] : labels) {
        auto* label = static_cast<QLabel*>(m_form->labelForField(widget));
        label->setText(text);
        label->setBuddy(widget);
    }
    m_help->setText(tr("Blanks separate the parameters. Each mark becomes the name of the "
                       "copy of a project: %0 of the project in front, %1 of the first open "
                       "project, %2 of the second, and so on. At least one mark is needed."));
    showProblem();
}

QString EnginesPage::title() const
{
    return tr("Engines");
}

void EnginesPage::read()
{
    setEngines(Family::FamilyEngineModel::instance()->engines());
}

bool EnginesPage::write(QString* error)
{
    auto* model = Family::FamilyEngineModel::instance();
    if (QSettings* store = settings()) {
        if (!Operations::saveEngines(*store, m_engines)) {
            // Saving the engines is the first to check that the file was written; other settings
            // were not saved either.
            *error = tr("The settings could not be saved. Check the permissions of the settings "
                        "file.");
            return false;
        }
    }
    model->setEngines(m_engines);
    return true;
}

void EnginesPage::restoreDefaults()
{
    setEngines({});
    emit edited();
}

void EnginesPage::add()
{
    m_engines.append({tr("New engine"), {}, Operations::defaultEngineParameters(), {}});
    m_list->addItem(m_engines.last().name);
    m_list->setCurrentRow(m_engines.size() - 1);
    m_name->setFocus();
    m_name->selectAll();
    emit edited();
}

void EnginesPage::remove()
{
    const int row = m_list->currentRow();
    if (row >= 0) {
        m_engines.remove(row);
        {
            // While an item is removed, the list reports a row that no longer exists.
            const QSignalBlocker blocker(m_list);
            delete m_list->takeItem(row);
        }
        showEngine();
        emit edited();
    }
}

void EnginesPage::move(int distance)
{
    const int row = m_list->currentRow();
    const int target = row + distance;
    if (row < 0 || target < 0 || target >= m_engines.size()) {
        return;
    }
    m_engines.move(row, target);
    {
        const QSignalBlocker blocker(m_list);
        m_list->insertItem(target, m_list->takeItem(row));
    }
    m_list->setCurrentRow(target);
    showEngine();
    emit edited();
}

void EnginesPage::setEngines(const QVector<EngineInfo>& engines)
{
    m_engines = engines;
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (const EngineInfo& engine : engines) {
            m_list->addItem(engine.name);
        }
        m_list->setCurrentRow(engines.isEmpty() ? -1 : 0);
    }
    showEngine();
}

void EnginesPage::showEngine()
{
    const EngineInfo engine = m_engines.value(m_list->currentRow());
    m_name->setText(engine.name);
    m_executable->setPath(engine.executable);
    m_parameters->setText(engine.parameters);
    m_icon->setPath(engine.icon);
    showProblem();
    updateButtons();
}

void EnginesPage::takeEngine()
{
    const int row = m_list->currentRow();
    if (row < 0) {
        return;
    }
    m_engines[row] = {m_name->text().trimmed(), m_executable->path(), m_parameters->text(),
                      m_icon->path()};
    m_list->item(row)->setText(m_engines[row].name);
    showProblem();
    emit edited();
}

void EnginesPage::showProblem()
{
    const int row = m_list->currentRow();
    m_problem->setText(row < 0 ? QString() : Operations::engineProblem(m_engines.at(row)));
    QPalette palette = m_fields->palette();
    palette.setColor(QPalette::WindowText, Theme::colour(Theme::ErrorText));
    m_problem->setPalette(palette);
}

void EnginesPage::updateButtons()
{
    const int row = m_list->currentRow();
    m_fields->setEnabled(row >= 0);
    m_remove->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_engines.size());
}

}  // namespace App
