#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

namespace App {

/// A value that a setting can be chosen from.
struct SettingChoice
{
    QVariant value;
    QString label;  ///< in the present language
};

/// One setting that the person can change: a row of the table. Its default is
/// `Family::HostInterface::defaultOption()`.
struct SettingRow
{
    enum Kind {
        Switch,      ///< on or off
        Number,      ///< from `minimum` to `maximum`
        Share,       ///< from 0 to 1, shown as percents from `minimum` to `maximum`
        Choice,      ///< one of `choices()`
        Colour,      ///< none for that of the theme; without `lowest` there always is one
        FontFamily,  ///< empty for the desktop's
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
    const char* lowest = nullptr;  ///< what `minimum`, or no value, means in words; or null
    const char* unit = nullptr;    ///< behind a number, or null
    QVector<SettingChoice> (*choices)() = nullptr;
};

/// One page of settings of the table.
struct SettingPageRow
{
    const char* name;
    const char* title;
};

/// In the order in which they are shown.
const QVector<SettingPageRow>& settingPageTable();
const QVector<SettingRow>& settingTable();

/// A text of the tables in the present language; empty for null.
QString settingText(const char* source);

}  // namespace App
