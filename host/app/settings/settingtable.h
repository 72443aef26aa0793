#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

namespace App {

/// A value offered for a setting.
struct SettingChoice
{
    QVariant value;
    QString label;  ///< in the current language
};

/// One setting that the user can change: a row of the table. Its default is
/// `Operations::HostInterface::defaultOption()`.
struct SettingRow
{
    enum Kind {
        Switch,      ///< on or off
        Number,      ///< from `minimum` to `maximum`
        Share,       ///< from 0 to 1, shown in percent from `minimum` to `maximum`
        Choice,      ///< one of `choices()`
        Colour,      ///< none: the theme's colour; without `lowest` there is always a colour
        FontFamily,  ///< empty: the desktop's font
        Folder,      ///< empty for none
        Picture      ///< a file; empty for none
    };

    const char* key;
    const char* page;  ///< name of a row of `settingPageTable()`
    Kind kind;
    const char* label;
    const char* toolTip;
    int minimum = 0;
    int maximum = 0;
    const char* lowest = nullptr;  ///< text shown for `minimum` or for no value; or null
    const char* unit = nullptr;    ///< shown after a number, or null
    QVector<SettingChoice> (*choices)() = nullptr;
};

/// One page of settings.
struct SettingPageRow
{
    const char* name;
    const char* title;
};

/// In display order.
const QVector<SettingPageRow>& settingPageTable();
const QVector<SettingRow>& settingTable();

/// A text of the tables in the current language; empty for null.
QString settingText(const char* source);

}  // namespace App
