#include "app/look/codefont.h"

#include "code/codedoc/codedocument.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QTextCharFormat>

#include <algorithm>

namespace App {

namespace {

QFont& inUse()
{
    static QFont font;
    return font;
}

QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo(font).fixedPitch()) {
        return font;
    }
    font.setFamily(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    if (QFontInfo(font).fixedPitch()) {
        return font;
    }
    // All fonts are looked at, which takes a while.
    const QFontDatabase fonts;
    const QStringList families = fonts.families(QFontDatabase::Latin);
    const auto found =
        std::find_if(families.begin(), families.end(), [&fonts](const QString& family) {
            return fonts.isFixedPitch(family) && fonts.isSmoothlyScalable(family);
        });
    if (found != families.end()) {
        font.setFamily(*found);
    }
    return font;
}

/// The font of the document, whatever it is, with weight and slant of the token.
void takeFontsOffTokens()
{
    for (int i = 0; i < Zorv::CodeParserSyntax::TokenTypeCount; ++i) {
        const auto type = Zorv::CodeParserSyntax::TokenType(i);
        QTextCharFormat format = Zorv::CodeDocument::syntaxFormat(type);
        for (const auto property : {QTextFormat::FontFamily, QTextFormat::FontFamilies,
                                    QTextFormat::FontPointSize, QTextFormat::FontFixedPitch}) {
            format.clearProperty(property);
        }
        Zorv::CodeDocument::setSyntaxFormat(type, format);
    }
}

}  // namespace

QFont codeFont()
{
    return inUse();
}

void setCodeFont(const QString& family, int size)
{
    static const QFont fixed = fixedFont();
    QFont font = fixed;
    if (!family.isEmpty()) {
        font.setFamily(family);
        font.setStyleHint(QFont::Monospace);
    }
    if (size > 0) {
        font.setPointSize(size);
    }
    inUse() = font;
    takeFontsOffTokens();
}

}  // namespace App
