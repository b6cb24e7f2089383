// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/rendering/RenderChannel.h>
#include <host/rendering/RenderMessage.h>

#include <QFile>
#include <QPdfDocument>

#include <functional>
#include <map>
#include <memory>

namespace programs {
inline namespace renderer {

/// Reads and draws PDFs for the process at the other end of the channel.
class RenderService {
public:
    /// The channel with which a renderer is started.
    RenderService();

    /// Sets what is executed before a page is drawn. For tests of faults.
    void setBeforeDrawing(std::function<void(int page)> action) { m_beforeDrawing = std::move(action); }
    /// Enters the sandbox and answers requests until the other end closes the channel.
    void run();

private:
    struct OpenPdf {
        QFile file;
        QPdfDocument pdf{nullptr};
    };

    QByteArray answer(host::ChannelMessage message);
    host::RenderStatus open(const host::RenderRequest &request, int descriptor);
    QByteArray sizes(const QPdfDocument &pdf, const host::RenderRequest &request) const;
    host::RenderStatus draw(QPdfDocument &pdf, const host::RenderRequest &request,
                            host::OwnedDescriptor memory) const;

    host::RenderChannel m_channel;
    std::map<quint32, std::unique_ptr<OpenPdf>> m_pdfs;
    std::function<void(int page)> m_beforeDrawing;
};

} // namespace renderer
} // namespace programs
