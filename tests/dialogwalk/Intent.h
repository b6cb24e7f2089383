// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WalkedDialog.h"

#include <set>

namespace dialogwalk {

/// What the user has chosen, as the test remembers it: for each destination, the options as they were when it
/// came first, and over them the last value that the user gave each.
class Intent {
public:
    /// The destination is in front now, with these options.
    void enter(const QString &destination, const OptionTexts &found);
    /// The user gives options of the destination in front these values.
    void choose(const OptionTexts &chosen);
    /// The user sets something for the job on any printer, such as copies.
    void chooseForJob(const QByteArray &name, const QByteArray &value) { m_job[name] = value; }
    /// Another window is opened: pages and copies begin anew.
    void forgetJob() { m_job.clear(); }
    /// Another program run: nothing is known of the user.
    void forget();

    /// Where the job has not what the user chose: a line each. A rule of the panel may have replaced a
    /// choice, and then a banner has to say so.
    QStringList broken(const WalkedDialog &dialog) const;
    /// The options that a job of these is to have, special tape considered.
    OptionTexts wanted() const;

private:
    QString reasonFor(const WalkedDialog &dialog, const QByteArray &name, const QByteArray &wanted,
                      const QByteArray &got) const;

    struct Memory {
        OptionTexts texts;
        /// What the user has given a value, and not only found.
        std::set<QByteArray> chosen;
    };
    std::map<QString, Memory> m_memories;
    QString m_destination;
    OptionTexts m_job;
};

/// Whether a rule of the panel may replace the option on the paper.
bool mayBeReplaced(const QByteArray &keyword, const QByteArray &paper);

} // namespace dialogwalk
