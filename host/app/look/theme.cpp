#include "app/look/theme.h"

#include "app/look/lookstyle.h"

#include <zorv/code/codedoc/codedocument.h>

#include <QApplication>
#include <QTextCharFormat>
#include <QToolTip>

namespace App {

using Zorv::CodeParserSyntax;

namespace {

Theme::Kind s_current = Theme::Light;

struct RoleRow
{
    QPalette::ColorRole role;
    QRgb colours[2];  // light, dark
};

constexpr RoleRow roles[] = {
    {QPalette::Window, {0xfff2f3f5, 0xff2a2d32}},
    {QPalette::WindowText, {0xff1b1f24, 0xffe4e6ea}},
    {QPalette::Base, {0xffffffff, 0xff1e2024}},
    {QPalette::AlternateBase, {0xfff0f2f6, 0xff25282d}},
    {QPalette::Text, {0xff1b1f24, 0xffe4e6ea}},
    {QPalette::PlaceholderText, {0xff666d78, 0xff9aa2ad}},
    {QPalette::Button, {0xffe9ebee, 0xff363a41}},
    {QPalette::ButtonText, {0xff1b1f24, 0xffe4e6ea}},
    {QPalette::BrightText, {0xffb3261e, 0xffff8f87}},
    {QPalette::ToolTipBase, {0xfffffbe6, 0xff3a3e45}},
    {QPalette::ToolTipText, {0xff1b1f24, 0xfff0f1f3}},
    {QPalette::Highlight, {0xff2563c0, 0xff2a62bd}},
    {QPalette::HighlightedText, {0xffffffff, 0xffffffff}},
    {QPalette::Link, {0xff1d5bb5, 0xff82b7ff}},
    {QPalette::LinkVisited, {0xff7136b5, 0xffc7a2ff}},
    {QPalette::Light, {0xffffffff, 0xff4a4f58}},
    {QPalette::Midlight, {0xfff7f8fa, 0xff40444c}},
    {QPalette::Mid, {0xffb9bec6, 0xff1f2125}},
    {QPalette::Dark, {0xff9aa0aa, 0xff191b1e}},
    {QPalette::Shadow, {0xff6b7078, 0xff0d0e10}},
};

// Disabled text must be visible, but less prominent.
constexpr RoleRow disabledRoles[] = {
    {QPalette::WindowText, {0xff868c96, 0xff7c838e}},
    {QPalette::Text, {0xff868c96, 0xff7c838e}},
    {QPalette::ButtonText, {0xff868c96, 0xff7c838e}},
    {QPalette::Highlight, {0xffb9bec6, 0xff4a4f58}},
    {QPalette::HighlightedText, {0xff1b1f24, 0xffe4e6ea}},
};

constexpr QRgb colours[Theme::ColourCount][2] = {
    {0xffecf1fa, 0xff292d35},  // CurrentLine
    {0xffffffff, 0xff121417},  // BlockRange
    {0xffe3edfb, 0xff26344a},  // ParenRange
    {0xffbcd4f7, 0xff39588a},  // ParenGround
    {0xff08319f, 0xffeaf2ff},  // ParenText
    {0xffb3261e, 0xffff8f87},  // ErrorText
    {0xff116329, 0xff7fd48a},  // AddedText
    {0xffa40e26, 0xffff9a91},  // RemovedText
    {0xff3b4fa0, 0xff9db7ff},  // PlaceText
};

constexpr QRgb tokens[CodeParserSyntax::TokenTypeCount][2] = {
    {0xff1b1f24, 0xffe4e6ea},  // Plain
    {0xff5c626b, 0xffa0a8b3},  // Comment
    {0xffc0201a, 0xffff8f87},  // Invalid
    {0xff0b3fd1, 0xff82b0ff},  // Keyword
    {0xff1b1f24, 0xfff4f5f7},  // Header
    {0xff0a6b16, 0xff8fd48a},  // String
    {0xffa34700, 0xffffb066},  // Number
    {0xff006b6b, 0xff63d2d0},  // Constant
    {0xff6a1fd0, 0xffc3a6ff},  // Identifier
    {0xffa8128f, 0xffff9be8},  // Operator
};

constexpr struct CodeRow
{
    const char* key;
    Theme::Colour colour;
} codeSettings[] = {
    {"line", Theme::CurrentLine},
    {"block_range", Theme::BlockRange},
    {"paren_range", Theme::ParenRange},
};

void set(QPalette* palette, QPalette::ColorGroup group, const RoleRow& row, Theme::Kind kind)
{
    palette->setColor(group, row.role, QColor(row.colours[kind]));
}

void colourTokens(Theme::Kind kind)
{
    for (int i = 0; i < CodeParserSyntax::TokenTypeCount; ++i) {
        const auto type = CodeParserSyntax::TokenType(i);
        QTextCharFormat format = Zorv::CodeDocument::syntaxFormat(type);
        format.setForeground(Theme::token(kind, type));
        Zorv::CodeDocument::setSyntaxFormat(type, format);
    }
}

/// Cached, because the palette no longer shows the system's theme once a theme was applied.
Theme::Kind kindOfSystem()
{
    static const Theme::Kind kind = [] {
        const QPalette palette = QApplication::palette();
        return palette.color(QPalette::Window).lightness() <
                       palette.color(QPalette::WindowText).lightness()
                   ? Theme::Dark
                   : Theme::Light;
    }();
    return kind;
}

}  // namespace

Theme::Kind Theme::kindOf(const QString& setting)
{
    if (setting == QLatin1String("light")) {
        return Light;
    }
    return setting == QLatin1String("dark") ? Dark : kindOfSystem();
}

QPalette Theme::palette(Kind kind)
{
    QPalette palette;
    for (const RoleRow& row : roles) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            set(&palette, group, row, kind);
        }
    }
    for (const RoleRow& row : disabledRoles) {
        set(&palette, QPalette::Disabled, row, kind);
    }
    return palette;
}

QColor Theme::colour(Kind kind, Colour colour)
{
    return QColor(colours[colour][kind]);
}

QColor Theme::token(Kind kind, CodeParserSyntax::TokenType type)
{
    return QColor(tokens[type][kind]);
}

QVariant Theme::codeSetting(const QString& key, const QColor& own)
{
    for (const CodeRow& row : codeSettings) {
        if (key == QLatin1String(row.key)) {
            return own.isValid() ? own : colour(row.colour);
        }
    }
    if (key != QLatin1String("paren")) {
        return {};
    }
    QTextCharFormat format;
    format.setForeground(own.isValid() ? own : colour(ParenText));
    if (!own.isValid()) {
        format.setBackground(colour(ParenGround));
    }
    return QVariant::fromValue<QTextFormat>(format);
}

Theme::Kind Theme::current()
{
    return s_current;
}

void Theme::use(Kind kind)
{
    kindOfSystem();
    s_current = kind;
    if (!qobject_cast<LookStyle*>(QApplication::style())) {
        QApplication::setStyle(new LookStyle);
    }
    QApplication::setPalette(palette(kind));
    QToolTip::setPalette(palette(kind));
    colourTokens(kind);
}

}  // namespace App
