#include "editors/snipman/snippetmanager.h"

#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "editors/snipman/combosnipfield.h"
#include "editors/snipman/snippetfile_p.h"
#include "editors/snipman/snippetform_p.h"
#include "editors/snipman/snippetxml_p.h"

#include <QApplication>
#include <QCollator>
#include <QDir>
#include <QPointer>
#include <QStringMatcher>

#include <algorithm>

namespace Zorv {

namespace {

/// Limits: values that contain names of later fields can make a text explode.
constexpr int MaxLength = 4 * 1024 * 1024;
constexpr int MaxPlaces = 1000 * 1000;

/// The status bar field for temporary messages.
constexpr int StatusText = 0;

/// Reports a fault or flaw; true if there is one.
bool tellFault(const SnippetFile& file, const QString& title)
{
    const SnippetProblem& problem = file.fault.isThere() ? file.fault : file.flaw;
    if (problem.isThere()) {
        Dialogs::instance()->error(
            SnippetManager::tr("Code snippet"),
            SnippetManager::tr("\"%1\" cannot be used.\n%2").arg(title, problem.message()));
    }
    return problem.isThere();
}

/// Replaces names by values. Builds the result in one pass per name: with many places,
/// `QString::replace()` costs more.
class Filling
{
public:
    explicit Filling(const QString& text) : m_text(text) {}

    QString text() const { return m_text; }

    /// False if the text grows too large; do not use it then.
    bool replace(const QString& key, const QString& value)
    {
        const QStringMatcher matcher(key);
        QString result;
        int done = 0;
        for (int place = matcher.indexIn(m_text); place >= 0;
             place = matcher.indexIn(m_text, done)) {
            result += m_text.midRef(done, place - done) + value;
            done = place + key.size();
            if (++m_places > MaxPlaces || result.size() > MaxLength) {
                return false;
            }
        }
        m_text = result + m_text.midRef(done);
        return m_text.size() <= MaxLength;
    }

private:
    QString m_text;
    int m_places = 0;
};

QString filledIn(const SnippetFile& file, const QStringList& values)
{
    Filling filling(file.plainCode());
    for (int i = 0; i < values.size(); ++i) {
        const SnipField& field = *file.fields[size_t(i)];
        if (!filling.replace(QLatin1Char('@') + field.name, values[i])) {
            Dialogs::instance()->error(
                SnippetManager::tr("Code snippet"),
                SnippetManager::tr("With the value of \"%1\" the text grows too large. Shorten the "
                                   "value, or use the field less often.")
                    .arg(field.title.isEmpty() ? field.name : field.title));
            return {};
        }
    }
    return filling.text();
}

QWidget* windowInFront(const Interface& host)
{
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : host.mainWindow();
}

QString shownName(const QString& name)
{
    return SnippetForm::translated(name, QStringLiteral("snippet"));
}

/// Sorts by the displayed names.
void sortNames(QStringList* names)
{
    QCollator order;
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(names->begin(), names->end(),
                     [&order](const QString& left, const QString& right) {
                         return order.compare(shownName(left), shownName(right)) < 0;
                     });
}

/// The translation source with all texts of a snippet.
QString translationSource(const SnippetFile& file)
{
    QString result = QLatin1String("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                                   "<TS version=\"2.0\">\n<context>\n\t<name>") +
                     QLatin1String(SnippetForm::Context) + QLatin1String("</name>\n");
    for (const auto& field : file.fields) {
        QStringList texts(field->title);
        if (const auto* list = dynamic_cast<const ComboSnipField*>(field.get())) {
            texts += list->itemTitles;
        }
        texts.removeAll(QString());
        for (const QString& text : qAsConst(texts)) {
            result += QLatin1String("\t<message>\n\t\t<source>") + xmlText(text) +
                      QLatin1String("</source>\n\t\t<comment>") + xmlText(field->name) +
                      QLatin1String("</comment>\n\t\t<translation type=\"unfinished\">"
                                    "</translation>\n\t</message>\n");
        }
    }
    return result + QLatin1String("</context>\n</TS>");
}

}  // namespace

SnippetManager::SnippetManager() = default;

SnippetManager* SnippetManager::instance()
{
    static SnippetManager manager;
    return &manager;
}

void SnippetManager::update(const QString& folder)
{
    m_folder = folder;
    if (!m_names.isEmpty()) {
        beginRemoveRows({}, 0, m_names.size() - 1);
        m_names.clear();
        endRemoveRows();
    }
    // An empty name would mean the working directory.
    const QStringList files =
        folder.isEmpty() ? QStringList() : QDir(folder).entryList(QDir::Files | QDir::Readable);
    if (files.isEmpty()) {
        return;
    }
    QStringList names;
    for (const QString& file : files) {
        names.append(QFileInfo(file).completeBaseName());
    }
    sortNames(&names);
    beginInsertRows({}, 0, names.size() - 1);
    m_names = names;
    endInsertRows();
}

void SnippetManager::retranslate()
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QStringList old = m_names;
    sortNames(&m_names);
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex& from : indexes) {
        changePersistentIndex(from, index(m_names.indexOf(old[from.row()])));
    }
    emit layoutChanged({}, VerticalSortHint);
    if (!m_names.isEmpty()) {
        // For receivers that show a single name and ignore layout changes.
        emit dataChanged(index(0), index(m_names.size() - 1), {Qt::DisplayRole});
    }
}

QString SnippetManager::fileName(unsigned row) const
{
    return row < unsigned(m_names.size())
               ? m_folder + QLatin1Char('/') + m_names[int(row)] + QLatin1String(".xml")
               : QString();
}

QString SnippetManager::snippet(const Interface& host, unsigned row) const
{
    if (row >= unsigned(m_names.size())) {
        return {};
    }
    QString xml, error;
    if (!readSnippetText(fileName(row), &xml, &error)) {
        if (Interface* window = Interface::instance()) {
            window->showStatus(
                StatusText, tr("Cannot read the snippet \"%1\": %2").arg(m_names[int(row)], error));
        }
        return {};
    }
    return snippet(host, data(index(int(row))).toString(), xml);
}

QString SnippetManager::snippet(const Interface& host, const QString& title, const QString& xml)
{
    const SnippetFile file = SnippetFile::read(xml);
    if (tellFault(file, title)) {
        return {};
    }
    if (file.fields.empty()) {
        return file.plainCode();
    }
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        return {};  // no GUI, so nobody can answer
    }
    // The window may be deleted, with all its children, while the dialog is open.
    const QPointer<SnippetForm> form = new SnippetForm(windowInFront(host), title, file.fields);
    const bool isAccepted = form->exec() == QDialog::Accepted && form;
    const QStringList values = isAccepted ? form->values() : QStringList();
    delete form;
    return isAccepted ? filledIn(file, values) : QString();
}

bool SnippetManager::genTS(const Interface&, const QString& fileName, const QString& xml)
{
    const SnippetFile file = SnippetFile::read(xml);
    return !tellFault(file, QFileInfo(fileName).completeBaseName()) &&
           writeSnippetText(fileName, translationSource(file));
}

int SnippetManager::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

QVariant SnippetManager::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    const QString name = m_names.value(index.row());
    return role == Qt::EditRole ? name : shownName(name);
}

}  // namespace Zorv
