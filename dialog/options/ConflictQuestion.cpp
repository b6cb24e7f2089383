// SPDX-License-Identifier: Apache-2.0
#include "ConflictQuestion.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace dialog {
inline namespace options {

namespace {

struct ConflictQuestionText {
    Q_DECLARE_TR_FUNCTIONS(dialog::options::ConflictQuestion)
};

} // namespace

bool confirmConflicts(const QString &sentences, QWidget *parent)
{
    QMessageBox question(
        QMessageBox::Warning, parent->windowTitle(),
        ConflictQuestionText::tr("The printer does not support this combination of settings."),
        QMessageBox::NoButton, parent);
    question.setInformativeText(sentences);
    const QPushButton *const print =
        question.addButton(ConflictQuestionText::tr("Print anyway"), QMessageBox::AcceptRole);
    question.setDefaultButton(
        question.addButton(ConflictQuestionText::tr("Cancel"), QMessageBox::RejectRole));
    question.exec();
    return question.clickedButton() == print;
}

} // namespace options
} // namespace dialog
