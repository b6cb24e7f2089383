// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/PrintingServices.h>

#include <functional>

/// The version that the host declares for the system, so that a bundle can refuse a system that is
/// too old for it.

namespace platform {
inline namespace system {

/// Answers the number for a selector ("sys1" major, "sys2" minor, "sys3" bug-fix), or nothing when
/// that query fails.
using SystemVersionQuery = std::function<std::optional<std::int32_t>(const char *selector)>;

/// Replaces the query; an empty one brings back the default, version 11.0.0.
void setSystemVersionQuery(SystemVersionQuery query);

} // namespace system
} // namespace platform

/// The number for the selector; platform::keyNotFound, leaving the number untouched, when the query fails.
OSStatus Gestalt(const char *selector, std::int32_t *number);
