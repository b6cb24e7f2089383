// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kvprint.h"

#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>

#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The queue that most tests of the program print to.
inline const QString tape = QStringLiteral("tape");

/// A real server, the program, and documents to print.
class KvprintTest : public testing::Test {
protected:
    KvprintTest();

    /// Adds a queue with one of the sample PPDs, "kvelland-lx900".
    void addSampleQueue(const QString &name, const QString &ppd);
    /// The bytes of a sample PPD.
    static QByteArray samplePpd(const QString &name);

    /// Creates the file in the folder and returns its path.
    QString file(const QString &name, const QByteArray &content) const;
    /// A picture of one label, by its file's ending.
    QString picture(const QString &name = QStringLiteral("label.png")) const;
    /// A picture that no packing makes smaller than some hundred thousand bytes.
    QString largePicture() const;

    /// Prints without a dialog: the words and a picture behind them.
    Outcome print(const QStringList &words) const;
    /// As print(), which must succeed; returns the document that the filter received.
    test_support::RecordedDocument printed(const QStringList &words);
    /// Runs the program, which must end with status 1, print the texts on standard error and nothing on
    /// standard output, and leave nothing of the document on the server.
    void expectError(const QStringList &words, const QStringList &messageParts, const QByteArray &input = {});

    /// The documents of jobs by their numbers, as soon as there are so many.
    QMap<int, test_support::RecordedDocument> recorded(std::size_t count) const;
    /// The states of all jobs that the server knows of, by number; IPP's numbers.
    QMap<int, int> jobStates() const;
    /// All attributes of a job on the server, as text.
    QMap<QByteArray, QByteArray> jobAttributes(int jobId) const;
    /// All attributes of a queue on the server, including its defaults for jobs.
    QMap<QByteArray, QByteArray> queueAttributes(const QString &queue) const;

    /// A small document of several pages.
    static QString samplePdf() { return QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"); }

    test_support::PrivateCupsd cupsd;
    QTemporaryDir folder;
    Kvprint kvprint;

private:
    QMap<QByteArray, QByteArray> attributes(int operation, const char *addressName,
                                            const QByteArray &address) const;
};
