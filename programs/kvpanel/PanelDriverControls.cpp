// SPDX-License-Identifier: Apache-2.0
// What the driver does around the panel: user actions, changes from outside, reading the state.
#include "OpenRequest.h"
#include "PanelDriver.h"

#include <host/panels/DialogState.h>
#include <host/panels/PanelSession.h>
#include <host/printer/PpdForPanels.h>
#include <platform/NotificationCenter.h>
#include <platform/OutputFile.h>
#include <protocol/PDEPanelInspection.h>

#include <QImageWriter>
#include <QPixmap>
#include <QWidget>

QJsonObject PanelDriver::click(const DriverRequest &request)
{
    user_actions::click(m_view, request.text("control"), force(request));
    return {};
}

QJsonObject PanelDriver::type(const DriverRequest &request)
{
    user_actions::type(m_view, QStringLiteral("mCutEveryTxBx"), request.text("text"), force(request));
    return {};
}

QJsonObject PanelDriver::step(const DriverRequest &request)
{
    user_actions::step(m_view, QStringLiteral("mCutEveryStpr"), request.integer("value"), force(request));
    return {};
}

QJsonObject PanelDriver::choosePreset(const DriverRequest &request)
{
    user_actions::choosePreset(m_view, QStringLiteral("mOptionPopUpButton"), request.integer("tag"),
                               force(request));
    return {};
}

QJsonObject PanelDriver::paper(const DriverRequest &request)
{
    const std::optional<platform::Paper> chosen =
        request.has("paper") ? paperMember(request) : m_dialog->paper();
    const bool changesTicket = request.has("ticket");
    const std::optional<QString> ticket = changesTicket ? request.textOrNull("ticket") : std::nullopt;
    m_dialog->setPaper(chosen);
    if (changesTicket)
        m_dialog->setTicket(ticket);
    m_dialog->postPaperDidChange();
    return {};
}

QJsonObject PanelDriver::ppdChange(const DriverRequest &request)
{
    const std::optional<QString> keyword = request.textOrNull("keyword");
    const std::optional<QString> choice = request.textOrNull("choice");
    m_dialog->changeOption(keyword, choice, nullptr);
    return {};
}

QJsonObject PanelDriver::mark(const DriverRequest &request)
{
    const QString keyword = request.text("keyword");
    m_dialog->ppd().mark(keyword, request.text("choice"));
    return {};
}

QJsonObject PanelDriver::keyWindow(const DriverRequest &request)
{
    m_keyWindowHeight = request.numberOrNull("height");
    return {};
}

QJsonObject PanelDriver::trackingAreasUpdated(const DriverRequest &)
{
    platform::NotificationCenter::defaultCenter().post(
        QStringLiteral("NSViewDidUpdateTrackingAreasNotification"), m_view);
    return {};
}

QJsonObject PanelDriver::state(const DriverRequest &)
{
    QJsonObject state = inspection().panelState(m_panel);
    QJsonObject settings;
    for (const auto &[keyword, choice] : m_dialog->recorded().pairs())
        settings.insert(keyword, choice);
    state.insert(QStringLiteral("settings"), settings);
    return {{"state", state}};
}

QJsonObject PanelDriver::localized(const DriverRequest &request)
{
    return {{"text", m_session->bundle().resources().localizedStringForKey(request.text("key"))}};
}

QJsonObject PanelDriver::picture(const DriverRequest &request)
{
    QString error;
    if (!inspection().savePreview(m_panel, request.path("path"), &error))
        throw RequestError(error);
    return {};
}

QJsonObject PanelDriver::screenshot(const DriverRequest &request)
{
    const QString path = request.path("path");
    platform::OutputFile file(path);
    const QImage picture = m_view->grab().toImage();
    if (!file.write([&](QIODevice *device) { return QImageWriter(device, "png").write(picture); }) ||
        !file.commit())
        throw RequestError(QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString()));
    return {};
}

QJsonObject PanelDriver::tapeInfo(const DriverRequest &request)
{
    platform::PageFormat format;
    platform::PrintSettings settings;
    if (request.has("paper"))
        format.paper = paperMember(request);
    if (request.has("ticket")) {
        if (const std::optional<QString> ticket = request.textOrNull("ticket"))
            settings.setValue(host::DialogState::ticketKey, ticket->toUtf8());
    }
    return inspection().tapeInfo(&settings, &format, host::PpdForPanels::handle(m_dialog->ppd()));
}

QJsonObject PanelDriver::formatter(const DriverRequest &request)
{
    QJsonObject reply = inspection().tryFormatter(request.members());
    if (reply.contains(QLatin1String("error")))
        throw RequestError(reply.value(QLatin1String("error")).toString());
    return reply;
}
