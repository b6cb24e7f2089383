// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DriverRequest.h"

#include <platform/PrintingServices.h>
#include <platform/SystemVersion.h>

#include <QString>

#include <array>
#include <optional>
#include <utility>
#include <vector>

/// A request's "paper": a paper, or nothing for a page format without one.
std::optional<platform::Paper> paperMember(const DriverRequest &request);

/// Everything that an "open" request says, checked before anything is opened.
struct OpenRequest {
    explicit OpenRequest(const DriverRequest &request);

    /// The members of the request, named as in the protocol.
    QString ppd;
    bool markDefaults = true;
    std::vector<std::pair<QString, QString>> marks;
    std::optional<platform::Paper> paper;
    std::optional<QString> ticket;
    bool printSettings = true;
    std::optional<QString> deviceURI;
    /// Major, minor and bug-fix number; nothing for a query that fails.
    std::array<std::optional<std::int32_t>, 3> systemVersion{11, 0, 0};
    std::optional<double> keyWindowHeight;
    bool canResize = true;
    QString language;
    QString type;

    /// Answers the system version's selectors.
    platform::SystemVersionQuery systemVersionQuery() const;
};
