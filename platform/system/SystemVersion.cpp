// SPDX-License-Identifier: Apache-2.0
#include "SystemVersion.h"

#include <string_view>

namespace platform {
inline namespace system {

namespace {

std::optional<std::int32_t> declaredVersion(const char *selector)
{
    const std::string_view name(selector);
    if (name == "sys1")
        return 11;
    if (name == "sys2" || name == "sys3")
        return 0;
    return std::nullopt;
}

SystemVersionQuery &currentQuery()
{
    static SystemVersionQuery query = declaredVersion;
    return query;
}

} // namespace

void setSystemVersionQuery(SystemVersionQuery query)
{
    currentQuery() = query ? std::move(query) : SystemVersionQuery(declaredVersion);
}

} // namespace system
} // namespace platform

OSStatus Gestalt(const char *selector, std::int32_t *number)
{
    const std::optional<std::int32_t> answer = platform::currentQuery()(selector);
    if (!answer)
        return platform::keyNotFound;
    *number = *answer;
    return platform::noError;
}
