// SPDX-License-Identifier: Apache-2.0
#include "WindowWatch.h"

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace bench {

void WindowWatch::Free::operator()(void *memory) const
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc): xcb hands out what free() takes
}

WindowWatch::WindowWatch(const QByteArray &display)
    : m_connection(xcb_connect(display.constData(), nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        return;
    const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_root = screen->root;
    m_screen = QRect(0, 0, screen->width_in_pixels, screen->height_in_pixels);
    const xcb_query_extension_reply_t *const damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
    if (!damage || damage->present == 0)
        return;
    m_damageEvent = damage->first_event;
    const Owned<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
    const uint32_t events[] = {XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, events);
    // Of the root window, so that it covers a window from its very first drawing on.
    xcb_damage_create(m_connection, xcb_generate_id(m_connection), m_root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(m_connection);
    m_hasDamage = version != nullptr;
}

WindowWatch::~WindowWatch()
{
    xcb_disconnect(m_connection);
}

void WindowWatch::takeEvent(const void *event)
{
    const unsigned char type = static_cast<const xcb_generic_event_t *>(event)->response_type & 0x7F;
    if (type == m_damageEvent + XCB_DAMAGE_NOTIFY) {
        const auto *const drawn = static_cast<const xcb_damage_notify_event_t *>(event);
        const xcb_rectangle_t &area = drawn->area;
        m_isDrawn = m_isDrawn || isShown(QRect(area.x, area.y, area.width, area.height));
    } else if (type == XCB_CREATE_NOTIFY) {
        const auto *const made = static_cast<const xcb_create_notify_event_t *>(event);
        m_windows[made->window] = {QRect(made->x, made->y, made->width, made->height),
                                   made->override_redirect != 0, false};
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        const auto *const moved = static_cast<const xcb_configure_notify_event_t *>(event);
        m_windows[moved->window].area = QRect(moved->x, moved->y, moved->width, moved->height);
    } else if (type == XCB_MAP_NOTIFY) {
        m_windows[static_cast<const xcb_map_notify_event_t *>(event)->window].isMapped = true;
    } else if (type == XCB_UNMAP_NOTIFY) {
        m_windows[static_cast<const xcb_unmap_notify_event_t *>(event)->window].isMapped = false;
    } else if (type == XCB_DESTROY_NOTIFY) {
        m_windows.erase(static_cast<const xcb_destroy_notify_event_t *>(event)->window);
    }
}

bool WindowWatch::processEvents(Clock::time_point end)
{
    bool hasAny = false;
    for (;;) {
        while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            takeEvent(event.get());
            hasAny = true;
        }
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (hasAny || rest <= 0 || xcb_connection_has_error(m_connection) != 0)
            return hasAny;
        pollfd socket{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        poll(&socket, 1, static_cast<int>(rest));
    }
}

std::optional<QRect> WindowWatch::shownWindow() const
{
    constexpr int smallest = 100;
    for (const auto &[id, window] : m_windows) {
        if (window.isMapped && !window.isFrameless && window.area.width() >= smallest &&
            window.area.height() >= smallest)
            return window.area & m_screen;
    }
    return std::nullopt;
}

bool WindowWatch::isShown(const QRect &area) const
{
    const std::optional<QRect> window = shownWindow();
    return window && window->intersects(area);
}

QImage WindowWatch::grab(const QRect &area)
{
    const Owned<xcb_get_image_reply_t> reply(xcb_get_image_reply(
        m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, static_cast<int16_t>(area.x()),
                      static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()),
                      static_cast<uint16_t>(area.height()), ~0U),
        nullptr));
    if (!reply)
        return {};
    QImage image(area.size(), QImage::Format_RGB32);
    const auto size = static_cast<std::size_t>(xcb_get_image_data_length(reply.get()));
    if (size != static_cast<std::size_t>(image.sizeInBytes()))
        return {};
    std::memcpy(image.bits(), xcb_get_image_data(reply.get()), size);
    return image;
}

QImage WindowWatch::picture()
{
    processEvents(Clock::now());
    const std::optional<QRect> window = shownWindow();
    return window ? grab(*window) : QImage();
}

std::optional<WindowWatch::Painting>
WindowWatch::waitForPainting(Clock::time_point end, const std::function<bool(const QImage &)> &accept)
{
    while (processEvents(end)) {
        const Clock::time_point now = Clock::now();
        const std::optional<QRect> window = shownWindow();
        if (!m_isDrawn || !window)
            continue;
        m_isDrawn = false;
        QImage image = grab(*window);
        if (!image.isNull() && accept(image))
            return Painting{now, std::move(image)};
    }
    return std::nullopt;
}

bool WindowWatch::waitForEmptyScreen(Clock::time_point end)
{
    processEvents(Clock::now());
    while (shownWindow()) {
        if (!processEvents(end))
            return false;
    }
    m_isDrawn = false;
    return true;
}

bool hasContent(const QImage &picture)
{
    const auto *const pixels = reinterpret_cast<const QRgb *>(picture.constBits());
    const qsizetype count = static_cast<qsizetype>(picture.width()) * picture.height();
    constexpr QRgb colour = 0xFFFFFF;
    return std::any_of(pixels, pixels + count, [&](QRgb pixel) { return ((pixel ^ *pixels) & colour) != 0; });
}

double difference(const QImage &one, const QImage &other)
{
    if (one.isNull() || one.size() != other.size())
        return 1.0;
    // The labels' content below the panel follows right after the first painting.
    const int height = one.height() * 3 / 5;
    qint64 different = 0;
    for (int y = 0; y < height; ++y) {
        const auto *const left = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *const right = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x)
            different += ((left[x] ^ right[x]) & 0xFFFFFF) != 0 ? 1 : 0;
    }
    return static_cast<double>(different) / (static_cast<double>(one.width()) * height);
}

} // namespace bench
