// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Panel.h"

#include <QJsonObject>

#include <memory>

namespace model {

/// Predicts what the panel driver answers: receives the driver's requests, one JSON object each, and returns
/// the whole reply. An error is predicted as {"ok": false} alone, since its wording is free.
class DriverModel {
public:
    explicit DriverModel(Panel::Localizer localize)
        : m_localize(std::move(localize))
    {
    }

    /// Registers the printer that a PPD file describes; opening any other path fails.
    void addPrinter(const QString &path, const PrinterDescription &description);

    QJsonObject handle(const QJsonObject &request);

    /// The panel and its dialog; null while nothing is open.
    Panel *panel() const { return m_panel.get(); }
    Dialog *dialog() const { return m_dialog.get(); }

private:
    QJsonObject open(const QJsonObject &request);
    void close();
    bool run(const QString &op, const QJsonObject &request, QJsonObject &reply);
    bool runProtocol(const QString &op, QJsonObject &reply);
    bool runUserAction(const QString &op, const QJsonObject &request);
    bool runOutsideChange(const QString &op, const QJsonObject &request);
    bool runReadBack(const QString &op, const QJsonObject &request, QJsonObject &reply);
    bool click(const QJsonObject &request);
    bool changePaper(const QJsonObject &request);
    bool changeKeyword(const QJsonObject &request);
    bool tapeInfo(const QJsonObject &request, QJsonObject &reply) const;

    Panel::Localizer m_localize;
    QMap<QString, PrinterDescription> m_printers;
    std::unique_ptr<Dialog> m_dialog;
    std::unique_ptr<Panel> m_panel;
};

/// Where the actual reply differs from the expected one, one line for each place; empty when they agree. An
/// error's wording, and anything else in an expected error, is not compared.
QStringList differences(const QJsonObject &expected, const QJsonObject &actual);

} // namespace model
