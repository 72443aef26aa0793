#include "app/actions/keysheet.h"

#include "app/actions/actionregistry.h"

#include <zorv/core/safefile.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>
#include <algorithm>

namespace App {

namespace {

constexpr int PdfResolution = 300;  // dots per inch
constexpr int PdfMargin = 15;       // millimetres

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::KeySheet)
};

struct Table
{
    QString menu;
    QString rows;
};

QVector<Table> tablesOf(const ActionRegistry* registry)
{
    QVector<Table> tables;
    const QStringList names = registry->names();
    for (const QString& name : names) {
        const QString keys =
            QKeySequence::listToString(registry->keys(name), QKeySequence::NativeText);
        if (keys.isEmpty()) {
            continue;
        }
        const QString path = registry->menuPath(name);
        const auto isIts = [&path](const Table& table) { return table.menu == path; };
        auto found = std::find_if(tables.begin(), tables.end(), isIts);
        if (found == tables.end()) {
            found = tables.insert(tables.end(), {path, {}});
        }
        found->rows += QStringLiteral("<tr><td>%1</td><td>%2</td></tr>\n")
                           .arg(registry->text(name).toHtmlEscaped(), keys.toHtmlEscaped());
    }
    return tables;
}

}  // namespace

QString keySheet(const ActionRegistry* registry)
{
    const QString title = Text::tr("Keys of Zorv");
    QString page = QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">\n"
                                  "<title>%1</title>\n<style>td { padding-right: 2em; } "
                                  "</style></head><body>\n<h1>%1</h1>\n")
                       .arg(title.toHtmlEscaped());
    const QVector<Table> tables = tablesOf(registry);
    for (const Table& table : tables) {
        const QString menu = table.menu.isEmpty() ? Text::tr("Others") : table.menu;
        page += QStringLiteral("<h2>%1</h2>\n<table>\n%2</table>\n")
                    .arg(menu.toHtmlEscaped(), table.rows);
    }
    return page + QLatin1String("</body></html>\n");
}

bool saveKeySheetAsHtml(const ActionRegistry* registry, const QString& fileName, QString* error)
{
    return Zorv::SafeFile::save(fileName, keySheet(registry).toUtf8(), error);
}

bool saveKeySheetAsPdf(const ActionRegistry* registry, const QString& fileName, QString* error)
{
    QByteArray data;
    {
        QBuffer buffer(&data);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(PdfResolution);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(PdfMargin, PdfMargin, PdfMargin, PdfMargin),
                              QPageLayout::Millimeter);
        writer.setTitle(Text::tr("Keys of Zorv"));
        QTextDocument document;
        document.setHtml(keySheet(registry));
        document.print(&writer);
    }
    return Zorv::SafeFile::save(fileName, data, error);
}

}  // namespace App
