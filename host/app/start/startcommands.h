#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QPointer>

namespace App {

class LessonView;
struct WindowServices;

/// What a person begins with who has nothing yet: the sample game and the first lesson.
class StartCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit StartCommands(const WindowServices& services);

    QVector<ActionRow> actions() override;

    /// Opens the person's copy of the sample game, which is made if it is not there.
    void openSample();

    /// Shows the lesson beside the window.
    void showLesson();

private:
    const WindowServices& m_services;
    QPointer<LessonView> m_lesson;
};

}  // namespace App
