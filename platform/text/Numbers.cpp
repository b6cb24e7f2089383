// SPDX-License-Identifier: Apache-2.0
#include "Numbers.h"

#include <QChar>

#include <limits>

namespace platform {
inline namespace text {

std::int32_t integerValue(QStringView text)
{
    constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t smallest = std::numeric_limits<std::int32_t>::min();

    auto position = text.begin();
    while (position != text.end() && position->isSpace())
        ++position;
    bool negative = false;
    if (position != text.end() && (*position == u'-' || *position == u'+'))
        negative = *position++ == u'-';

    std::int64_t magnitude = 0;
    for (; position != text.end() && *position >= u'0' && *position <= u'9'; ++position) {
        magnitude = magnitude * 10 + (position->unicode() - u'0');
        if (magnitude > largest + 1)
            return static_cast<std::int32_t>(negative ? smallest : largest);
    }
    const std::int64_t value = negative ? -magnitude : magnitude;
    return static_cast<std::int32_t>(value > largest ? largest : value);
}

} // namespace text
} // namespace platform
