// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBoxes.h"
#include "SampleLabels.h"

#include <host/labels/LabelRenderer.h>
#include <host/setup/SetupJob.h>

#include <map>

namespace dialogwalk {

/// A printer that is set up on its panel, without a window: what is done with it is followed by what the
/// dialog does then. It is printed on the virtual printer.
class SweptPrinter {
public:
    explicit SweptPrinter(const QString &ppdPath);

    PanelBoxes panel() const { return PanelBoxes(m_setup->panels().front()->view()); }
    host::PrinterSetup &setup() const { return *m_setup; }

    void choosePaper(const char *name);
    /// Greyed, as combinations are when the pop-up opens.
    bool isPresetEnabled(int row) const;
    void choosePreset(int row);
    /// Greyed boxes take no click.
    void click(QCheckBox *box);
    /// Turns to another page and back.
    void visitPage();

    /// The options of the job that is shown.
    const OptionTexts &options() const { return m_options; }
    /// The differences between the panel's boxes and the job; empty when they agree.
    QStringList disagreements() const;

    /// Whether the virtual printer writes its files, or only the value that it would write is made.
    enum class Files { No, Yes };
    /// Prints. Returns the differences between what was shown and what is printed, including the strip that a
    /// printer makes of it.
    QStringList print(Files files);

private:
    /// As the dialog does after any input.
    void look();
    const host::LabelRenderer &renderer();
    QJsonObject job() const;
    QJsonObject writtenJob();
    QStringList compareOptions(const OptionTexts &printed) const;
    QStringList compareStrip(const OptionTexts &printed) const;

    const SampleLabels m_labels;
    QString m_ppdPath;
    PrinterFacts m_facts;
    std::unique_ptr<host::LabelDocument> m_document;
    std::unique_ptr<host::PrinterSetup> m_setup;
    host::JobRequest m_jobRequest;
    /// By the paper's name.
    std::map<QByteArray, std::unique_ptr<host::LabelRenderer>> m_renderers;
    std::optional<host::Ticket> m_ticket;
    std::optional<host::CutPlan> m_plan;
    OptionTexts m_options;
};

} // namespace dialogwalk
