// SPDX-License-Identifier: Apache-2.0
#include "TrustDialog.h"

#include "TrustText.h"

#include <dialog/widgets/QuestionParent.h>

#include <QPointer>
#include <QPushButton>

namespace dialog {
inline namespace job {

namespace {

/// Returns the text with the fingerprint in lines of eight bytes; a message box would break it anywhere.
QString withFingerprintInLines(QString text, const QString &fingerprint)
{
    constexpr qsizetype lineLength = qsizetype{8} * 3;
    QString lines = fingerprint;
    for (qsizetype end = lineLength; end < lines.size(); end += lineLength + 1)
        lines.insert(end, u'\n');
    return fingerprint.isEmpty() ? text : text.replace(fingerprint, lines);
}

} // namespace

TrustDialog::TrustDialog(const host::TrustRequest &request, QWidget *parent)
    : QMessageBox(parent)
    , m_request(request)
{
    const TrustText words(request);
    setAttribute(Qt::WA_DeleteOnClose);
    setIcon(Warning);
    setTextFormat(Qt::PlainText);
    setWindowTitle(words.title);
    setText(words.question);
    setInformativeText(withFingerprintInLines(words.details, request.fingerprint()));
    // The fingerprint can be selected, so that it can be compared with one from another source.
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QPushButton *const trust = addButton(words.action, AcceptRole);
    setDefaultButton(addButton(Cancel));
    connect(this, &QMessageBox::buttonClicked, this, [this, trust](QAbstractButton *pressed) {
        if (pressed == trust)
            m_request.grant();
    });
}

TrustDialog::~TrustDialog()
{
    m_request.reject();
}

host::TrustHandler askTrustWithDialog(QWidget *parent)
{
    return [window = QPointer<QWidget>(parent)](const host::TrustRequest &request) {
        auto *const question = new TrustDialog(request, questionParent(window.data()));
        question->setWindowModality(Qt::WindowModal);
        question->show();
    };
}

} // namespace job
} // namespace dialog
