// SPDX-License-Identifier: Apache-2.0
// What the driver does with the panel itself.
#include "PanelDriver.h"

#include "OpenRequest.h"

#include <host/panels/DialogState.h>
#include <host/panels/PanelSession.h>
#include <platform/KeyWindow.h>
#include <platform/NotificationCenter.h>
#include <protocol/PDEPanelInspection.h>

#include <QJsonArray>

#include <algorithm>
#include <iterator>

using host::BundleErrorKind;

const PanelDriver::Operation PanelDriver::operations[] = {
    {"open", Needs::Nothing, &PanelDriver::open},
    {"close", Needs::Panel, &PanelDriver::close},
    {"view", Needs::Panel, &PanelDriver::view},
    {"willShow", Needs::View, &PanelDriver::willShow},
    {"restore", Needs::View, &PanelDriver::restore},
    {"save", Needs::Panel, &PanelDriver::save},
    {"shouldPrint", Needs::Panel, &PanelDriver::shouldPrint},
    {"supportedKeys", Needs::Panel, &PanelDriver::supportedKeys},
    {"summary", Needs::Panel, &PanelDriver::summary},
    {"names", Needs::Panel, &PanelDriver::names},
    {"click", Needs::View, &PanelDriver::click},
    {"type", Needs::View, &PanelDriver::type},
    {"step", Needs::View, &PanelDriver::step},
    {"choosePreset", Needs::View, &PanelDriver::choosePreset},
    {"paper", Needs::Panel, &PanelDriver::paper},
    {"ppdChange", Needs::Panel, &PanelDriver::ppdChange},
    {"mark", Needs::Panel, &PanelDriver::mark},
    {"keyWindow", Needs::Panel, &PanelDriver::keyWindow},
    {"trackingAreasUpdated", Needs::View, &PanelDriver::trackingAreasUpdated},
    {"state", Needs::View, &PanelDriver::state},
    {"localized", Needs::Panel, &PanelDriver::localized},
    {"picture", Needs::View, &PanelDriver::picture},
    {"screenshot", Needs::View, &PanelDriver::screenshot},
    {"tapeInfo", Needs::Panel, &PanelDriver::tapeInfo},
    {"formatter", Needs::Panel, &PanelDriver::formatter},
};

PanelDriver::PanelDriver(QString bundleFolder)
    : m_bundleFolder(std::move(bundleFolder))
{
    platform::setKeyWindowQuery([this] { return m_keyWindowHeight; });
}

PanelDriver::~PanelDriver()
{
    closeAll();
    platform::setKeyWindowQuery({});
    platform::setSystemVersionQuery({});
}

QJsonObject PanelDriver::failure(const QString &reason)
{
    return {{"ok", false}, {"error", reason}};
}

const PanelDriver::Operation &PanelDriver::operationNamed(const QString &name) const
{
    const auto *const found = std::ranges::find_if(
        operations, [&name](const Operation &operation) { return name == QLatin1String(operation.name); });
    if (found == std::end(operations))
        throw RequestError(QStringLiteral("unknown op \"%1\"").arg(name));
    if (found->needs != Needs::Nothing && !m_panel)
        throw RequestError(QStringLiteral("\"%1\": nothing is open").arg(name));
    if (found->needs == Needs::View && !m_view)
        throw RequestError(QStringLiteral("\"%1\": the view is not loaded").arg(name));
    return *found;
}

QJsonObject PanelDriver::handle(const QJsonObject &members)
{
    m_events.take();
    try {
        const DriverRequest request(members);
        const Operation &operation = operationNamed(request.text("op"));
        QJsonObject reply = (this->*operation.run)(request);
        reply.insert(QStringLiteral("ok"), true);
        reply.insert(QStringLiteral("events"), m_events.take());
        return reply;
    } catch (const RequestError &error) {
        return failure(error.reason());
    }
}

void PanelDriver::closeAll()
{
    m_view = nullptr;
    m_panel = nullptr;
    m_session.reset();
    m_host.reset();
    m_dialog.reset();
}

user_actions::Force PanelDriver::force(const DriverRequest &request) const
{
    return request.flag("force", false) ? user_actions::Force::Yes : user_actions::Force::No;
}

PDEPanelInspection &PanelDriver::inspection() const
{
    PDEPanelInspection *const inside = m_session->bundle().inspection();
    if (!inside)
        throw RequestError(QStringLiteral("the bundle does not let anybody look into its panels"));
    return *inside;
}

QJsonObject PanelDriver::open(const DriverRequest &members)
{
    closeAll();
    const OpenRequest request(members);
    auto ppd = host::PpdFile::open(request.ppd);
    if (!ppd)
        throw RequestError(ppd.error().message);
    const std::optional<QString> asked =
        m_bundleFolder.isEmpty() ? std::nullopt : std::optional(m_bundleFolder);
    const auto folder = host::PanelBundle::find(QStringLiteral("KVLXDZOptions"), asked);
    if (!folder)
        throw RequestError(folder.error().message);

    platform::setSystemVersionQuery(request.systemVersionQuery());
    auto bundle = host::PanelBundle::load(folder.value(), {request.language});
    if (!bundle && bundle.error().kind == BundleErrorKind::Unusable)
        return {{"loaded", false}, {"panels", QJsonValue()}};
    if (!bundle)
        throw RequestError(bundle.error().message);

    m_keyWindowHeight = request.keyWindowHeight;
    m_dialog = std::make_shared<host::DialogState>(std::move(ppd).value());
    if (request.markDefaults)
        m_dialog->ppd().markDefaults();
    for (const auto &[keyword, choice] : request.marks)
        m_dialog->ppd().mark(keyword, choice);
    m_dialog->setPaper(request.paper);
    m_dialog->setHasSettings(request.printSettings);
    m_dialog->setTicket(request.ticket);
    m_dialog->setDeviceURI(request.deviceURI);

    m_host = std::make_shared<host::PanelHost>(m_dialog);
    m_host->setWillChangeHook([this](const QString &keyword, const std::optional<QString> &choice) {
        m_events.add({QStringLiteral("willChange"), keyword, choice ? QJsonValue(*choice) : QJsonValue()});
    });
    if (request.canResize)
        m_host->setPanelViewDidResizeHook([this] { m_events.add({QStringLiteral("panelViewDidResize")}); });
    m_session = std::make_unique<host::PanelSession>(std::move(bundle).value(), m_host, request.type);
    m_panel = m_session->firstPanel();
    const auto &panels = m_session->panels();
    return {{"loaded", true},
            {"panels", panels ? QJsonValue(static_cast<qint64>(panels->size())) : QJsonValue()}};
}

QJsonObject PanelDriver::close(const DriverRequest &)
{
    m_panel->printWindowWillClose(nullptr);
    closeAll();
    return {};
}

QJsonObject PanelDriver::view(const DriverRequest &)
{
    m_view = m_panel->panelView();
    return {{"view", m_view != nullptr}};
}

QJsonObject PanelDriver::willShow(const DriverRequest &)
{
    m_panel->willShow();
    return {};
}

QJsonObject PanelDriver::restore(const DriverRequest &)
{
    return {{"result", m_panel->restoreValuesAndReturnError(nullptr)}};
}

QJsonObject PanelDriver::save(const DriverRequest &)
{
    return {{"result", m_panel->saveValuesAndReturnError(nullptr)}};
}

QJsonObject PanelDriver::shouldPrint(const DriverRequest &)
{
    return {{"result", m_panel->shouldPrint()}};
}

QJsonObject PanelDriver::supportedKeys(const DriverRequest &)
{
    const std::optional<QStringList> keys = m_panel->supportedPPDOptionKeys();
    return {{"keys", keys ? QJsonValue(QJsonArray::fromStringList(*keys)) : QJsonValue()}};
}

QJsonObject PanelDriver::summary(const DriverRequest &)
{
    const std::optional<QVariantMap> summary = m_panel->summaryInfo();
    return {{"summary", summary ? QJsonValue(QJsonObject::fromVariantMap(*summary)) : QJsonValue()}};
}

QJsonObject PanelDriver::names(const DriverRequest &)
{
    return {{"panelName", m_panel->panelName()},
            {"panelKind", m_panel->panelKind()},
            {"shouldHide", m_panel->shouldHide()},
            {"shouldShowHelp", m_panel->shouldShowHelp()}};
}
