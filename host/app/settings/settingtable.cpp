#include "app/settings/settingtable.h"

#include "app/look/language.h"

#include <QCoreApplication>

namespace App {

namespace {

constexpr int LargestFont = 72;  // points

#define T(text) QT_TRANSLATE_NOOP("App::Settings", text)

QVector<SettingChoice> languages()
{
    QVector<SettingChoice> choices{{QString(), settingText(T("As the system"))}};
    for (const LanguageInfo& language : Language::all()) {
        choices.append({language.code, language.name});
    }
    return choices;
}

QVector<SettingChoice> themes()
{
    return {{QString(), settingText(T("As the system"))},
            {QStringLiteral("light"), settingText(T("Light"))},
            {QStringLiteral("dark"), settingText(T("Dark"))}};
}

}  // namespace

const QVector<SettingPageRow>& settingPageTable()
{
    static const QVector<SettingPageRow> table{
        {"look", T("Look")},
        {"code", T("Code")},
        {"files", T("Files")},
    };
    return table;
}

const QVector<SettingRow>& settingTable()
{
    using Row = SettingRow;
    // clang-format off
    static const QVector<SettingRow> table{
        {"language", "look", Row::Choice, T("&Language:"),
         T("The language of the window. It changes at once."), 0, 0, nullptr, nullptr, languages},
        {"theme", "look", Row::Choice, T("&Theme:"),
         T("Light or dark colours for the whole window"), 0, 0, nullptr, nullptr, themes},

        {"font_name", "code", Row::FontFamily, T("&Font of code:"),
         T("A font whose characters have one width"), 0, 0, T("As the system")},
        {"font_size", "code", Row::Number, T("&Size:"),
         T("Size of the font of code"), 0, LargestFont, T("As the system"), T(" pt")},
        {"highlightCode", "code", Row::Switch, T("&Colour code"),
         T("Shows words, numbers and texts of code in colours")},
        {"parseCode", "code", Row::Switch, T("&Look for what code means"),
         T("Without this, trees and lists stay empty and problems are not found")},

        {"enable_file_watcher", "files", Row::Switch, T("&Watch for changes on disk"),
         T("Notices when another program changes an open file")},
        {"backup_onload", "files", Row::Switch, T("&Back up a project when it is opened"),
         T("Makes a backup named Auto each time that a project is opened")},
        {"sort_file_names", "files", Row::Switch, T("&Sort files that are chosen together"),
         T("Several files chosen in one dialog come in the order of their names")},
        {"project_path", "files", Row::Folder, T("&Folder of projects:"),
         T("Where dialogs for files begin, as long as no other folder was used")},
    };
    // clang-format on
    return table;
}

QString settingText(const char* source)
{
    return source ? QCoreApplication::translate("App::Settings", source) : QString();
}

}  // namespace App
