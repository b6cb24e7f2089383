// SPDX-License-Identifier: Apache-2.0
#include "DestinationQuery.h"

#include "LpOptions.h"

#include <algorithm>
#include <array>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

constexpr std::array requestedAttributes = {
    "device-uri",
    "member-names",
    "printer-defaults",
    "printer-info",
    "printer-location",
    "printer-name",
    "printer-is-accepting-jobs",
    "printer-is-temporary",
    "printer-make-and-model",
    "printer-state",
    "printer-state-message",
    "printer-state-reasons",
    "printer-type",
    "job-sheets-default",
    "printer-config-change-time",
};

constexpr std::pair<const char *, QString Destination::*> textAttributes[] = {
    {"printer-name", &Destination::queue},        {"printer-info", &Destination::description},
    {"printer-location", &Destination::location}, {"printer-make-and-model", &Destination::makeAndModel},
    {"device-uri", &Destination::deviceUri},      {"printer-state-message", &Destination::stateMessage},
};
constexpr std::pair<const char *, QStringList Destination::*> listAttributes[] = {
    {"member-names", &Destination::members},
    {"printer-state-reasons", &Destination::stateReasons},
};

/// Returns all values of the attribute as text that cupsEncodeOptions() can parse.
QByteArray valueText(ipp_attribute_t *attribute)
{
    if (ippGetValueTag(attribute) == IPP_TAG_ENUM) {
        // Enums are numbers in options; ippAttributeString() returns their names.
        QByteArrayList numbers;
        for (int i = 0; i < ippGetCount(attribute); ++i)
            numbers.append(QByteArray::number(ippGetInteger(attribute, i)));
        return numbers.join(',');
    }
    std::array<char, 4096> text = {};
    ippAttributeString(attribute, text.data(), text.size());
    return text.data();
}

void readType(Destination &destination, int bits)
{
    const auto type = static_cast<cups_ptype_t>(bits);
    destination.isClass = (type & CUPS_PRINTER_CLASS) != 0;
    destination.isDefault = (type & CUPS_PRINTER_DEFAULT) != 0;
}

void readAttribute(Destination &destination, ipp_attribute_t *attribute)
{
    const QByteArray name = ippGetName(attribute);
    for (const auto &[known, field] : textAttributes) {
        if (name == known)
            destination.*field = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    }
    for (const auto &[known, field] : listAttributes) {
        for (int i = 0; name == known && i < ippGetCount(attribute); ++i)
            (destination.*field).append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    }
    if (name == "printer-type")
        readType(destination, ippGetInteger(attribute, 0));
    else if (name == "printer-state")
        destination.state = static_cast<QueueState>(std::clamp(ippGetInteger(attribute, 0), 3, 5));
    else if (name == "printer-config-change-time")
        destination.configured = ippGetInteger(attribute, 0);
    else if (name == "printer-is-accepting-jobs")
        destination.acceptsJobs = ippGetBoolean(attribute, 0) != 0;
    else if (name == "printer-is-temporary")
        destination.isDiscovered = ippGetBoolean(attribute, 0) != 0;
    else if (name.endsWith("-default"))
        destination.queueOptions.push_back({name.chopped(8), valueText(attribute)});
}

/// While the server creates a queue for a discovered printer, it reports the queue as stopped, although
/// nothing has been paused.
void ignoreCreationState(Destination &destination)
{
    if (destination.isDiscovered && destination.state == QueueState::Paused && !destination.acceptsJobs) {
        destination.state = QueueState::Unknown;
        destination.acceptsJobs = true;
    }
}

/// Reads the printers of a response; each is a group of attributes.
std::vector<Destination> readDestinations(ipp_t *answer)
{
    std::vector<Destination> destinations;
    bool inside = false;
    for (ipp_attribute_t *each = ippFirstAttribute(answer); each; each = ippNextAttribute(answer)) {
        const bool ofPrinter = ippGetGroupTag(each) == IPP_TAG_PRINTER && ippGetName(each);
        if (ofPrinter && !inside)
            destinations.emplace_back();
        inside = ofPrinter;
        if (inside)
            readAttribute(destinations.back(), each);
    }
    std::erase_if(destinations, [](const Destination &each) { return each.queue.isEmpty(); });
    for (Destination &each : destinations) {
        each.stateReasons.removeAll(QStringLiteral("none"));
        ignoreCreationState(each);
    }
    return destinations;
}

IppPointer listRequest(const CupsConnection &connection, ipp_op_t operation, const QString &queue)
{
    IppPointer request = connection.newRequest(operation, queue);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(requestedAttributes.size()), nullptr, requestedAttributes.data());
    return request;
}

/// Returns the queues, each followed by the user's instances of it.
std::vector<Destination> withInstances(const std::vector<Destination> &queues, const LpOptions &lpOptions)
{
    std::vector<Destination> all;
    for (const Destination &queue : queues) {
        all.push_back(queue);
        all.back().userOptions = lpOptions.options(queue.queue, std::nullopt);
        for (const LpOptions::Entry &entry : lpOptions.entries()) {
            if (entry.queue != queue.queue || !entry.instance)
                continue;
            all.push_back(queue);
            all.back().instance = entry.instance;
            all.back().userOptions = entry.options;
            all.back().isDefault = false;
        }
    }
    return all;
}

void markDefault(std::vector<Destination> &destinations, const QString &name)
{
    for (Destination &each : destinations)
        each.isDefault = each.name() == name;
}

struct SearchedPrinters {
    BackgroundTask &task;
    const LpOptions lpOptions = LpOptions::read();
    const std::function<void(const Destination &)> &found;
};

int discovered(void *data, unsigned flags, cups_dest_t *dest)
{
    const SearchedPrinters &discovery = *static_cast<SearchedPrinters *>(data);
    if (!(flags & CUPS_DEST_FLAGS_REMOVED)) {
        const auto option = [&](const char *name) {
            return QString::fromUtf8(cupsGetOption(name, dest->num_options, dest->options));
        };
        Destination destination;
        destination.queue = QString::fromUtf8(dest->name);
        destination.description = option("printer-info");
        destination.location = option("printer-location");
        destination.makeAndModel = option("printer-make-and-model");
        destination.deviceUri = option("device-uri");
        destination.isDiscovered = true;
        destination.userOptions = discovery.lpOptions.options(destination.queue, std::nullopt);
        discovery.found(destination);
    }
    return discovery.task.isCanceled() ? 0 : 1;
}

} // namespace

Result<std::vector<Destination>, CupsError> queryDestinations(CupsConnection &connection)
{
    Result<IppPointer, CupsError> answer =
        connection.exchange(listRequest(connection, IPP_OP_CUPS_GET_PRINTERS, {}), "/");
    // A server without queues responds that nothing was found.
    if (!answer && answer.error().kind != CupsErrorKind::NotFound)
        return answer.error();
    const LpOptions lpOptions = LpOptions::read();
    std::vector<Destination> destinations;
    if (answer)
        destinations = withInstances(readDestinations(answer.value().get()), lpOptions);
    if (lpOptions.defaultName())
        markDefault(destinations, *lpOptions.defaultName());
    return destinations;
}

Result<Destination, CupsError> queryDestination(CupsConnection &connection, const QString &queue,
                                                const std::optional<QString> &instance)
{
    Result<IppPointer, CupsError> answer = connection.exchange(
        listRequest(connection, IPP_OP_GET_PRINTER_ATTRIBUTES, queue), queueResource(queue));
    if (!answer)
        return answer.error();
    std::vector<Destination> found = readDestinations(answer.value().get());
    if (found.empty())
        return CupsError{CupsErrorKind::NotFound,
                         QString::fromUtf8(ippErrorString(IPP_STATUS_ERROR_NOT_FOUND))};
    const LpOptions lpOptions = LpOptions::read();
    Destination destination = std::move(found.front());
    destination.instance = instance;
    destination.userOptions = lpOptions.options(queue, instance);
    if (lpOptions.defaultName() || instance)
        destination.isDefault = lpOptions.defaultName() == destination.name();
    return destination;
}

void discoverDestinations(BackgroundTask &task, std::chrono::milliseconds time,
                          const std::function<void(const Destination &)> &found)
{
    // libcups first queries a server for its queues, over a connection whose certificate it does not check.
    // They are already known from queryDestinations(): no server listens at this address.
    CupsServer none;
    none.address = QStringLiteral("/dev/null");
    const CupsThreadScope scope(none);
    SearchedPrinters discovery{.task = task, .found = found};
    cupsEnumDests(CUPS_DEST_FLAGS_NONE, static_cast<int>(time.count()), task.cancelFlag(),
                  CUPS_PRINTER_DISCOVERED, CUPS_PRINTER_DISCOVERED, discovered, &discovery);
}

} // namespace queues
} // namespace cups
} // namespace host
