#include "windowwatch.h"

#include "contest.h"

#include <QString>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <poll.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> owned(T *reply)
{
    return {reply, &std::free};
}

using Event = Reply<xcb_generic_event_t>;

int kind(const Event &event)
{
    return event->response_type & ~0x80;
}

} // namespace

WindowWatch::WindowWatch() : m_connection(xcb_connect(nullptr, nullptr), &xcb_disconnect)
{
    if (xcb_connection_has_error(m_connection.get()))
        giveUp(u"there is no X server at DISPLAY"_s);
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
    // Answers to pings are addressed to whoever listens to the root itself.
    const uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection.get(), m_root, XCB_CW_EVENT_MASK, &wanted);
    m_protocols = atom("WM_PROTOCOLS");
    m_deleteWindow = atom("WM_DELETE_WINDOW");
    m_ping = atom("_NET_WM_PING");
    m_windowType = atom("_NET_WM_WINDOW_TYPE");
    m_splash = atom("_NET_WM_WINDOW_TYPE_SPLASH");
}

xcb_atom_t WindowWatch::atom(const char *name)
{
    const auto cookie = xcb_intern_atom(m_connection.get(), 0, static_cast<uint16_t>(std::strlen(name)), name);
    const auto reply = owned(xcb_intern_atom_reply(m_connection.get(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void WindowWatch::forget()
{
    while (owned(xcb_poll_for_event(m_connection.get())))
        continue;
}

bool WindowWatch::isOrdinary(const xcb_map_notify_event_t &event)
{
    if (event.event != m_root || event.override_redirect)
        return false;
    const auto cookie = xcb_get_property(m_connection.get(), 0, event.window, m_windowType, XCB_ATOM_ATOM, 0, 16);
    const auto types = owned(xcb_get_property_reply(m_connection.get(), cookie, nullptr));
    if (!types)
        return false;
    const auto *first = static_cast<const xcb_atom_t *>(xcb_get_property_value(types.get()));
    const auto *last = first + static_cast<size_t>(xcb_get_property_value_length(types.get())) / sizeof(xcb_atom_t);
    return std::find(first, last, m_splash) == last;
}

std::optional<xcb_window_t> WindowWatch::nextWindow(std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < end) {
        if (const auto event = owned(xcb_poll_for_event(m_connection.get()))) {
            const auto *shown = reinterpret_cast<const xcb_map_notify_event_t *>(event.get());
            if (kind(event) == XCB_MAP_NOTIFY && isOrdinary(*shown))
                return shown->window;
            continue;
        }
        pollfd waiting{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
        ::poll(&waiting, 1, 100);
    }
    return std::nullopt;
}

void WindowWatch::tell(xcb_window_t window, xcb_atom_t protocol)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = m_protocols;
    message.data.data32[0] = protocol;
    message.data.data32[1] = XCB_CURRENT_TIME;
    message.data.data32[2] = window;
    xcb_send_event(m_connection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&message));
    xcb_flush(m_connection.get());
}

void WindowWatch::askToClose(xcb_window_t window)
{
    tell(window, m_deleteWindow);
}

void WindowWatch::ping(xcb_window_t window)
{
    tell(window, m_ping);
}

bool WindowWatch::hasAnswered()
{
    bool answered = false;
    while (const auto event = owned(xcb_poll_for_event(m_connection.get()))) {
        const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
        answered = answered || (kind(event) == XCB_CLIENT_MESSAGE && message->data.data32[0] == m_ping);
    }
    return answered;
}
