// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "GoOn.h"
#include "Intent.h"
#include "SentJob.h"
#include "Step.h"

namespace dialogwalk {

/// Does steps in a dialog as a user does them, and notes in the intent what was chosen.
class Hand {
public:
    Hand(WalkedDialog &dialog, Intent &intent)
        : m_dialog(dialog)
        , m_intent(intent)
    {
    }

    /// Does the step and waits until the dialog shows what follows. Answers what was done with, for a failed
    /// walk's report; empty when there was nothing to do it with.
    QString perform(const Step &step);

    // Single gestures, for tests that choose themselves.
    void clickBox(const QString &name);
    void pickPreset(int row);
    void pickPaper(const QByteArray &name);
    void pickQueue(const QString &destination);
    /// Presses Print and waits until the job is sent. False when it is not.
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
    QString pressRemedy();
    QString replacePpd();
    QString printAndReopen(std::uint32_t number);
    QString reopen(std::uint32_t number);
    void enter();
    void presetChosen(int tag);
    void boxClicked(const QCheckBox *box, bool wasOn);
    /// Combinations, and the box that shares automatic cutting, are the user's word about what the paper has
    /// replaced, too: of these options what the boxes show.
    void chooseShown(const QStringList &keywords);
    void countChosen(int count);

    WalkedDialog &m_dialog;
    Intent &m_intent;
    /// Alerts of the panel and questions about conflicts are answered so that the walk goes on.
    const GoOn m_goOn;
    std::vector<SentJob> m_sent;
};

} // namespace dialogwalk
