#include "operations/create/newname.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

namespace Operations {

namespace {

// File systems allow 255 bytes. This leaves room for suffixes, also temporary ones of other
// programs.
constexpr int MaxBytes = 200;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Create)
};

/// Characters that some system forbids in file names, or that end a line or paragraph.
bool isRefused(uint c)
{
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph || QChar::isNonCharacter(c) ||
           (c < 0x80 && refused.contains(QChar(c)));
}

}  // namespace

QString newNameFault(const QString& name)
{
    if (name.trimmed().isEmpty()) {
        return Text::tr("Write a name, such as 'ryn'.");
    }
    const QVector<uint> characters = name.toUcs4();
    if (std::any_of(characters.begin(), characters.end(), isRefused)) {
        return Text::tr("A name has none of %1 and no control characters. Choose another one.")
            .arg(QStringLiteral("/ \\ : * ? \" < > |"));
    }
    if (name.startsWith(QLatin1Char('.'))) {
        return Text::tr("A name that begins with a point is that of a hidden folder, where no "
                        "project is looked for. Choose another one.");
    }
    if (name.endsWith(QLatin1Char('.')) || name != name.trimmed()) {
        return Text::tr("A name does not end in a point, and neither begins nor ends in a blank: "
                        "some systems drop these. Choose another one.");
    }
    const QByteArray bytes = QFile::encodeName(name);
    if (QFile::decodeName(bytes) != name) {
        return Text::tr("The file names of this system cannot hold the name. Choose another one.");
    }
    if (bytes.size() > MaxBytes) {
        return Text::tr("The name has %1 bytes, of at most %2. Choose a shorter one.")
            .arg(QString::number(bytes.size()), QString::number(MaxBytes));
    }
    return {};
}

}  // namespace Operations
