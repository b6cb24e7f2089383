// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrivateProgram.h"
#include "RenderChannel.h"
#include "RenderMessage.h"

#include <host/base/Result.h>

#include <QByteArray>
#include <QString>

#include <atomic>
#include <optional>

#include <sys/types.h>

namespace host {
inline namespace rendering {

/// Why a PDF, or one of its pages, cannot be read.
enum class RenderFault {
    Missing,               ///< the renderer is not there or cannot be started
    Crashed,               ///< the renderer has ended
    TooLong,               ///< reading needs more processor time than is allowed
    Forbidden,             ///< the renderer tried what the sandbox forbids
    TooLarge,              ///< there is too little memory
    Canceled,              ///< the results are no longer needed
    Damaged,               ///< the PDF, or the page, is invalid
    PasswordNeeded,        ///< the PDF is encrypted with a password
    UnsupportedEncryption, ///< the PDF is encrypted in a way that cannot be read
};

/// The process in which PDFs are read and drawn, `kvprint-renderer`. It has the descriptors that are sent to
/// it and no access to files, network or other processes, so that a hostile PDF that takes it over can
/// only draw a wrong picture.
///
/// The process starts with the first request, and again with the first request after it has ended. An
/// instance belongs to one thread, except for cancel().
class RendererProcess {
public:
    /// The processor time that a request may use. A page of a label needs some milliseconds.
    static constexpr int secondsPerRequest = 10;

    /// Runs the program at the path.
    explicit RendererProcess(QString program = privateProgram(QStringLiteral("kvprint-renderer")));
    /// Ends the process.
    ~RendererProcess();
    RendererProcess(const RendererProcess &) = delete;
    RendererProcess &operator=(const RendererProcess &) = delete;

    /// An answer: its fixed part and the bytes that follow.
    struct Answer {
        RenderReply reply;
        QByteArray bytes;
    };
    /// Sends a request with the descriptor, unless it is -1, and waits for the answer. After a fault, the
    /// process has ended, and everything that was open in it is closed.
    Result<Answer, RenderFault> ask(const RenderRequest &request, int descriptor = -1);
    /// Starts the process unless it runs.
    void start();
    /// The number of processes that have been started: what was opened in an earlier one is closed.
    int generation() const { return m_generation; }
    /// Returns a number for a PDF that no other PDF of this process has.
    quint32 nextDocument() { return ++m_lastDocument; }
    /// The process, or 0 while there is none.
    pid_t processId() const { return m_process; }

    /// Ends the current request and rejects all later ones. May be called on any thread.
    void cancel();

private:
    bool isRunning() const { return m_process > 0; }
    void limitProcessorTime() const;
    /// Waits until an answer arrives or the process ends. Returns a fault if the wait must end.
    std::optional<RenderFault> waitForAnswer() const;
    /// Waits for the end of the process and returns its cause.
    RenderFault reap();
    void kill();

    QString m_program;
    std::optional<RenderChannel> m_channel;
    /// Readable when the requests are canceled.
    OwnedDescriptor m_wake;
    std::atomic<bool> m_isCanceled = false;
    pid_t m_process = 0;
    int m_generation = 0;
    quint32 m_lastDocument = 0;
};

} // namespace rendering
} // namespace host
