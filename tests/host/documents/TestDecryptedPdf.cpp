// SPDX-License-Identifier: Apache-2.0

#include <host/documents/DecryptedPdf.h>
#include <host/documents/LabelDocument.h>
#include <host/documents/LaidOutPdf.h>
#include <tests/samples/SamplePdf.h>

#include <QFile>

#include <gtest/gtest.h>

using host::DocumentErrorKind;
using host::LabelDocument;
using host::PasswordRound;

namespace {

const QString rightPassword = QStringLiteral("Gr\u00fc\u00dfe 漢字");

class DecryptedPdfTest : public ::testing::Test {
protected:
    QString encrypted() const
    {
        return sandbox.write(QStringLiteral("secret.pdf"),
                             pdfWithPageBoxes({"[0 0 68 170]", "[0 0 90 90]"}, rightPassword.toUtf8()));
    }

    /// Returns a function that enters the passwords one after another, and then cancels. Records what it is
    /// asked.
    host::DocumentPasswordSource entering(const QStringList &passwords)
    {
        return [this, left = passwords](const QString &name, PasswordRound round) mutable {
            asked.emplace_back(name, round);
            return left.isEmpty() ? std::nullopt : std::optional(left.takeFirst());
        };
    }

    Sandbox sandbox;
    std::vector<std::pair<QString, PasswordRound>> asked;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

TEST_F(DecryptedPdfTest, NeedsTheRightPassword)
{
    const QString path = encrypted();
    for (const QString &wrong : {QString(), QStringLiteral("secret"), QString(10'000, u'x')}) {
        const auto decrypted = host::decryptPdf(path, wrong);
        ASSERT_FALSE(decrypted);
        EXPECT_EQ(decrypted.error().kind, DocumentErrorKind::WrongPassword);
    }
    const auto decrypted = host::decryptPdf(path, rightPassword);
    ASSERT_TRUE(decrypted);
    const QByteArray content = contentOf(decrypted.value()->fileName());
    EXPECT_TRUE(content.startsWith("%PDF"));
    EXPECT_FALSE(content.contains("/Encrypt"));
}

TEST_F(DecryptedPdfTest, ReportsDamagedDocuments)
{
    const auto decrypted = host::decryptPdf(sandbox.write(QStringLiteral("bad.pdf"), "%PDF-1.4\n"), "x");
    ASSERT_FALSE(decrypted);
    EXPECT_EQ(decrypted.error().kind, DocumentErrorKind::Damaged);
}

TEST_F(DecryptedPdfTest, DocumentsAreShownAndSentDecrypted)
{
    const QString path = encrypted();
    const auto document = LabelDocument::open({path}, entering({"wrong", rightPassword, "never entered"}));
    ASSERT_TRUE(document);
    EXPECT_EQ(asked, (std::vector<std::pair<QString, PasswordRound>>{{path, PasswordRound::First},
                                                                     {path, PasswordRound::Again}}));
    EXPECT_EQ(document.value()->pageCount(), 2);
    EXPECT_EQ(document.value()->pageSize(1), QSizeF(90, 90));
    EXPECT_EQ(document.value()->path(), path);
    EXPECT_TRUE(document.value()->checkForPrinting());
    const QString sent = document.value()->files().front().pathToSend;
    EXPECT_NE(sent, path);
    EXPECT_FALSE(contentOf(sent).contains("/Encrypt"));
    host::PageLayout layout;
    layout.paper = QSizeF(68, 170);
    const auto laidOut = host::layOutPdf(sent, layout, [] { return false; });
    ASSERT_TRUE(laidOut);
    EXPECT_FALSE(contentOf(laidOut.value()->fileName()).contains("/Encrypt"));
    // Another thread reads the same copy.
    const auto again = LabelDocument::openAgain(document.value()->source());
    EXPECT_FALSE(again->renderTransparent(1, {20, 20}).isNull());
}

TEST_F(DecryptedPdfTest, WithoutAPasswordTheDocumentIsRejected)
{
    const QString path = encrypted();
    for (const QStringList &entered : {QStringList(), QStringList{"wrong"}}) {
        const auto document = LabelDocument::open({path}, entering(entered));
        ASSERT_FALSE(document);
        EXPECT_EQ(document.error().kind, DocumentErrorKind::Encrypted);
        EXPECT_TRUE(document.error().message.contains(path)) << document.error().message.toStdString();
    }
    EXPECT_FALSE(LabelDocument::open(path));
}

TEST_F(DecryptedPdfTest, PasswordsAreAskedForEncryptedDocumentsOnly)
{
    const QString plain = sandbox.write(QStringLiteral("plain.pdf"), pdfWithPageBoxes({"[0 0 68 170]"}));
    const QString bad = sandbox.write(QStringLiteral("bad.pdf"), "%PDF-1.4\n");
    EXPECT_TRUE(LabelDocument::open({plain}, entering({"x"})));
    EXPECT_FALSE(LabelDocument::open({bad}, entering({"x"})));
    EXPECT_TRUE(asked.empty());
}
