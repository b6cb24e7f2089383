// SPDX-License-Identifier: Apache-2.0
#include "KeyWindow.h"

#include <QApplication>
#include <QWidget>

namespace platform {
inline namespace controls {

namespace {

std::function<std::optional<double>()> &query()
{
    static std::function<std::optional<double>()> current;
    return current;
}

} // namespace

std::optional<double> keyWindowFrameHeight()
{
    if (query())
        return query()();
    if (const QWidget *const window = QApplication::activeWindow())
        return window->frameGeometry().height();
    return std::nullopt;
}

void setKeyWindowQuery(std::function<std::optional<double>()> replacement)
{
    query() = std::move(replacement);
}

} // namespace controls
} // namespace platform
