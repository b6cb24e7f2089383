// SPDX-License-Identifier: Apache-2.0
#include "DiscoveredQueue.h"

#include "DestinationQuery.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <array>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

struct DiscoveredQueueText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::queues::DiscoveredQueue)
};

/// The interval at which the server is queried whether it has created the queue.
constexpr std::chrono::milliseconds pauseBetweenLooks{50};

struct DestinationsDelete {
    void operator()(cups_dest_t *dest) const { cupsFreeDests(1, dest); }
};

/// Printers announce themselves under a service name, "ipps://Labels._ipps._tcp.local/", whose host and port
/// must be resolved.
bool isAnnouncedName(const QByteArray &uri)
{
    return uri.contains("._tcp");
}

/// Returns the printer's current URI; no value if it is no longer on the network. Print servers could resolve
/// the service name themselves, but cupsd 2.4 crashes later if it has done so.
std::optional<QByteArray> lookUp(const Destination &destination, BackgroundTask &task,
                                 std::chrono::milliseconds time)
{
    const QByteArray announced = destination.deviceUri.toUtf8();
    if (!isAnnouncedName(announced))
        return announced;
    cups_dest_t *added = nullptr;
    cupsAddDest(destination.queue.toUtf8().constData(), nullptr, 0, &added);
    const std::unique_ptr<cups_dest_t, DestinationsDelete> dest(added);
    dest->num_options = cupsAddOption("device-uri", announced.constData(), dest->num_options, &dest->options);
    // Replaces the service name in the option by the resolved URI; no connection is made.
    std::array<char, HTTP_MAX_URI> resource = {};
    const HttpPointer http(cupsConnectDest(dest.get(), CUPS_DEST_FLAGS_DEVICE | CUPS_DEST_FLAGS_UNCONNECTED,
                                           static_cast<int>(time.count()), task.cancelFlag(), resource.data(),
                                           resource.size(), nullptr, nullptr));
    const QByteArray found = cupsGetOption("device-uri", dest->num_options, dest->options);
    return http && !isAnnouncedName(found) ? std::optional(found) : std::nullopt;
}

IppPointer creationRequest(const Destination &destination, const QByteArray &deviceUri)
{
    IppPointer request(ippNewRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER));
    const auto add = [&](ipp_tag_t tag, const char *name, const QByteArray &value) {
        ippAddString(request.get(), IPP_TAG_PRINTER, tag, name, nullptr, value.constData());
    };
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    add(IPP_TAG_URI, "device-uri", deviceUri);
    add(IPP_TAG_NAME, "printer-name", destination.queue.toUtf8());
    add(IPP_TAG_TEXT, "printer-info", destination.description.toUtf8());
    add(IPP_TAG_TEXT, "printer-location", destination.location.toUtf8());
    return request;
}

/// Returns whether the server has created the queue completely; before that, it reads the printer's
/// capabilities.
Result<bool, CupsError> isCreated(CupsConnection &connection, const QString &queue)
{
    const Result<Destination, CupsError> now = queryDestination(connection, queue, std::nullopt);
    if (!now)
        return now.error();
    return now.value().state != QueueState::Unknown;
}

Result<void, CupsError> waitUntilCreated(CupsConnection &connection, const QString &queue,
                                         BackgroundTask &task, std::chrono::milliseconds time)
{
    const QDeadlineTimer deadline(time);
    for (;; task.pause(pauseBetweenLooks)) {
        const Result<bool, CupsError> made = isCreated(connection, queue);
        if (!made)
            return made.error();
        if (made.value())
            return {};
        if (deadline.hasExpired())
            return CupsError{
                CupsErrorKind::NotFound,
                DiscoveredQueueText::tr("The print server \"%1\" cannot reach the printer \"%2\".")
                    .arg(connection.server().displayName(), queue)};
    }
}

} // namespace

Result<void, CupsError> ensureQueue(CupsConnection &connection, const Destination &destination,
                                    BackgroundTask &task,
                                    const std::optional<std::chrono::milliseconds> &time)
{
    if (!destination.isDiscovered)
        return {};
    const std::chrono::milliseconds printersTime = time.value_or(connection.server().timeout);
    const Result<bool, CupsError> made = isCreated(connection, destination.queue);
    if (made && made.value())
        return {};
    if (!made && made.error().kind != CupsErrorKind::NotFound)
        return made.error();
    if (!made) {
        const std::optional<QByteArray> deviceUri = lookUp(destination, task, printersTime);
        if (!deviceUri && task.isCanceled())
            return connection.noAnswer();
        if (!deviceUri)
            return CupsError{CupsErrorKind::NotFound,
                             DiscoveredQueueText::tr("The printer \"%1\" is no longer on the network.")
                                 .arg(destination.queue)};
        const Result<IppPointer, CupsError> answer =
            connection.exchange(creationRequest(destination, *deviceUri), "/");
        // Another program may have requested the same queue at the same time; its queue can be used.
        if (!answer && !isCreated(connection, destination.queue))
            return answer.error();
    }
    return waitUntilCreated(connection, destination.queue, task, printersTime);
}

} // namespace queues
} // namespace cups
} // namespace host
