// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <QString>

#include <optional>

/// Optional interface of a panel, version 1: explains why the user cannot change an option at the moment.
class KV_EXPORT PDEControlReasons_v1 {
public:
    virtual ~PDEControlReasons_v1() = default;

    /// Returns the reason, as one sentence in the user's language, why the control of the option with this
    /// keyword is disabled. Absent if it is enabled, if the reason is not known, or if the option does not
    /// belong to the panel. Changes nothing.
    virtual std::optional<QString> reasonForDisabled(const QString &keyword) const = 0;
};
