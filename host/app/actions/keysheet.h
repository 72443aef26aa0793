#pragma once

class QByteArray;
class QString;

namespace App {

class ActionRegistry;

/// The shortcuts of all actions that have one, as an HTML page: one table per menu, in menu order.
QString keySheet(const ActionRegistry* registry);

/// Writes the sheet to a file. False, with `error`, on failure; an existing file stays intact then.
bool saveKeySheetAsHtml(const ActionRegistry* registry, const QString& fileName, QString* error);
bool saveKeySheetAsPdf(const ActionRegistry* registry, const QString& fileName, QString* error);

}  // namespace App
