// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DriverModel.h"

#include <QStringList>

#include <utility>

namespace model {

/// A printer with every row: all nine keywords, counts 1 to 99, automatic cut with a box of its own.
PrinterDescription fullPrinter();
/// The same printer without some keywords; "KvAutoCutObjHidden" may be among them.
PrinterDescription printerWithout(const QStringList &keywords);

/// A dialog on the model, to try one situation: opens a printer and passes requests on.
class ModelBench {
public:
    explicit ModelBench(const PrinterDescription &printer, QJsonObject openMembers = {});

    /// The reply to the operation with these members.
    QJsonObject ask(const QString &op, QJsonObject members = {});
    /// Loads the view and shows the panel for the first time.
    ModelBench &show();
    /// Ticks or clears a box as a user would.
    QJsonObject click(const char *box, bool force = false);
    /// Chooses a paper that the PPD names.
    QJsonObject choosePaper(const QString &name);
    /// The choices that the panel changed during the request, in order.
    static QList<std::pair<QString, QString>> changes(const QJsonObject &reply);

    /// The choice that the panel holds in that selection field; null when none.
    QJsonValue selection(const char *field)
    {
        return panel().state()["selections"].toObject()[QLatin1String(field)];
    }

    Panel &panel() { return *m_driver.panel(); }
    Panel::View &view() { return *m_driver.panel()->view; }
    Dialog &dialog() { return *m_driver.dialog(); }

private:
    DriverModel m_driver;
};

/// A ticket of the printer's software that names the paper.
QString ticketFor(const QString &paper);

} // namespace model
