#include "app/actions/actionrow.h"

namespace App {

QList<QKeySequence> FirstKeys::keys() const
{
    if (m_portable) {
        return QKeySequence::listFromString(QLatin1String(m_portable), QKeySequence::PortableText);
    }
    return m_standard == QKeySequence::UnknownKey ? QList<QKeySequence>()
                                                  : QKeySequence::keyBindings(m_standard);
}

const QVector<MenuRow>& menuTable()
{
    static const QVector<MenuRow> table{
        {"file", QT_TRANSLATE_NOOP("App::Menus", "&File"),
         "new+ open save+ all backup text+ close quit"},
        {"new", QT_TRANSLATE_NOOP("App::Menus", "&New"), "all", "file.new"},
        {"edit", QT_TRANSLATE_NOOP("App::Menus", "&Edit"), "undo clipboard find text"},
        {"code", QT_TRANSLATE_NOOP("App::Menus", "&Code"), "write"},
        {"anim", QT_TRANSLATE_NOOP("App::Menus", "&Animation"), "list play parts order"},
        {"frame", QT_TRANSLATE_NOOP("App::Menus", "&Frame"), "all", "anim.parts"},
        {"boxes", QT_TRANSLATE_NOOP("App::Menus", "Contact &boxes"), "all", "anim.parts"},
        {"spr", QT_TRANSLATE_NOOP("App::Menus", "Sp&rites"), "files image+ parts list follow"},
        {"paint", QT_TRANSLATE_NOOP("App::Menus", "&Painting"), "tools colours all", "spr.parts"},
        {"layers", QT_TRANSLATE_NOOP("App::Menus", "&Layers"), "all", "spr.parts"},
        {"select", QT_TRANSLATE_NOOP("App::Menus", "Sele&ction"), "all", "spr.parts"},
        {"pal", QT_TRANSLATE_NOOP("App::Menus", "Pa&lettes"), "list files colours sprites sight"},
        {"sight", QT_TRANSLATE_NOOP("App::Menus", "Colour bl&indness"), "all", "pal.sight"},
        {"snd", QT_TRANSLATE_NOOP("App::Menus", "S&ounds"), "files list sample play"},
        {"view", QT_TRANSLATE_NOOP("App::Menus", "&View"), "panels+ texts zoom stage"},
        {"tools", QT_TRANSLATE_NOOP("App::Menus", "&Tools"), "run find settings"},
        {"help", QT_TRANSLATE_NOOP("App::Menus", "&Help"), "start keys"},
    };
    return table;
}

}  // namespace App
