// SPDX-License-Identifier: Apache-2.0
#include "JobHold.h"

#include <algorithm>
#include <array>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

constexpr const char *holdName = "job-hold-until";
const QByteArray endlessHold = "indefinite";
const QByteArray noHold = "no-hold";

bool isHold(const JobOption &option)
{
    return option.name == holdName && option.isSent;
}

Result<IppPointer, CupsError> askQueue(CupsConnection &connection, const QString &queue)
{
    constexpr std::array wanted = {"job-hold-until-default", "job-hold-until-supported",
                                   "operations-supported"};
    IppPointer request = connection.newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    return connection.exchange(std::move(request), queueResource(queue));
}

/// Returns whether jobs can be held indefinitely and released.
bool canHold(ipp_t *queue)
{
    ipp_attribute_t *const holds = ippFindAttribute(queue, "job-hold-until-supported", IPP_TAG_ZERO);
    ipp_attribute_t *const operations = ippFindAttribute(queue, "operations-supported", IPP_TAG_ENUM);
    return ippContainsString(holds, endlessHold.constData()) &&
           ippContainsInteger(operations, IPP_OP_HOLD_JOB) &&
           ippContainsInteger(operations, IPP_OP_RELEASE_JOB);
}

} // namespace

Result<JobHold, CupsError> JobHold::forTicket(CupsConnection &connection, const JobTicket &ticket)
{
    JobHold hold;
    const Result<IppPointer, CupsError> queue = askQueue(connection, ticket.destination.queue);
    if (!queue)
        return queue.error();
    hold.m_isNeeded = canHold(queue.value().get());
    const auto chosen = std::ranges::find_if(ticket.options, isHold);
    const char *const usual = ippGetString(
        ippFindAttribute(queue.value().get(), "job-hold-until-default", IPP_TAG_ZERO), 0, nullptr);
    if (chosen != ticket.options.end())
        hold.m_requestedHold = chosen->value;
    else if (usual)
        hold.m_requestedHold = usual;
    return hold;
}

std::vector<JobOption> JobHold::optionsForCreation(const JobTicket &ticket) const
{
    std::vector<JobOption> options = ticket.options;
    if (!m_isNeeded)
        return options;
    std::erase_if(options, isHold);
    options.push_back({holdName, endlessHold, Origin::You, true});
    return options;
}

Result<void, CupsError> JobHold::end(CupsConnection &connection, const QString &queue, int jobId) const
{
    if (!m_isNeeded || m_requestedHold == endlessHold)
        return {};
    IppPointer request =
        connection.newRequest(m_requestedHold == noHold ? IPP_OP_RELEASE_JOB : IPP_OP_HOLD_JOB, queue, jobId);
    // RFC 8011: a time of day is of type name, not keyword.
    if (m_requestedHold != noHold)
        ippAddString(request.get(), IPP_TAG_OPERATION,
                     m_requestedHold.contains(':') ? IPP_TAG_NAME : IPP_TAG_KEYWORD, holdName, nullptr,
                     m_requestedHold.constData());
    return connection.exchangeUncancelable(std::move(request), "/jobs").withoutValue();
}

bool JobHold::isStillOn(const std::optional<QString> &heldUntil) const
{
    return m_isNeeded && m_requestedHold != endlessHold && heldUntil == QLatin1String(endlessHold);
}

} // namespace jobs
} // namespace cups
} // namespace host
