// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrinterDescription.h"

#include <QJsonArray>
#include <QMap>

#include <array>
#include <optional>

namespace model {

/// The paper of a dialog's page format, and what the queries for it answer (0 for success).
struct Paper {
    std::optional<QString> name;
    double height = 0.0;
    int paperStatus = 0;
    int nameStatus = 0;
    int heightStatus = 0;
};

/// What is known of the paper in use: the status of finding out, its length in millimetres, its kind
/// (1 for die-cut names that the printer lists, 2 for a paper the PPD does not name, else 0) and its name.
struct TapeInfo {
    int status = 0;
    double length = 100.0;
    int kind = 0;
    std::optional<QString> name;
};

/// The print dialog as a panel meets it: the printer with its marks, the paper, the job's settings, and
/// a record of what the panel caused.
class Dialog {
public:
    explicit Dialog(PrinterDescription description)
        : printer(std::move(description))
    {
    }

    /// Marks as libcups does: keyword and choice without regard to case, the unknown ignored.
    void mark(const QString &keyword, const QString &choice);
    void markDefaults();
    /// The marked choice's position in its option's list; -1 when nothing is marked.
    int markedIndex(const QString &keyword) const;
    std::optional<QString> marked(const QString &keyword) const;

    /// The panel changes an option: marked, recorded and reported.
    void willChange(const QString &keyword, const QString &choice);
    /// Records a choice in the job's settings, when there are any.
    void record(const QString &keyword, const QString &choice);
    void report(const QJsonArray &event) { events.append(event); }

    /// The paper's PPD name for the tests of its first two letters; empty when there is none.
    QString paperName() const;
    bool paperBeginsWith(const char *prefix) const { return paperName().startsWith(QLatin1String(prefix)); }
    TapeInfo tapeInfo() const { return tapeInfo(paper, hasSettings ? ticket : std::nullopt); }
    TapeInfo tapeInfo(const std::optional<Paper> &of, const std::optional<QString> &ticketText) const;
    bool isHeatShrink() const;
    bool isPaperLabelSeries() const { return printer.tapeType == QStringLiteral("DZ"); }

    PrinterDescription printer;
    std::optional<Paper> paper;
    std::optional<QString> ticket;
    std::optional<QString> deviceURI;
    std::optional<double> keyWindowHeight;
    bool hasSettings = true;
    bool canResize = true;
    QMap<QString, QString> settings;
    QJsonArray events;

private:
    /// Marked choices by the option's keyword as the PPD spells it.
    QMap<QString, int> m_marks;
};

/// The paper name in a ticket of the printer's software; nothing for a ticket without one.
std::optional<QString> paperNameInTicket(const QString &ticket);

} // namespace model
