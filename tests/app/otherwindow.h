#pragma once

#include <QByteArray>

/// A window of another program on this display, as a person finds and uses it. Without an X server
/// there is none.
class OtherWindow
{
public:
    OtherWindow();
    ~OtherWindow();

    /// Looks for the window with a title; false if it is not there, or not shown.
    bool find(const QByteArray& title);
    quintptr id() const { return m_window; }

    /// A key, by its name in X, goes down or up.
    void press(const char* key) { send(key, true); }
    void release(const char* key) { send(key, false); }

private:
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    void send(const char* key, bool isDown);

    void* m_display;
    quintptr m_window = 0;
};
