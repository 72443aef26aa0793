#pragma once

#include <QMenu>

namespace App {

class Jumps;

/// The menu of the game folders that were opened last.
class RecentMenu : public QMenu
{
    Q_OBJECT

public:
    RecentMenu(Jumps* jumps, QWidget* parent);

private:
    void fill();

    Jumps* m_jumps;
};

}  // namespace App
