// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DriverRequest.h"
#include "EventLog.h"
#include "UserActions.h"

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

class PDEPanel;
class PDEPanelInspection;

namespace host {
inline namespace panels {
class DialogState;
class PanelHost;
class PanelSession;
} // namespace panels
} // namespace host

/// Stands in for the print dialog: opens a printer's PPD, loads the real bundle, and does with its panel what
/// JSON requests ask for, in the order in which they come. What a request asks for is all that is done;
/// a request that cannot be carried out answers an error and changes nothing.
///
/// Needs a QApplication. One driver at a time, since it answers the process's alerts and stands for its
/// key window.
class PanelDriver {
public:
    /// A driver for the bundle in that folder; an empty text for the one beside the program or installed.
    explicit PanelDriver(QString bundleFolder);
    ~PanelDriver();
    PanelDriver(const PanelDriver &) = delete;
    PanelDriver &operator=(const PanelDriver &) = delete;

    /// Carries the request out and answers {"ok":true,"events":[...],...} or {"ok":false,"error":"..."}.
    QJsonObject handle(const QJsonObject &request);

    /// The reply of a request that cannot be carried out.
    static QJsonObject failure(const QString &reason);

private:
    /// When a request is in order.
    enum class Needs { Nothing, Panel, View };
    struct Operation {
        const char *name;
        Needs needs;
        QJsonObject (PanelDriver::*run)(const DriverRequest &);
    };
    static const Operation operations[];

    const Operation &operationNamed(const QString &name) const;
    void closeAll();
    user_actions::Force force(const DriverRequest &request) const;
    PDEPanelInspection &inspection() const;

    QJsonObject open(const DriverRequest &request);
    QJsonObject close(const DriverRequest &request);
    QJsonObject view(const DriverRequest &request);
    QJsonObject willShow(const DriverRequest &request);
    QJsonObject restore(const DriverRequest &request);
    QJsonObject save(const DriverRequest &request);
    QJsonObject shouldPrint(const DriverRequest &request);
    QJsonObject supportedKeys(const DriverRequest &request);
    QJsonObject summary(const DriverRequest &request);
    QJsonObject names(const DriverRequest &request);
    QJsonObject click(const DriverRequest &request);
    QJsonObject type(const DriverRequest &request);
    QJsonObject step(const DriverRequest &request);
    QJsonObject choosePreset(const DriverRequest &request);
    QJsonObject paper(const DriverRequest &request);
    QJsonObject ppdChange(const DriverRequest &request);
    QJsonObject mark(const DriverRequest &request);
    QJsonObject keyWindow(const DriverRequest &request);
    QJsonObject trackingAreasUpdated(const DriverRequest &request);
    QJsonObject state(const DriverRequest &request);
    QJsonObject localized(const DriverRequest &request);
    QJsonObject picture(const DriverRequest &request);
    QJsonObject screenshot(const DriverRequest &request);
    QJsonObject tapeInfo(const DriverRequest &request);
    QJsonObject formatter(const DriverRequest &request);

    QString m_bundleFolder;
    EventLog m_events;
    std::optional<double> m_keyWindowHeight;
    std::shared_ptr<host::DialogState> m_dialog;
    std::shared_ptr<host::PanelHost> m_host;
    std::unique_ptr<host::PanelSession> m_session;
    /// The opened panel, owned by the session; null when nothing is open.
    PDEPanel *m_panel = nullptr;
    /// The panel's view while it is loaded.
    QPointer<QWidget> m_view;
};
