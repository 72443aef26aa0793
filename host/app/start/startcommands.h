#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QPointer>

namespace App {

class LessonView;
struct WindowServices;

/// First steps for a new user: the sample game and the first lesson.
class StartCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window.
    explicit StartCommands(const WindowServices& services);

    QVector<ActionRow> actions() override;

    /// Opens the user's copy of the sample game, creating it if it does not exist.
    void openSample();

    /// Shows the lesson beside the window.
    void showLesson();

private:
    const WindowServices& m_services;
    QPointer<LessonView> m_lesson;
};

}  // namespace App
