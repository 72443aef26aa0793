#include "app/look/codefont.h"

#include <zorv/code/codedoc/codedocument.h>
#include <zorv/editors/code/codefont.h>

#include <QTextCharFormat>

namespace App {

namespace {

QFont& inUse()
{
    static QFont font;
    return font;
}

/// Tokens keep only weight and slant, so that they follow the document's font.
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
    inUse() = Zorv::codeFont(family, size);
    takeFontsOffTokens();
}

}  // namespace App
