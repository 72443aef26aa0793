#pragma once

class QByteArray;
class QString;

namespace App {

class ActionRegistry;

/// The keys of all actions that have some, as a page of HTML: a table for each menu, in the
/// order of the menus.
QString keySheet(const ActionRegistry* registry);

/// Writes the sheet to a file. False, with `error`, if that failed; an old file is whole then.
bool saveKeySheetAsHtml(const ActionRegistry* registry, const QString& fileName, QString* error);
bool saveKeySheetAsPdf(const ActionRegistry* registry, const QString& fileName, QString* error);

}  // namespace App
