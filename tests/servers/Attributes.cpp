// SPDX-License-Identifier: Apache-2.0
#include "Attributes.h"

#include <host/cups/server/CupsConnection.h>

#include <gtest/gtest.h>

namespace {

QMap<QByteArray, QByteArray> ask(const host::CupsServer &server, ipp_op_t operation, const QString &queue,
                                 int jobId, ipp_tag_t group)
{
    host::BackgroundTask task;
    auto connection = host::CupsConnection::open(server, task);
    EXPECT_TRUE(connection);
    host::IppPointer request = connection.value().newRequest(operation, queue);
    if (jobId > 0)
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    const auto answer = connection.value().exchange(std::move(request), "/");
    EXPECT_TRUE(answer) << qPrintable(answer.error().message);
    QMap<QByteArray, QByteArray> all;
    for (ipp_attribute_t *each = ippFirstAttribute(answer.value().get()); each;
         each = ippNextAttribute(answer.value().get())) {
        char text[4096] = {};
        ippAttributeString(each, text, sizeof text);
        if (ippGetGroupTag(each) == group && ippGetName(each))
            all.insert(ippGetName(each), text);
    }
    return all;
}

} // namespace

QMap<QByteArray, QByteArray> jobAttributes(const host::CupsServer &server, int jobId)
{
    QMap<QByteArray, QByteArray> all =
        ask(server, IPP_OP_GET_JOB_ATTRIBUTES, QStringLiteral("tape"), jobId, IPP_TAG_JOB);
    for (const char *own : {"job-id", "job-uuid", "job-uri", "job-more-info", "time-at-creation",
                            "date-time-at-creation", "job-printer-up-time", "time-at-processing",
                            "date-time-at-processing", "job-state", "job-state-reasons"})
        all.remove(own);
    return all;
}

QMap<QByteArray, QByteArray> queueDefaults(const host::CupsServer &server, const QString &queue)
{
    return ask(server, IPP_OP_GET_PRINTER_ATTRIBUTES, queue, 0, IPP_TAG_PRINTER);
}
