#include "operations/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <vector>

// The library is linked statically, so nothing else loads its resources. Qt's macro requires a
// function in the global namespace.
static void loadTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace Operations {

namespace {

const char* const SourceLanguage = "en";

struct InUse
{
    QString code = QLatin1String(SourceLanguage);
    std::vector<std::unique_ptr<QTranslator>> translators;
};

InUse& inUse()
{
    static InUse state;
    return state;
}

// Translators must not outlive the application.
void dropTranslators()
{
    inUse() = InUse();
}

bool isThere(const QString& code)
{
    const QVector<LanguageInfo>& all = Language::all();
    return std::any_of(all.begin(), all.end(),
                       [&code](const LanguageInfo& info) { return info.code == code; });
}

QString languageOfSystem()
{
    const QStringList names = QLocale::system().uiLanguages();
    for (const QString& name : names) {
        const QString code = name.section(QLatin1Char('-'), 0, 0);
        if (isThere(code)) {
            return code;
        }
    }
    return QLatin1String(SourceLanguage);
}

void add(const QString& file, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(file, folder)) {
        QCoreApplication::installTranslator(translator.get());
        inUse().translators.push_back(std::move(translator));
    }
}

}  // namespace

const QVector<LanguageInfo>& Language::all()
{
    static const QVector<LanguageInfo> languages{
        {QLatin1String(SourceLanguage), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
    };
    return languages;
}

QString Language::current()
{
    return inUse().code;
}

void Language::use(const QString& code)
{
    const QString wanted = code.isEmpty() ? languageOfSystem() : code;
    const QString chosen = isThere(wanted) ? wanted : QLatin1String(SourceLanguage);
    if (chosen == current()) {
        return;
    }
    static const bool isFirst = [] {
        loadTranslations();
        qAddPostRoutine(dropTranslators);
        return true;
    }();
    Q_UNUSED(isFirst)
    inUse().translators.clear();
    inUse().code = chosen;
    if (chosen != QLatin1String(SourceLanguage)) {
        add(QStringLiteral("qtbase_") + chosen,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        add(QStringLiteral("zorv_") + chosen, QStringLiteral(":/translations"));
    }
}

}  // namespace Operations
