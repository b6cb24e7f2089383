// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobSender.h"

#include <QImage>

#include <functional>

namespace dialog {
inline namespace job {

/// Sends to the virtual printer, which writes the strip to a folder. The result is reported during send(),
/// and a job cannot be canceled.
class VirtualSender : public JobSender {
    Q_OBJECT

public:
    /// If the folder is absent, each job is written to a new folder below the user's data folder.
    explicit VirtualSender(std::optional<QString> folder, QObject *parent = nullptr);

    void send(const ReadyJob &job) override;
    void cancel() override {}
    bool needsStrip() const override { return true; }

    /// Sets the function that returns the screenshot of the dialog, which is saved beside the strip. No
    /// screenshot is saved if the function is empty.
    void setScreenshotFunction(std::function<QImage()> taker) { m_screenshot = std::move(taker); }
    /// The absolute path of the folder with the last job; absent before the first.
    const std::optional<QString> &folder() const { return m_lastFolder; }

private:
    std::optional<QString> m_folder;
    std::optional<QString> m_lastFolder;
    std::function<QImage()> m_screenshot;
};

} // namespace job
} // namespace dialog
