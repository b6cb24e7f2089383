// SPDX-License-Identifier: Apache-2.0
#include "DocumentPasswordDialog.h"

#include <host/documents/DocumentError.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace dialog {
inline namespace job {

DocumentPasswordDialog::DocumentPasswordDialog(const QString &documentName, host::PasswordRound round,
                                               QWidget *parent)
    : QDialog(parent)
    , m_password(new QLineEdit(this))
{
    setWindowTitle(tr("Password for the document"));
    const QString encrypted =
        documentName == host::standardInputName
            ? tr("The document on standard input is encrypted.")
            : tr("The document \"%1\" is encrypted.").arg(QFileInfo(documentName).fileName());
    auto *const prompt = new QLabel(encrypted, this);
    prompt->setWordWrap(true);
    prompt->setTextFormat(Qt::PlainText);
    m_password->setEchoMode(QLineEdit::Password);
    // Wide enough for a usual password, and for the sentence above it.
    constexpr int characters = 32;
    m_password->setMinimumWidth(characters * fontMetrics().averageCharWidth());
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    auto *const layout = new QFormLayout(this);
    layout->addRow(prompt);
    if (round == host::PasswordRound::Again)
        layout->addRow(new QLabel(tr("The password is wrong."), this));
    layout->addRow(tr("&Password"), m_password);
    layout->addRow(buttons);
    m_password->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString DocumentPasswordDialog::password() const
{
    return m_password->text();
}

std::optional<QString> askDocumentPasswordWithDialog(const QString &documentName, host::PasswordRound round)
{
    DocumentPasswordDialog dialog(documentName, round, nullptr);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.password()) : std::nullopt;
}

} // namespace job
} // namespace dialog
