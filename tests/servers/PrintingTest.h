// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Servers.h"

#include <host/cups/jobs/JobSubmission.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/Waiting.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using test_support::waitUntil;

/// A real server with a queue "tape", and helper functions to print to it.
class PrintingTest : public testing::Test {
protected:
    /// The outcome of one job.
    struct Outcome {
        std::optional<int> jobId;
        std::optional<host::CupsError> error;
        std::vector<host::UploadProgress> progress;
    };

    void SetUp() override
    {
        server = serverAt(cupsd.address());
        cupsd.addQueue(QStringLiteral("tape"), ppd.ppd());
        QFile file(folder.filePath(QStringLiteral("tape.ppd")));
        ASSERT_TRUE(ppd.writeTo(file.fileName()));
        auto opened = host::PpdFile::open(file.fileName());
        ASSERT_TRUE(opened);
        tapePpd = std::move(opened).value();
    }

    QString document(const QString &name, const QByteArray &content = "a label\n") const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    host::JobTicket ticket(const std::vector<host::JobChoice> &choices = {},
                           const host::JobSettings &settings = {}) const
    {
        host::JobTicket job;
        job.destination.queue = QStringLiteral("tape");
        job.title = QStringLiteral("Labels");
        job.options = makeJobOptions(job.destination, &*tapePpd, choices, settings);
        job.documents = {{document(QStringLiteral("label.txt"))}};
        return job;
    }

    /// As ticket(), with a second document of this size in bytes.
    host::JobTicket ticketOfTwo(const host::JobSettings &settings = {}, qsizetype secondSize = 10) const
    {
        host::JobTicket job = ticket({}, settings);
        job.documents.push_back({document(QStringLiteral("second.txt"), QByteArray(secondSize, 'b'))});
        return job;
    }

    static Outcome wait(host::JobSubmission &submission, const host::JobTicket &job)
    {
        Outcome outcome;
        QObject context;
        QObject::connect(&submission, &host::JobSubmission::submitted, &context,
                         [&](int jobId) { outcome.jobId = jobId; });
        QObject::connect(&submission, &host::JobSubmission::failed, &context,
                         [&](const host::CupsError &error) { outcome.error = error; });
        QObject::connect(&submission, &host::JobSubmission::progressed, &context,
                         [&](const host::UploadProgress &now) { outcome.progress.push_back(now); });
        submission.submit(job);
        EXPECT_TRUE(waitUntil([&] { return outcome.jobId || outcome.error; }));
        return outcome;
    }
    Outcome print(const host::JobTicket &job) const { return print(job, server); }
    static Outcome print(const host::JobTicket &job, const host::CupsServer &to)
    {
        host::JobSubmission submission(to);
        Outcome outcome = wait(submission, job);
        EXPECT_FALSE(submission.isBusy());
        return outcome;
    }

    /// Expects that no document has been printed and that no job waits.
    void expectNothingWaits() const
    {
        EXPECT_EQ(cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o")}), "");
        EXPECT_TRUE(cupsd.documents().empty());
    }

    test_support::PpdBuilder ppd = test_support::PpdBuilder().allOptions();
    test_support::PrivateCupsd cupsd;
    QTemporaryDir folder;
    std::optional<host::PpdFile> tapePpd;
    host::CupsServer server;
};
