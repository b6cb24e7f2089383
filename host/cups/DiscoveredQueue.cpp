// SPDX-License-Identifier: Apache-2.0
#include "DiscoveredQueue.h"

namespace host {

std::optional<CupsError> ensureQueue(CupsConnection &connection, const Destination &destination)
{
    if (!destination.isDiscovered)
        return std::nullopt;
    const auto add = [&](ipp_t *request, ipp_tag_t tag, const char *name, const QString &value) {
        ippAddString(request, IPP_TAG_PRINTER, tag, name, nullptr, value.toUtf8().constData());
    };
    IppPointer request(ippNewRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    add(request.get(), IPP_TAG_URI, "device-uri", destination.deviceUri);
    add(request.get(), IPP_TAG_NAME, "printer-name", destination.queue);
    add(request.get(), IPP_TAG_TEXT, "printer-info", destination.description);
    add(request.get(), IPP_TAG_TEXT, "printer-location", destination.location);
    const Result<IppPointer, CupsError> answer = connection.exchange(std::move(request), "/");
    return answer ? std::nullopt : std::optional(answer.error());
}

} // namespace host
