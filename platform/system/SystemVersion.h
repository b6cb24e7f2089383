// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/PrintingServices.h>

#include <functional>

/// The system version that the host declares, so that a bundle can reject a system that is too old for it.

namespace platform {
inline namespace system {

/// Returns the number for a selector ("sys1" major, "sys2" minor, "sys3" bug-fix); std::nullopt if the query
/// fails.
using SystemVersionQuery = std::function<std::optional<std::int32_t>(const char *selector)>;

/// Replaces the query; an empty function restores the default, version 11.0.0.
void setSystemVersionQuery(SystemVersionQuery query);

} // namespace system
} // namespace platform

/// Returns the number for the selector in number. If the query fails, returns platform::keyNotFound and
/// leaves number unchanged.
OSStatus Gestalt(const char *selector, std::int32_t *number);
