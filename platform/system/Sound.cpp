// SPDX-License-Identifier: Apache-2.0
#include "Sound.h"

#include <QApplication>

namespace platform {
inline namespace system {

namespace {

std::function<void()> &listener()
{
    static std::function<void()> current;
    return current;
}

std::uint64_t count = 0;

} // namespace

void beep()
{
    ++count;
    QApplication::beep();
    if (listener())
        listener()();
}

void setBeepListener(std::function<void()> replacement)
{
    listener() = std::move(replacement);
}

std::uint64_t beepCount()
{
    return count;
}

} // namespace system
} // namespace platform
