// SPDX-License-Identifier: Apache-2.0
#include "OptionGroupPage.h"

#include "OptionControl.h"

#include <QDeadlineTimer>
#include <QFormLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace dialog {

namespace {

/// A form is laid out anew with every row; a long one takes longer than the making of its controls.
constexpr std::size_t optionsPerForm = 50;

} // namespace

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
    if (m_column)
        return;
    auto *const content = new QWidget(this);
    m_column = new QVBoxLayout(content);
    m_column->addStretch(1);
    // The page grows before its forms are moved; else all of them would be squeezed and stretched with every
    // slice.
    m_column->setSizeConstraint(QLayout::SetMinimumSize);
    m_labelWidth = labelWidth();
    // More than what is seen at first in any window.
    constexpr std::chrono::milliseconds firstSlice{20};
    buildSlice(firstSlice);
    setWidget(content);
}

void OptionGroupPage::buildSlice(std::chrono::milliseconds duration)
{
    const QDeadlineTimer deadline(duration);
    const host::PpdOptions options(m_ppd);
    for (; m_next < m_keywords.size() && !deadline.hasExpired(); ++m_next) {
        if (m_next % optionsPerForm == 0)
            addForm();
        const std::optional<host::PpdOption> option = options.option(m_keywords[m_next]);
        if (!option)
            continue;
        OptionControl *const control = addControl(*option);
        control->showMarked(options);
        control->setConflicts(sentencesAbout(control->keyword()));
    }
    static constexpr std::chrono::milliseconds slice{10};
    if (m_next < m_keywords.size())
        QTimer::singleShot(0, this, [this] { buildSlice(slice); });
}

void OptionGroupPage::addForm()
{
    auto *const part = new QWidget(m_column->parentWidget());
    m_form = new QFormLayout(part);
    m_form->setContentsMargins({});
    m_form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_column->insertWidget(m_column->count() - 1, part);
    m_column->setSpacing(m_form->verticalSpacing());
}

int OptionGroupPage::labelWidth() const
{
    if (m_keywords.size() <= optionsPerForm)
        return 0;
    int widest = 0;
    for (const QByteArray &keyword : m_keywords)
        widest = qMax(widest, fontMetrics().horizontalAdvance(m_ppd.optionText(QString::fromUtf8(keyword))));
    // A label is a little wider than its letters.
    return qMin(widest + fontMetrics().averageCharWidth(), fontMetrics().averageCharWidth() * 30);
}

OptionControl *OptionGroupPage::addControl(const host::PpdOption &option)
{
    auto *const control = OptionControl::make(option, m_form->parentWidget());
    m_controls.push_back(control);
    connect(control, &OptionControl::chosen, this,
            [this, control](const QByteArray &value) { Q_EMIT chosen(control->keyword(), value); });
    QWidget *const labelled = control->labelled();
    if (!labelled) {
        m_form->setWidget(m_form->rowCount(), QFormLayout::SpanningRole, control);
        return control;
    }
    auto *const label = new QLabel(QString(option.text).replace(u'&', QStringLiteral("&&")), this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(labelled);
    label->setMinimumWidth(m_labelWidth);
    m_form->addRow(label, control);
    return control;
}

void OptionGroupPage::refresh()
{
    const host::PpdOptions options(m_ppd);
    for (OptionControl *const control : m_controls)
        control->showMarked(options);
}

void OptionGroupPage::setConflicts(const QHash<QString, QStringList> &sentences)
{
    m_conflicts = sentences;
    showConflicts();
}

QStringList OptionGroupPage::sentencesAbout(const QByteArray &keyword) const
{
    return m_conflicts.value(QString::fromUtf8(keyword));
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
