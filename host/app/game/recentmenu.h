#pragma once

#include <QMenu>

namespace App {

class Jumps;

/// The menu of recently opened game folders.
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
