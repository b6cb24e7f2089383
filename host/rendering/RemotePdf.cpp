// SPDX-License-Identifier: Apache-2.0
#include "RemotePdf.h"

#include "SharedPixels.h"

#include <cstring>

namespace host {
inline namespace rendering {

namespace {

/// Returns the fault that the renderer reports; absent if the request is done.
std::optional<RenderFault> faultOf(const RenderReply &reply)
{
    switch (reply.status) {
    case RenderStatus::Done:
        return std::nullopt;
    case RenderStatus::PasswordNeeded:
        return RenderFault::PasswordNeeded;
    case RenderStatus::UnsupportedEncryption:
        return RenderFault::UnsupportedEncryption;
    case RenderStatus::Damaged:
        break;
    }
    return RenderFault::Damaged;
}

/// Whether the same request fails again.
bool isLasting(RenderFault fault)
{
    return fault != RenderFault::Canceled && fault != RenderFault::Missing;
}

} // namespace

RemotePdf::RemotePdf(std::shared_ptr<RendererProcess> process, std::unique_ptr<QFile> file)
    : m_process(std::move(process))
    , m_file(std::move(file))
    , m_document(m_process->nextDocument())
{
}

RemotePdf::~RemotePdf()
{
    // The last PDF ends with the process.
    if (m_process.use_count() > 1 && m_generation > 0 && m_generation == m_process->generation())
        (void)m_process->ask({.command = RenderCommand::Close, .document = m_document});
}

Result<int, RenderFault> RemotePdf::open()
{
    const auto answer =
        m_process->ask({.command = RenderCommand::Open, .document = m_document}, m_file->handle());
    if (!answer)
        return answer.error();
    if (const std::optional<RenderFault> fault = faultOf(answer.value().reply))
        return *fault;
    m_generation = m_process->generation();
    return answer.value().reply.count;
}

Result<RendererProcess::Answer, RenderFault> RemotePdf::ask(RenderRequest request, int descriptor)
{
    m_process->start();
    if (m_generation != m_process->generation()) {
        if (const auto opened = open(); !opened)
            return opened.error();
    }
    request.document = m_document;
    auto answer = m_process->ask(request, descriptor);
    if (!answer)
        return answer;
    if (const std::optional<RenderFault> fault = faultOf(answer.value().reply))
        return *fault;
    return answer;
}

Result<std::vector<QSizeF>, RenderFault> RemotePdf::sizes(int first, int count)
{
    const auto answer = ask({.command = RenderCommand::ReadSizes, .page = first, .count = count});
    if (!answer)
        return answer.error();
    const QByteArray &bytes = answer.value().bytes;
    if (answer.value().reply.count != count || bytes.size() != count * qsizetype(sizeof(RenderSize)))
        return RenderFault::Damaged;
    std::vector<QSizeF> sizes;
    for (qsizetype at = 0; at < bytes.size(); at += sizeof(RenderSize)) {
        RenderSize size;
        std::memcpy(&size, bytes.constData() + at, sizeof(size));
        sizes.emplace_back(size.width, size.height);
    }
    return sizes;
}

Result<QImage, RenderFault> RemotePdf::draw(int page, QSize size)
{
    if (const auto known = m_faults.constFind(page); known != m_faults.cend())
        return *known;
    std::optional<SharedPixels> pixels = SharedPixels::make(size);
    if (!pixels)
        return RenderFault::TooLarge;
    const auto answer =
        ask({.command = RenderCommand::Draw, .page = page, .width = size.width(), .height = size.height()},
            pixels->descriptor());
    if (answer)
        return std::move(pixels->image());
    if (isLasting(answer.error()))
        m_faults.insert(page, answer.error());
    return answer.error();
}

} // namespace rendering
} // namespace host
