// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobSender.h"

#include <QImage>

#include <functional>

namespace dialog {
inline namespace job {

/// Sends to the virtual printer, which leaves the strip in a folder.
class VirtualSender : public JobSender {
    Q_OBJECT

public:
    /// Without a folder, each job gets a new one among the user's data.
    explicit VirtualSender(std::optional<QString> folder, QObject *parent = nullptr);

    void send(const ReadyJob &job) override;
    void cancel() override {}
    bool needsStrip() const override { return true; }

    /// What takes the picture that is put beside the strip; empty for none.
    void setPictureTaker(std::function<QImage()> taker) { m_takePicture = std::move(taker); }
    /// Where the last job is, as an absolute path.
    const QString &folder() const { return m_usedFolder; }

private:
    std::optional<QString> m_folder;
    QString m_usedFolder;
    std::function<QImage()> m_takePicture;
};

} // namespace job
} // namespace dialog
