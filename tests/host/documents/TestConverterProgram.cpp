// SPDX-License-Identifier: Apache-2.0

#include <host/documents/ConverterProgram.h>

#include <QBuffer>

#include <gtest/gtest.h>

using host::ConverterProgram;

TEST(ConverterProgram, ThatIsMissingIsNamedInTheError)
{
    ConverterProgram converter(QStringLiteral("nothing"));
    EXPECT_EQ(converter.run({}, QByteArray(1 << 20, 'x')), ConverterProgram::End::Missing);
    EXPECT_TRUE(converter.output().isEmpty());
    const host::DocumentErrorReason problem = converter.missing();
    EXPECT_EQ(problem.kind, host::DocumentErrorKind::Unreadable);
    EXPECT_TRUE(problem.reason.contains(QStringLiteral("/kvprint-nothing\""))) << qPrintable(problem.reason);
}

TEST(ConverterProgram, RejectsWrongArguments)
{
    for (const QStringList &arguments : {QStringList(), QStringList{"1", "1", "1", "/A", "[", "1"}}) {
        ConverterProgram converter(QStringLiteral("imagepdf"));
        EXPECT_EQ(converter.run(arguments, QByteArray(1 << 20, 'x')), ConverterProgram::End::Rejected);
    }
}

TEST(ConverterProgram, PdfsThatDoNotFitAreReported)
{
    QBuffer closed;
    const auto problem = host::storePdf("%PDF", &closed);
    ASSERT_TRUE(problem);
    EXPECT_EQ(problem->kind, host::DocumentErrorKind::NotStored);
}
