#include "editors/code/codefont.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>

namespace Zorv {

namespace {

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
    // This examines all fonts, which takes a while.
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

}  // namespace

QFont codeFont(const QString& family, int size)
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
    font.setFixedPitch(true);
    return font;
}

}  // namespace Zorv
