// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

#include <set>

namespace dialogwalk {

/// What the user has chosen, as recorded by the test: for each destination, the options as they were when it
/// came first, and over them the last value that the user gave each.
class Intent {
public:
    /// The destination is now the current one, with these options.
    void enter(const QString &destination, const OptionTexts &found);
    /// The user sets options of the current destination to these values.
    void choose(const OptionTexts &chosen);
    /// The user sets something for the job on any printer, such as copies.
    void chooseForJob(const QByteArray &name, const QByteArray &value) { m_job[name] = value; }
    /// Another window is opened: pages and copies are reset.
    void forgetJob() { m_job.clear(); }
    /// The program starts again: all choices of the user are cleared.
    void forget();

    /// Returns one line for each difference between the job and the user's choices. A rule of the panel may
    /// have replaced a choice; a banner must then report it.
    QStringList broken(const WalkedDialog &dialog) const;
    /// The expected options of a job with these choices, including the rule of special tape.
    OptionTexts wanted() const;

private:
    QString reasonFor(const WalkedDialog &dialog, const QByteArray &name, const QByteArray &wanted,
                      const QByteArray &got) const;

    struct Memory {
        OptionTexts texts;
        /// The options that the user has set, not only seen.
        std::set<QByteArray> chosen;
    };
    std::map<QString, Memory> m_memories;
    QString m_destination;
    OptionTexts m_job;
};

/// Whether a rule of the panel may replace the option on the paper.
bool mayBeReplaced(const QByteArray &keyword, const QByteArray &paper);

} // namespace dialogwalk
