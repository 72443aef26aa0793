#include "app/settings/settingtable.h"

#include "operations/language.h"

#include <QCoreApplication>

namespace App {

namespace {

constexpr int LargestFont = 72;  // points
constexpr int SmallestUndo = 16;
constexpr int LargestUndo = 4096;

QVector<SettingChoice> languages()
{
    QVector<SettingChoice> choices{
        {QString(), settingText(QT_TRANSLATE_NOOP("App::Settings", "As the system"))}};
    for (const Operations::LanguageInfo& language : Operations::Language::all()) {
        choices.append({language.code, language.name});
    }
    return choices;
}

QVector<SettingChoice> themes()
{
    return {{QString(), settingText(QT_TRANSLATE_NOOP("App::Settings", "As the system"))},
            {QStringLiteral("light"), settingText(QT_TRANSLATE_NOOP("App::Settings", "Light"))},
            {QStringLiteral("dark"), settingText(QT_TRANSLATE_NOOP("App::Settings", "Dark"))}};
}

QVector<SettingChoice> caches()
{
    return {{1, settingText(QT_TRANSLATE_NOOP("App::Settings", "Keep packed in memory"))},
            {2, settingText(QT_TRANSLATE_NOOP("App::Settings", "Keep in a temporary file"))}};
}

QVector<SettingChoice> paletteMoves()
{
    return {{0, settingText(QT_TRANSLATE_NOOP("App::Settings", "Ask the next time"))},
            {1, settingText(QT_TRANSLATE_NOOP("App::Settings", "Pictures, in all palettes"))},
            {2, settingText(QT_TRANSLATE_NOOP("App::Settings", "Pictures, in that palette"))},
            {3, settingText(QT_TRANSLATE_NOOP("App::Settings", "The slots that pixels name"))}};
}

QVector<SettingChoice> backgrounds()
{
    return {{0, settingText(QT_TRANSLATE_NOOP("App::Settings", "The two colours"))},
            {1, settingText(QT_TRANSLATE_NOOP("App::Settings", "A floor with marks"))},
            {2, settingText(QT_TRANSLATE_NOOP("App::Settings", "A picture"))}};
}

QVector<SettingChoice> crosses()
{
    return {{0, settingText(QT_TRANSLATE_NOOP("App::Settings", "Small crosses"))},
            {1, settingText(QT_TRANSLATE_NOOP("App::Settings", "Large crosses"))},
            {2, settingText(QT_TRANSLATE_NOOP("App::Settings", "Pictures"))}};
}

QVector<SettingChoice> zoomTables()
{
    return {{0, settingText(QT_TRANSLATE_NOOP("App::Settings", "Fine, up to 4 times"))},
            {1, settingText(QT_TRANSLATE_NOOP("App::Settings", "Whole, up to 10 times"))}};
}

QVector<SettingChoice> zoomCentres()
{
    return {{2, settingText(QT_TRANSLATE_NOOP("App::Settings", "The pointer, by the wheel"))},
            {1, settingText(QT_TRANSLATE_NOOP("App::Settings", "The origin"))},
            {0, settingText(QT_TRANSLATE_NOOP("App::Settings", "The middle of the stage"))}};
}

QVector<SettingChoice> onionEffects()
{
    return {{0, settingText(QT_TRANSLATE_NOOP("App::Settings", "As it is"))},
            {1, settingText(QT_TRANSLATE_NOOP("App::Settings", "In shades of grey"))},
            {2, settingText(QT_TRANSLATE_NOOP("App::Settings", "Lighter"))},
            {3, settingText(QT_TRANSLATE_NOOP("App::Settings", "Darker"))}};
}

}  // namespace

const QVector<SettingPageRow>& settingPageTable()
{
    static const QVector<SettingPageRow> table{
        {"look", QT_TRANSLATE_NOOP("App::Settings", "Look")},
        {"code", QT_TRANSLATE_NOOP("App::Settings", "Code")},
        {"files", QT_TRANSLATE_NOOP("App::Settings", "Files")},
        {"stage", QT_TRANSLATE_NOOP("App::Settings", "Stage")},
    };
    return table;
}

const QVector<SettingRow>& settingTable()
{
    using Row = SettingRow;
    // clang-format off
    static const QVector<SettingRow> table{
        {"language", "look", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "&Language:"),
         QT_TRANSLATE_NOOP("App::Settings", "The language of the window. It changes at once."), 0, 0, nullptr, nullptr, languages},
        {"theme", "look", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "&Theme:"),
         QT_TRANSLATE_NOOP("App::Settings", "Light or dark colours for the whole window"), 0, 0, nullptr, nullptr, themes},
        {"show_organizer", "look", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Show the &organizer"),
         QT_TRANSLATE_NOOP("App::Settings", "A panel in which animations, sprites and sounds are put in order")},

        {"font_name", "code", Row::FontFamily, QT_TRANSLATE_NOOP("App::Settings", "&Font of code:"),
         QT_TRANSLATE_NOOP("App::Settings", "A font whose characters have one width"), 0, 0, QT_TRANSLATE_NOOP("App::Settings", "As the system")},
        {"font_size", "code", Row::Number, QT_TRANSLATE_NOOP("App::Settings", "&Size:"),
         QT_TRANSLATE_NOOP("App::Settings", "Size of the font of code"), 0, LargestFont, QT_TRANSLATE_NOOP("App::Settings", "As the system"), QT_TRANSLATE_NOOP("App::Settings", " pt")},
        {"highlightCode", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Colour code and find problems"),
         QT_TRANSLATE_NOOP("App::Settings", "Shows words, numbers and texts in colours, and lists what is wrong")},
        {"code_line_numbers", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Show &line numbers"),
         QT_TRANSLATE_NOOP("App::Settings", "At the left of the text")},
        {"code_folding_markers", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Show folding &markers"),
         QT_TRANSLATE_NOOP("App::Settings", "Marks at the left with which parts of the text are folded")},
        {"code_highlight_line", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Highlight the current line"),
         QT_TRANSLATE_NOOP("App::Settings", "Gives the line of the cursor a ground of its own")},
        {"code_highlight_blocks", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Show the &blocks around the cursor"),
         QT_TRANSLATE_NOOP("App::Settings", "Sets the part of the text in which the cursor is off from the rest")},
        {"code_paren_matching", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Show matching brac&kets"),
         QT_TRANSLATE_NOOP("App::Settings", "At a bracket, the one that belongs to it and what stands between")},
        {"code_comments_travel", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Comments above an animation go &with it"),
         QT_TRANSLATE_NOOP("App::Settings", "They are moved, sorted, copied and removed with the animation that stands directly below")},
        {"show_code_bar", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Show the &tool bar of code"),
         QT_TRANSLATE_NOOP("App::Settings", "Snippets and problems, above the text")},
        {"auto_expand_tree", "code", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Open only the present branch of the tree"),
         QT_TRANSLATE_NOOP("App::Settings", "All others close as the cursor moves through the text")},
        {"line", "code", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "Current l&ine:"),
         QT_TRANSLATE_NOOP("App::Settings", "Ground of the line with the cursor"), 0, 0, QT_TRANSLATE_NOOP("App::Settings", "As the theme")},
        {"block_range", "code", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "Block a&round the cursor:"),
         QT_TRANSLATE_NOOP("App::Settings", "Ground of the innermost block; those around it are set off from it"), 0, 0, QT_TRANSLATE_NOOP("App::Settings", "As the theme")},
        {"paren_range", "code", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "B&etween brackets:"),
         QT_TRANSLATE_NOOP("App::Settings", "Ground of what stands between two matching brackets"), 0, 0, QT_TRANSLATE_NOOP("App::Settings", "As the theme")},
        {"paren", "code", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "Matchin&g brackets:"),
         QT_TRANSLATE_NOOP("App::Settings", "What the brackets themselves are written in"), 0, 0, QT_TRANSLATE_NOOP("App::Settings", "As the theme")},

        {"recovery_seconds", "files", Row::Number, QT_TRANSLATE_NOOP("App::Settings", "&Copy unsaved work aside after:"),
         QT_TRANSLATE_NOOP("App::Settings", "The copies are offered after a crash. 0 makes none."), 0, 600,
         QT_TRANSLATE_NOOP("App::Settings", "Never"), QT_TRANSLATE_NOOP("App::Settings", " s")},
        {"enable_file_watcher", "files", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Watch for changes on disk"),
         QT_TRANSLATE_NOOP("App::Settings", "Notices when another program changes an open file")},
        {"backup_onload", "files", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Back up a project when it is opened"),
         QT_TRANSLATE_NOOP("App::Settings", "Makes a backup named Auto each time that a project is opened")},
        {"sort_file_names", "files", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Sort files that are chosen together"),
         QT_TRANSLATE_NOOP("App::Settings", "Several files chosen in one dialog come in the order of their names")},
        {"cache_type", "files", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "S&prites and sounds in work:"),
         QT_TRANSLATE_NOOP("App::Settings", "Memory is faster; a temporary file leaves memory to others. It counts from the next file that is opened."), 0, 0, nullptr, nullptr, caches},
        {"undo_megabytes", "files", Row::Number, QT_TRANSLATE_NOOP("App::Settings", "&Undo of painting, at most:"),
         QT_TRANSLATE_NOOP("App::Settings", "What the steps on a canvas may take of memory. The oldest go first; the last always stays."), SmallestUndo, LargestUndo, nullptr, QT_TRANSLATE_NOOP("App::Settings", " MB")},
        {"pal_move", "files", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "A colour that is &moved leaves:"),
         QT_TRANSLATE_NOOP("App::Settings", "What stays as it is when a colour of a palette is dragged to another slot"), 0, 0, nullptr, nullptr, paletteMoves},
        {"project_path", "files", Row::Folder, QT_TRANSLATE_NOOP("App::Settings", "&Folder of projects:"),
         QT_TRANSLATE_NOOP("App::Settings", "Where dialogs for files begin, as long as no other folder was used")},

        {"back_start", "stage", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "Colour at the &top:"),
         QT_TRANSLATE_NOOP("App::Settings", "The ground of the stage goes from this colour to the next. Rulers write in its inverse.")},
        {"back_end", "stage", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "Colour at the &bottom:"),
         QT_TRANSLATE_NOOP("App::Settings", "The ground of the stage at its lower edge")},
        {"background_type", "stage", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "Back&ground:"),
         QT_TRANSLATE_NOOP("App::Settings", "What stands on the ground, behind the sprites"), 0, 0, nullptr, nullptr, backgrounds},
        {"background_file", "stage", Row::Picture, QT_TRANSLATE_NOOP("App::Settings", "&Picture of the background:"),
         QT_TRANSLATE_NOOP("App::Settings", "Drawn behind the sprites, where the background is a picture")},
        {"background_x", "stage", Row::Number, QT_TRANSLATE_NOOP("App::Settings", "Its left &edge:"),
         QT_TRANSLATE_NOOP("App::Settings", "Where the picture begins, from the origin of the stage"), -9999, 9999, nullptr, QT_TRANSLATE_NOOP("App::Settings", " px")},
        {"background_y", "stage", Row::Number, QT_TRANSLATE_NOOP("App::Settings", "Its top e&dge:"),
         QT_TRANSLATE_NOOP("App::Settings", "Where the picture begins, from the origin of the stage"), -9999, 9999, nullptr, QT_TRANSLATE_NOOP("App::Settings", " px")},
        {"attackbox", "stage", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "&Attack boxes:"),
         QT_TRANSLATE_NOOP("App::Settings", "The colour of boxes that hit")},
        {"collisionbox", "stage", Row::Colour, QT_TRANSLATE_NOOP("App::Settings", "B&ody boxes:"),
         QT_TRANSLATE_NOOP("App::Settings", "The colour of boxes that can be hit")},
        {"box_opacity", "stage", Row::Share, QT_TRANSLATE_NOOP("App::Settings", "&Inside of boxes:"),
         QT_TRANSLATE_NOOP("App::Settings", "How much of a box hides what is behind it"), 0, 100},
        {"crosshair_type", "stage", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "C&rosses:"),
         QT_TRANSLATE_NOOP("App::Settings", "How axes are marked"), 0, 0, nullptr, nullptr, crosses},
        {"crosshair_main", "stage", Row::Picture, QT_TRANSLATE_NOOP("App::Settings", "Axis of the a&nimation:"),
         QT_TRANSLATE_NOOP("App::Settings", "Its middle stands on the axis. Without one it is the small cross.")},
        {"crosshair_secondary", "stage", Row::Picture, QT_TRANSLATE_NOOP("App::Settings", "Axis o&f the sprite:"),
         QT_TRANSLATE_NOOP("App::Settings", "Its middle stands on the axis. Without one it is the small cross.")},
        {"crosshair_extra", "stage", Row::Picture, QT_TRANSLATE_NOOP("App::Settings", "E&xtra cross:"),
         QT_TRANSLATE_NOOP("App::Settings", "Its middle stands at the place. Without one it is the small cross.")},
        {"zoom_mode", "stage", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "&Zoom:"),
         QT_TRANSLATE_NOOP("App::Settings", "The steps in which the stage grows and shrinks"), 0, 0, nullptr, nullptr, zoomTables},
        {"zoom_center", "stage", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "Zoom abo&ut:"),
         QT_TRANSLATE_NOOP("App::Settings", "The place that stays where it is"), 0, 0, nullptr, nullptr, zoomCentres},
        {"onion_effect", "stage", Row::Choice, QT_TRANSLATE_NOOP("App::Settings", "Onion s&kin:"),
         QT_TRANSLATE_NOOP("App::Settings", "How another frame is shown behind the present one"), 0, 0, nullptr, nullptr, onionEffects},
        {"onion_opacity", "stage", Row::Share, QT_TRANSLATE_NOOP("App::Settings", "Its opacit&y:"),
         QT_TRANSLATE_NOOP("App::Settings", "How much of the other frame is seen"), 0, 100},
        {"confirm_delete", "stage", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Ask before animations, frames and sprites are de&leted"),
         QT_TRANSLATE_NOOP("App::Settings", "Undo brings them back as well")},
        {"sprite_over_guides", "stage", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "&Sprites hide guides"),
         QT_TRANSLATE_NOOP("App::Settings", "Guides are drawn behind sprites, and the mouse finds sprites first")},
        {"contact_over_cross", "stage", Row::Switch, QT_TRANSLATE_NOOP("App::Settings", "Boxes &hide crosses"),
         QT_TRANSLATE_NOOP("App::Settings", "Boxes are drawn over crosses, and the mouse finds boxes first")},
    };
    // clang-format on
    return table;
}

QString settingText(const char* source)
{
    return source ? QCoreApplication::translate("App::Settings", source) : QString();
}

}  // namespace App
