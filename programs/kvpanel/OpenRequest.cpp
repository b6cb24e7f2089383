// SPDX-License-Identifier: Apache-2.0
#include "OpenRequest.h"

#include <protocol/PDEPlugIn.h>

#include <string_view>

namespace {

std::vector<std::pair<QString, QString>> marksMember(const DriverRequest &request)
{
    std::vector<std::pair<QString, QString>> marks;
    if (!request.has("marks"))
        return marks;
    for (const QJsonValue mark : request.list("marks")) {
        const QJsonArray pair = mark.toArray();
        if (pair.size() != 2 || !pair[0].isString() || !pair[1].isString())
            throw request.illTyped("marks", "a list of [keyword, choice]");
        marks.emplace_back(pair[0].toString(), pair[1].toString());
    }
    return marks;
}

std::array<std::optional<std::int32_t>, 3> systemVersionMember(const DriverRequest &request)
{
    const QJsonArray numbers = request.list("systemVersion");
    std::array<std::optional<std::int32_t>, 3> version;
    const RequestError error =
        request.illTyped("systemVersion", "[major, minor, bugfix], each an integer or null");
    if (static_cast<std::size_t>(numbers.size()) != version.size())
        throw error;
    for (std::size_t index = 0; index < version.size(); ++index) {
        const QJsonValue number = numbers[static_cast<qsizetype>(index)];
        version[index] = DriverRequest::toInteger(number);
        if (!version[index] && !number.isNull())
            throw error;
    }
    return version;
}

} // namespace

std::optional<platform::Paper> paperMember(const DriverRequest &request)
{
    const std::optional<DriverRequest> paper = request.objectOrNull("paper");
    if (!paper)
        return std::nullopt;
    return platform::Paper{paper->textOrNull("name"), paper->number("height"),
                           paper->integer("paperStatus", 0), paper->integer("nameStatus", 0),
                           paper->integer("heightStatus", 0)};
}

OpenRequest::OpenRequest(const DriverRequest &request)
    : ppd(request.path("ppd"))
    , markDefaults(request.flag("markDefaults", true))
    , marks(marksMember(request))
    , printSettings(request.flag("printSettings", true))
    , canResize(request.flag("canResize", true))
    , language(request.text("language", QStringLiteral("en")))
    , type(request.text("type", PDEPrintDialogType))
{
    if (request.has("paper"))
        paper = paperMember(request);
    if (request.has("ticket"))
        ticket = request.textOrNull("ticket");
    if (request.has("deviceURI"))
        deviceURI = request.textOrNull("deviceURI");
    if (request.has("systemVersion"))
        systemVersion = systemVersionMember(request);
    if (request.has("keyWindowHeight"))
        keyWindowHeight = request.numberOrNull("keyWindowHeight");
}

platform::SystemVersionQuery OpenRequest::systemVersionQuery() const
{
    return [version = systemVersion](const char *selector) -> std::optional<std::int32_t> {
        constexpr std::array<std::string_view, 3> selectors = {"sys1", "sys2", "sys3"};
        for (std::size_t index = 0; index < selectors.size(); ++index) {
            if (selectors[index] == selector)
                return version[index];
        }
        return std::nullopt;
    };
}
