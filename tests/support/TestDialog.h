// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdBuilder.h"

#include <protocol/PDEPluginCallback.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <utility>
#include <vector>

namespace test_support {

/// A print dialog reduced to what panels see of it: a PPD opened and marked by libcups, a paper, settings,
/// and a record of what the panel requested and changed, in order.
class TestDialog : public PDEPluginCallback13_v400_ {
public:
    using Change = std::pair<QString, QString>;

    /// A dialog for the printer with this PPD; null for a printer without a PPD.
    explicit TestDialog(PpdPointer ppd);

    PMPrintSession printSession() const override;
    PMPrintSettings printSettings() const override;
    PMPageFormat pageFormat() const override;
    ::PMPrinter PMPrinter() const override;
    ppd_file_t *ppdFile() const override;
    void willChangePPDOptionKeyValue(const QString &key, const std::optional<QString> &choice) override;
    bool respondsToPanelViewDidResize() const override { return canResize; }
    void panelViewDidResize() override { ++resizes; }

    /// Chooses the paper with this PPD name; the height is in points.
    void setPaper(const QString &name, double height = 100.0);
    /// Chooses a paper that the PPD does not name, with the name in the settings' ticket (absent: no ticket).
    void setTicketPaper(const std::optional<QString> &name);
    /// Notifies the panels that the paper has changed.
    void postPaperChange() const;

    /// Marks a choice as another part of the dialog would, without a notification.
    void mark(const char *keyword, const char *choice) { ppdMarkOption(m_ppd.get(), keyword, choice); }
    /// The marked choice; empty when nothing is marked.
    QString marked(const char *keyword) const;

    /// Every willChangePPDOptionKeyValue() in order; an absent choice is recorded as "(absent)".
    std::vector<Change> changes;
    /// The names of the operations that the panel called, in order.
    mutable QStringList asked;
    int resizes = 0;
    bool canResize = true;
    bool hasPrintSettings = true;
    platform::PrintSettings settings;
    platform::PageFormat format;
    platform::Printer printer;

private:
    PpdPointer m_ppd;
    platform::PrintSession m_session;
};

} // namespace test_support
