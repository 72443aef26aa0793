#include "app/look/language.h"

#include <QEvent>
#include <QObject>

namespace App {

namespace {

class Follower final : public QObject
{
public:
    Follower(QObject* owner, std::function<void()> giveTexts)
        : QObject(owner), m_giveTexts(std::move(giveTexts))
    {
        owner->installEventFilter(this);
        m_giveTexts();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            m_giveTexts();
        }
        return false;
    }

private:
    std::function<void()> m_giveTexts;
};

}  // namespace

void followLanguage(QObject* owner, std::function<void()> giveTexts)
{
    new Follower(owner, std::move(giveTexts));
}

}  // namespace App
