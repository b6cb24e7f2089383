// SPDX-License-Identifier: Apache-2.0
#include "OptionGroupPage.h"

#include "OptionControl.h"

#include <QFormLayout>
#include <QLabel>

namespace dialog {

OptionGroupPage::OptionGroupPage(const host::PpdFile &ppd, std::vector<QByteArray> keywords, QWidget *parent)
    : QScrollArea(parent)
    , m_ppd(ppd)
    , m_keywords(std::move(keywords))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // The page scrolls with its controls; on the way of the Tab key it would only be in between.
    setFocusPolicy(Qt::NoFocus);
}

void OptionGroupPage::showEvent(QShowEvent *event)
{
    build();
    QScrollArea::showEvent(event);
}

void OptionGroupPage::build()
{
    if (m_isBuilt)
        return;
    m_isBuilt = true;
    auto *const content = new QWidget(this);
    auto *const form = new QFormLayout(content);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    const host::PpdOptions options(m_ppd);
    for (const QByteArray &keyword : m_keywords) {
        if (const std::optional<host::PpdOption> option = options.option(keyword))
            addControl(form, *option);
    }
    setWidget(content);
    refresh();
    showConflicts();
}

void OptionGroupPage::addControl(QFormLayout *form, const host::PpdOption &option)
{
    auto *const control = OptionControl::make(option, form->parentWidget());
    m_controls.push_back(control);
    connect(control, &OptionControl::chosen, this,
            [this, control](const QByteArray &value) { Q_EMIT chosen(control->keyword(), value); });
    QWidget *const labelled = control->labelled();
    if (!labelled) {
        form->setWidget(form->rowCount(), QFormLayout::SpanningRole, control);
        return;
    }
    auto *const label = new QLabel(QString(option.text).replace(u'&', QStringLiteral("&&")), this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(labelled);
    form->addRow(label, control);
}

void OptionGroupPage::refresh()
{
    const host::PpdOptions options(m_ppd);
    for (OptionControl *const control : m_controls)
        control->showMarked(options);
}

void OptionGroupPage::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    m_conflicts = conflicts;
    showConflicts();
}

QStringList OptionGroupPage::sentencesAbout(const QByteArray &keyword) const
{
    return host::sentencesAbout({QString::fromUtf8(keyword)}, m_conflicts);
}

QStringList OptionGroupPage::conflictSentences() const
{
    QStringList sentences;
    for (const QByteArray &keyword : m_keywords)
        sentences += sentencesAbout(keyword);
    sentences.removeDuplicates();
    return sentences;
}

void OptionGroupPage::showConflicts()
{
    for (OptionControl *const control : m_controls)
        control->setConflicts(sentencesAbout(control->keyword()));
}

} // namespace dialog
