// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRect>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

struct xcb_connection_t;

namespace bench {

using Clock = std::chrono::steady_clock;

/// Watches, as a client of the X server, what windows other programs open and when something is drawn
/// into them. The same way for every program, whatever it is written with, and without any change to it;
/// nothing is asked of the server until it has reported a drawing, so that watching costs no time.
class WindowWatch {
public:
    /// A window's content, and when the drawing was reported that led to it.
    struct Painting {
        Clock::time_point time;
        QImage picture;
    };

    /// Connects to the display; isValid() returns whether that succeeded.
    explicit WindowWatch(const QByteArray &display);
    ~WindowWatch();
    WindowWatch(const WindowWatch &) = delete;
    WindowWatch &operator=(const WindowWatch &) = delete;

    bool isValid() const { return m_hasDamage; }

    /// Waits until a window shows a picture that is accepted; absent when none did until then. Windows
    /// smaller than 100 pixels and those without a frame (menus) do not count.
    std::optional<Painting> waitForPainting(Clock::time_point end,
                                            const std::function<bool(const QImage &)> &accept);
    /// Waits until no window is left and forgets all drawing; false when one remains.
    bool waitForEmptyScreen(Clock::time_point end);
    /// What the window shows now; a null image without a window.
    QImage picture();

private:
    struct Free {
        void operator()(void *memory) const;
    };
    template<typename Type>
    using Owned = std::unique_ptr<Type, Free>;

    /// Processes all pending events; false when none arrived until then.
    bool processEvents(Clock::time_point end);
    void takeEvent(const void *event);
    bool isShown(const QRect &area) const;
    std::optional<QRect> shownWindow() const;
    QImage grab(const QRect &area);

    struct Window {
        QRect area;
        bool isFrameless = false;
        bool isMapped = false;
    };

    xcb_connection_t *m_connection = nullptr;
    unsigned m_root = 0;
    QRect m_screen;
    bool m_hasDamage = false;
    unsigned char m_damageEvent = 0;
    std::map<unsigned, Window> m_windows;
    bool m_isDrawn = false;
};

/// Whether anything is drawn: more than one colour.
bool hasContent(const QImage &picture);
/// The share of pixels that differ in the upper three fifths, where the panel is, 0 to 1; 1 for pictures of
/// different size.
double difference(const QImage &one, const QImage &other);

} // namespace bench
