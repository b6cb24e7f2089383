// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace panels {

/// A call into a bundle during which a program ended or was stopped.
struct InterruptedCall {
    /// The bundle's folder.
    QString bundle;
    /// The call, by the name that the protocol gives it.
    QString call;
    QDateTime time;
};

/// The calls into panels that are in progress, as a file in $XDG_STATE_HOME/kvprint/panels. If a panel ends
/// the program, or blocks it until the user stops it, the file remains and names the panel: it is not loaded
/// again before the user agrees.
///
/// The file is mapped into memory, so that recording a call costs no system call and the system keeps what
/// was recorded whatever happens to the process. Each process has a file of its own, which is locked while
/// the process runs, and removed when it ends between two calls. Without a writable state folder, nothing is
/// recorded.
class PanelCallRecord {
public:
    /// Creates the file of this process when the first call is recorded.
    PanelCallRecord();
    ~PanelCallRecord();
    PanelCallRecord(const PanelCallRecord &) = delete;
    PanelCallRecord &operator=(const PanelCallRecord &) = delete;

    /// The record that all panels of this process share. Belongs to the main thread.
    static PanelCallRecord &ofProcess();

    /// A call in progress, as long as the object exists. Calls can be nested; the innermost is recorded.
    class Call {
    public:
        /// Begins the call of this name into the bundle in this folder.
        Call(PanelCallRecord &record, const QString &bundle, const char *name);
        ~Call();
        Call(const Call &) = delete;
        Call &operator=(const Call &) = delete;

    private:
        PanelCallRecord &m_record;
        QByteArray m_outer;
    };

    /// The calls during which processes that do not run any more ended, the latest of each bundle.
    static std::vector<InterruptedCall> interrupted();
    /// Forgets the interrupted calls of the bundle, so that it is loaded again.
    static void forget(const QString &bundle);
    /// Forgets the interrupted calls of all bundles.
    static void forgetAll();

private:
    QByteArray current() const;
    void set(const QByteArray &content);
    void open();

    QString m_path;
    int m_descriptor = -1;
    /// The mapped file; null if it could not be created.
    char *m_content = nullptr;
    bool m_isOpen = false;
};

} // namespace panels
} // namespace host
