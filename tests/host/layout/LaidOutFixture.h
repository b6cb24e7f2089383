// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tests/samples/RawPdf.h>
#include <tests/samples/Sandbox.h>

#include <host/documents/LaidOutPdf.h>

#include <gtest/gtest.h>

#include <QFile>

/// The sample printer's tape of 24 x 60 mm.
inline const QSizeF sampleTape(68.03, 170.08);
inline const QMarginsF sampleMargins(8.50, 5.67, 8.50, 5.67);

/// Lays out documents and reads the result.
class LaidOutFixture : public testing::Test {
protected:
    QString store(const QByteArray &pdf)
    {
        const QString path = sandbox.path(QStringLiteral("document%1.pdf").arg(++m_count));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(pdf);
        return path;
    }

    /// Lays out the document; returns the path of what is sent, the document itself if it does not change.
    QString layOut(const QString &path, const host::PageLayout &layout)
    {
        auto result = host::layOutPdf(path, layout, [] { return false; });
        EXPECT_TRUE(result) << (result ? "" : qPrintable(result.error().reason));
        laidOut = result ? std::move(result).value() : nullptr;
        return laidOut ? laidOut->fileName() : path;
    }

    Sandbox sandbox;
    std::unique_ptr<platform::TemporaryFile> laidOut;

private:
    int m_count = 0;
};
