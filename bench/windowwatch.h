#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <memory>
#include <optional>

/// Sees windows appear on an X server without a window manager, and talks to them as one would.
class WindowWatch
{
public:
    /// Ends this program with a complaint when there is no X server.
    WindowWatch();

    /// Drops what happened so far.
    void forget();
    /// The next window that is shown; splash screens and menus are none.
    std::optional<xcb_window_t> nextWindow(std::chrono::milliseconds patience);
    void askToClose(xcb_window_t window);

    /// Asks a window's program for a sign of life; its event loop answers in its turn.
    void ping(xcb_window_t window);
    /// Whether an answer has come since the last call.
    bool hasAnswered();

private:
    xcb_atom_t atom(const char *name);
    bool isOrdinary(const xcb_map_notify_event_t &event);
    void tell(xcb_window_t window, xcb_atom_t protocol);

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> m_connection;
    xcb_window_t m_root = 0;
    xcb_atom_t m_protocols = 0;
    xcb_atom_t m_deleteWindow = 0;
    xcb_atom_t m_ping = 0;
    xcb_atom_t m_windowType = 0;
    xcb_atom_t m_splash = 0;
};
