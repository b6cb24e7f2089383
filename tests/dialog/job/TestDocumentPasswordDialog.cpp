// SPDX-License-Identifier: Apache-2.0

#include <dialog/job/DocumentPasswordDialog.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

using dialog::DocumentPasswordDialog;
using host::PasswordRound;

namespace {

QStringList labelsOf(const QWidget &widget)
{
    QStringList texts;
    for (const QLabel *const label : widget.findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

/// Executes the action while the next dialog is open.
template<typename Action>
void whenOpen(Action action)
{
    QTimer::singleShot(0, qApp, [action] {
        auto *const dialog = qobject_cast<DocumentPasswordDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        action(*dialog);
    });
}

} // namespace

TEST(DocumentPasswordDialog, NamesTheDocumentAndShowsNoPassword)
{
    const DocumentPasswordDialog dialog(QStringLiteral("/a/b/<b>labels.pdf"), PasswordRound::First, nullptr);
    EXPECT_TRUE(labelsOf(dialog).contains(QStringLiteral("The document \"<b>labels.pdf\" is encrypted.")))
        << labelsOf(dialog).join(u'|').toStdString();
    EXPECT_EQ(dialog.findChild<QLineEdit *>()->echoMode(), QLineEdit::Password);
    EXPECT_FALSE(labelsOf(dialog).contains(QStringLiteral("The password is wrong.")));
}

TEST(DocumentPasswordDialog, SaysThatThePasswordWasWrong)
{
    const DocumentPasswordDialog dialog(QStringLiteral("-"), PasswordRound::Again, nullptr);
    EXPECT_TRUE(labelsOf(dialog).contains(QStringLiteral("The document on standard input is encrypted.")));
    EXPECT_TRUE(labelsOf(dialog).contains(QStringLiteral("The password is wrong.")));
}

TEST(DocumentPasswordDialog, ReturnsWhatIsEntered)
{
    whenOpen([](DocumentPasswordDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(QStringLiteral(" p w "));
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open)->click();
    });
    EXPECT_EQ(dialog::askDocumentPasswordWithDialog(QStringLiteral("a.pdf"), PasswordRound::First),
              QStringLiteral(" p w "));
}

TEST(DocumentPasswordDialog, ReturnsNothingWhenItIsCanceled)
{
    whenOpen([](DocumentPasswordDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(QStringLiteral("secret"));
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
    });
    EXPECT_EQ(dialog::askDocumentPasswordWithDialog(QStringLiteral("a.pdf"), PasswordRound::First),
              std::nullopt);
}
