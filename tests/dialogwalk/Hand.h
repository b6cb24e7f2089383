// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "GoOn.h"
#include "Intent.h"
#include "SentJob.h"
#include "Step.h"

namespace dialogwalk {

/// Performs steps in a dialog as a user does, and records in the intent what was chosen.
class Hand {
public:
    Hand(WalkedDialog &dialog, Intent &intent)
        : m_dialog(dialog)
        , m_intent(intent)
    {
    }

    /// Performs the step and waits until the dialog shows its result. Returns a description of the controls
    /// used, for the report of a failed walk; empty when there was no control for the step.
    QString perform(const Step &step);

    // Single gestures, for tests that choose themselves.
    void clickBox(const QString &name);
    void pickPreset(int row);
    void pickPaper(const QByteArray &name);
    void pickQueue(const QString &destination);
    /// Presses Print and waits until the job is sent. Returns false when it is not sent.
    bool print();

    /// Jobs that were sent so far.
    const std::vector<SentJob> &sent() const { return m_sent; }

private:
    QString onPanel(const Step &step);
    QString onBox(const Step &step);
    QString onPreset(const Step &step);
    QString onCount(const Step &step);
    /// The panel changes a box of its own accord, while another page is in front.
    QString changeBoxByTimer(std::uint32_t number);
    QString onPaper(const Step &step);
    QString onOptions(const Step &step);
    QString onPages(const Step &step);
    QString turnToPage(std::uint32_t number);
    QString changeQueue(std::uint32_t number);
    QString operateRoll(std::uint32_t number);
    QString pressRemedy();
    QString replacePpd();
    QString printAndReopen(std::uint32_t number);
    QString reopen(std::uint32_t number);
    void enter();
    void presetChosen(int tag);
    void boxClicked(const QCheckBox *box, bool wasOn);
    /// Records the values that the boxes show for these options: combinations, and the box that shares
    /// automatic cutting, are also the user's choice for what the paper has replaced.
    void chooseShown(const QStringList &keywords);
    void countChosen(int count);

    WalkedDialog &m_dialog;
    Intent &m_intent;
    /// Alerts of the panel and questions about conflicts are answered so that the walk goes on.
    const GoOn m_goOn;
    std::vector<SentJob> m_sent;
};

} // namespace dialogwalk
