#include "app/settings/settingsdialog.h"
#include "operations/language.h"
#include "windowfixture.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>
#include <QXmlStreamReader>

#include <functional>

using Operations::Language;

namespace {

/// What a person reads, whatever the access key is.
QString plain(QString text)
{
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QLatin1Char(' '))) {
        text.chop(1);
    }
    return text;
}

/// The English texts that German has another word for, and no English word of German.
QSet<QString> englishTexts()
{
    QFile file(QStringLiteral(SOURCE_FOLDER "/translations/zorv_de.ts"));
    QSet<QString> english;
    QSet<QString> german;
    if (!file.open(QIODevice::ReadOnly)) {
        return english;
    }
    QXmlStreamReader reader(&file);
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source")) {
            source = plain(reader.readElementText());
        } else if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
            english.insert(source);
            german.insert(plain(reader.readElementText(QXmlStreamReader::IncludeChildElements)));
        }
    }
    return english - german;
}

/// A text of the window, with where it stands.
using Texts = QMap<QString, QString>;

QString placeOf(const QObject* object)
{
    QStringList names;
    for (; object; object = object->parent()) {
        names.prepend(QLatin1String(object->metaObject()->className()) + QLatin1Char(' ') +
                      object->objectName());
    }
    return names.join(QStringLiteral(" / "));
}

void addModel(const QAbstractItemView* view, const QString& place, Texts* texts)
{
    const QAbstractItemModel* model = view->model();
    std::function<void(const QModelIndex&, const QString&)> addRows = [&](const QModelIndex& parent,
                                                                          const QString& above) {
        for (int row = 0; model && row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column) {
                const QModelIndex index = model->index(row, column, parent);
                const QString here = QStringLiteral("%1 %2,%3").arg(above).arg(row).arg(column);
                texts->insert(here, index.data().toString());
                texts->insert(here + QStringLiteral(" tip"),
                              index.data(Qt::ToolTipRole).toString());
                addRows(index, here);
            }
        }
    };
    addRows({}, place + QStringLiteral(" row"));
    for (int column = 0; model && column < model->columnCount(); ++column) {
        texts->insert(QStringLiteral("%1 head %2").arg(place).arg(column),
                      model->headerData(column, Qt::Horizontal).toString());
    }
}

void addWidget(const QWidget* widget, const QString& place, Texts* texts)
{
    for (const char* property :
         {"text", "title", "windowTitle", "toolTip", "statusTip", "whatsThis", "accessibleName",
          "accessibleDescription", "placeholderText", "suffix", "specialValueText"}) {
        const QVariant value = widget->property(property);
        if (value.isValid()) {
            texts->insert(place + QLatin1Char(' ') + QLatin1String(property), value.toString());
        }
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget)) {
        addModel(view, place, texts);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        for (int i = 0; i < box->count(); ++i) {
            texts->insert(QStringLiteral("%1 entry %2").arg(place).arg(i), box->itemText(i));
        }
    }
    if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts->insert(QStringLiteral("%1 tab %2").arg(place).arg(i), tabs->tabText(i));
        }
    }
    const QList<QAction*> actions = widget->actions();
    for (int i = 0; i < actions.size(); ++i) {
        const QString here = QStringLiteral("%1 action %2").arg(place).arg(i);
        texts->insert(here, actions[i]->text());
        texts->insert(here + QStringLiteral(" tip"), actions[i]->toolTip());
        texts->insert(here + QStringLiteral(" status"), actions[i]->statusTip());
    }
}

/// Everything that all windows show or would tell.
Texts allTexts()
{
    Texts texts;
    QHash<QString, int> count;
    const QWidgetList widgets = QApplication::allWidgets();
    QMap<QString, const QWidget*> inOrder;
    for (const QWidget* widget : widgets) {
        QString place = placeOf(widget);
        const int number = widget->parent()
                               ? widget->parent()->children().indexOf(const_cast<QWidget*>(widget))
                               : 0;
        place += QStringLiteral(" #%1").arg(number);
        addWidget(widget, place, &texts);
    }
    return texts;
}

}  // namespace

/// The built window, in one language after the other.
class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Language::use(QStringLiteral("en")); }
    void nothingStaysEnglish();
    void accessKeysDiffer();
    void messagesFollow();
};

/// Each text that German has a word for is German while the window speaks it, and all are as
/// they were when it speaks English again.
void TestLanguage::nothingStaysEnglish()
{
    const QSet<QString> english = englishTexts();
    QVERIFY(english.size() > 300);
    const TemporaryGame game;
    WindowFixture fixture;
    fixture.open(game, game.ryn(), game.animations());
    for (const char* dialog : {"settings", "keys", "search_actions"}) {
        fixture.action(dialog)->trigger();
    }
    QVERIFY(fixture.window->findChild<App::SettingsDialog*>());
    const auto texts = [](const char* language) {
        Language::use(QLatin1String(language));
        QTest::qWait(300);
        return allTexts();
    };
    texts("de");  // what is made on the way is there before anything is compared
    const Texts before = texts("en");
    const Texts german = texts("de");
    QCOMPARE(german.keys(), before.keys());
    QStringList left;
    int changed = 0;
    for (auto text = german.begin(); text != german.end(); ++text) {
        changed += text.value() != before[text.key()] ? 1 : 0;
        if (english.contains(plain(text.value()))) {
            left.append(text.key() + QStringLiteral(": ") + text.value());
        }
    }
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
    QVERIFY2(changed > 150, qPrintable(QString::number(changed)));
    const Texts after = texts("en");
    QStringList lost;
    for (auto text = before.begin(); text != before.end(); ++text) {
        if (after.value(text.key()) != text.value()) {
            lost.append(QStringLiteral("%1: %2, not %3")
                            .arg(text.key(), after.value(text.key()), text.value()));
        }
    }
    QVERIFY2(lost.isEmpty(), qPrintable(lost.join(QLatin1Char('\n'))));
}

/// A letter that opens two entries of a menu opens neither.
void TestLanguage::accessKeysDiffer()
{
    const TemporaryGame game;
    WindowFixture fixture;
    fixture.open(game, game.ryn(), game.animations());
    QStringList clashes;
    int keys = 0;
    for (const Operations::LanguageInfo& language : Language::all()) {
        Language::use(language.code);
        QList<QWidget*> menus{fixture.window->menuBar()};
        for (QMenu* menu : fixture.window->findChildren<QMenu*>()) {
            menus.append(menu);
        }
        for (const QWidget* menu : qAsConst(menus)) {
            QHash<QKeySequence, QString> taken;
            for (const QAction* action : menu->actions()) {
                const QKeySequence key = QKeySequence::mnemonic(action->text());
                if (key.isEmpty() || !action->isVisible()) {
                    continue;
                }
                ++keys;
                if (taken.contains(key)) {
                    clashes.append(taken[key] + QStringLiteral(" / ") + action->text());
                }
                taken.insert(key, action->text());
            }
        }
    }
    QVERIFY(keys > 80);
    QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(QLatin1Char('\n'))));
}

/// What was found in a text is told in the new language, without a key in it.
void TestLanguage::messagesFollow()
{
    const TemporaryGame game;
    WindowFixture fixture;
    fixture.open(game, game.oda());
    const auto first = [&] {
        return fixture.window->messagePanel()->model()->index(0, 0).data().toString();
    };
    QVERIFY2(first().contains(QStringLiteral("Expected")), qPrintable(first()));
    Language::use(QStringLiteral("de"));
    QTRY_VERIFY2(first().contains(QStringLiteral("Erwartet")), qPrintable(first()));
    QVERIFY(!fixture.document()->isModified());
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
