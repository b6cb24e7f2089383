// SPDX-License-Identifier: Apache-2.0
#include "PasswordDialog.h"

#include <dialog/widgets/QuestionParent.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace dialog {
inline namespace job {

PasswordDialog::PasswordDialog(const host::PasswordRequest &request, QWidget *parent)
    : QDialog(parent)
    , m_request(request)
    , m_user(new QLineEdit(request.user(), this))
    , m_password(new QLineEdit(this))
{
    setWindowTitle(tr("Password for the print server"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *const prompt = new QLabel(request.prompt(), this);
    prompt->setWordWrap(true);
    prompt->setTextFormat(Qt::PlainText);
    m_password->setEchoMode(QLineEdit::Password);
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    auto *const layout = new QFormLayout(this);
    layout->addRow(prompt);
    layout->addRow(tr("&User name"), m_user);
    layout->addRow(tr("&Password"), m_password);
    layout->addRow(buttons);
    m_password->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

PasswordDialog::~PasswordDialog()
{
    m_request.reject();
}

void PasswordDialog::done(int result)
{
    if (result == Accepted)
        m_request.answer(m_user->text(), m_password->text());
    else
        m_request.reject();
    QDialog::done(result);
}

host::PasswordHandler askWithDialog(QWidget *parent)
{
    return [window = QPointer<QWidget>(parent)](const host::PasswordRequest &request) {
        auto *const question = new PasswordDialog(request, questionParent(window.data()));
        question->setWindowModality(Qt::WindowModal);
        question->show();
    };
}

} // namespace job
} // namespace dialog
