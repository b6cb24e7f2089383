// SPDX-License-Identifier: Apache-2.0
#include "RenderService.h"

#include <host/rendering/SharedPixels.h>
#include <programs/sandbox/Sandbox.h>

#include <cstring>

namespace programs {
inline namespace renderer {

using host::RenderReply;
using host::RenderRequest;
using host::RenderStatus;

namespace {

/// What the process may use; kvprint limits the time of each request. Fonts that a PDF does not embed are
/// files of the system.
SandboxRules rules()
{
    return {.seconds = 0, .bytes = std::size_t{2} << 30U, .readableFolders = fontFolders()};
}

RenderStatus statusOf(QPdfDocument::Error error)
{
    switch (error) {
    case QPdfDocument::Error::None:
        return RenderStatus::Done;
    case QPdfDocument::Error::IncorrectPassword:
        return RenderStatus::PasswordNeeded;
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return RenderStatus::UnsupportedEncryption;
    default:
        return RenderStatus::Damaged;
    }
}

bool hasPages(const QPdfDocument &pdf, int first, int count)
{
    return first >= 0 && count > 0 && count <= host::maxSizesPerReply && first <= pdf.pageCount() - count;
}

} // namespace

RenderService::RenderService()
    : m_channel(host::OwnedDescriptor(host::rendererDescriptor))
{
}

void RenderService::run()
{
    {
        // Initializes the library, which may need files that the sandbox does not allow.
        const QPdfDocument first(nullptr);
    }
    enterSandbox(rules());
    while (std::optional<host::ChannelMessage> message = m_channel.receive()) {
        if (!m_channel.send(answer(std::move(*message))))
            return;
    }
}

QByteArray RenderService::answer(host::ChannelMessage message)
{
    RenderRequest request;
    if (message.bytes.size() < qsizetype(sizeof(request)))
        return host::messageBytes(RenderReply{RenderStatus::Damaged, 0});
    std::memcpy(&request, message.bytes.constData(), sizeof(request));
    if (request.command == host::RenderCommand::Open) {
        const RenderStatus status = open(request, message.descriptor.release());
        const bool isOpen = status == RenderStatus::Done;
        return host::messageBytes(
            RenderReply{status, isOpen ? m_pdfs[request.document]->pdf.pageCount() : 0});
    }
    const auto found = m_pdfs.find(request.document);
    if (found == m_pdfs.end())
        return host::messageBytes(RenderReply{RenderStatus::Damaged, 0});
    QPdfDocument &pdf = found->second->pdf;
    switch (request.command) {
    case host::RenderCommand::ReadSizes:
        return sizes(pdf, request);
    case host::RenderCommand::Draw:
        return host::messageBytes(RenderReply{draw(pdf, request, std::move(message.descriptor)), 0});
    default:
        m_pdfs.erase(found);
        return host::messageBytes(RenderReply{RenderStatus::Done, 0});
    }
}

RenderStatus RenderService::open(const RenderRequest &request, int descriptor)
{
    auto opened = std::make_unique<OpenPdf>();
    if (!opened->file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return RenderStatus::Damaged;
    opened->file.seek(0);
    opened->pdf.load(&opened->file);
    const RenderStatus status = statusOf(opened->pdf.error());
    if (status == RenderStatus::Done)
        m_pdfs[request.document] = std::move(opened);
    return status;
}

QByteArray RenderService::sizes(const QPdfDocument &pdf, const RenderRequest &request) const
{
    if (!hasPages(pdf, request.page, request.count))
        return host::messageBytes(RenderReply{RenderStatus::Damaged, 0});
    QByteArray bytes = host::messageBytes(RenderReply{RenderStatus::Done, request.count});
    for (int page = request.page; page < request.page + request.count; ++page) {
        const QSizeF size = pdf.pagePointSize(page);
        bytes += host::messageBytes(host::RenderSize{size.width(), size.height()});
    }
    return bytes;
}

RenderStatus RenderService::draw(QPdfDocument &pdf, const RenderRequest &request,
                                 host::OwnedDescriptor memory) const
{
    if (!hasPages(pdf, request.page, 1))
        return RenderStatus::Damaged;
    if (m_beforeDrawing)
        m_beforeDrawing(request.page);
    auto pixels = host::SharedPixels::map(std::move(memory), {request.width, request.height});
    if (!pixels)
        return RenderStatus::Damaged;
    const QImage drawn =
        pdf.render(request.page, {request.width, request.height}).convertToFormat(host::SharedPixels::format);
    if (drawn.size() != pixels->image().size())
        return RenderStatus::Damaged;
    std::memcpy(pixels->image().bits(), drawn.constBits(), static_cast<std::size_t>(drawn.sizeInBytes()));
    return RenderStatus::Done;
}

} // namespace renderer
} // namespace programs
