// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SampleLabels.h"

#include <tests/support/PrivateCupsd.h>

#include <array>
#include <map>

namespace dialogwalk {

/// The queues that are walked through, on a server of their own, and the document that is printed on them.
/// Each queue has two descriptions; an option is missing in the second one.
class WalkedServer {
public:
    WalkedServer();

    test_support::PrivateCupsd &cupsd() { return m_cupsd; }
    /// Queues and instances, as a user sees them in the list of printers.
    const QStringList &destinations() const { return m_destinations; }
    /// What the queue's description says now; empty for one without a description.
    QByteArray ppd(const QString &destination) const { return ppd(destination, variant(destination)); }
    /// One of the queue's two descriptions.
    QByteArray ppd(const QString &destination, int variant) const;
    /// Gives the queue its first or second description.
    void replacePpd(const QString &destination, int variant);
    int variant(const QString &destination) const;
    const std::map<QString, int> &variants() const { return m_variants; }
    /// Gives every queue the description that the map names, the first one where it names none.
    void setVariants(const std::map<QString, int> &variants);

    /// A job was sent to a queue that records it.
    void countRecorded() { ++m_recorded; }
    /// What was recorded of all jobs that were counted; waits for it, and fails the test when it does not
    /// come.
    std::vector<test_support::RecordedDocument> records() { return m_cupsd.waitForDocuments(m_recorded); }

    const QString &documentPath() const { return m_document.path(); }
    const std::vector<PageFacts> &pages() const { return m_document.pages(); }

private:
    void addQueue(const QString &name, const QByteArray &ppd, const QByteArray &other);
    void addInstance(const QString &name, const QStringList &options);

    test_support::PrivateCupsd m_cupsd;
    SampleLabels m_document;
    QStringList m_destinations;
    std::map<QString, std::array<QByteArray, 2>> m_ppds;
    std::map<QString, int> m_variants;
    std::size_t m_recorded = 0;
};

} // namespace dialogwalk
