// SPDX-License-Identifier: Apache-2.0
#include "OptionGroupPage.h"

#include "OptionControls.h"

#include <QFormLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

namespace dialog {
inline namespace options {

namespace {

/// The maximum number of options that one event adds.
constexpr std::size_t optionsPerForm = 12;

/// How long one event builds; together with its other work it is shorter than one frame of the screen.
constexpr std::chrono::milliseconds slice{8};

} // namespace

OptionGroupPage::OptionGroupPage(const host::PpdFile &ppd, std::vector<QByteArray> keywords, QWidget *parent)
    : QScrollArea(parent)
    , m_ppd(ppd)
    , m_keywords(std::move(keywords))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // The page scrolls to the control that has the focus; it needs no place of its own in the tab order.
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
    const QDeadlineTimer deadline(slice);
    auto *const content = new QWidget(this);
    m_column = new QVBoxLayout(content);
    m_column->addStretch(1);
    // Makes the page grow before its forms are moved; otherwise every slice would squeeze and stretch all of
    // them.
    m_column->setSizeConstraint(QLayout::SetMinimumSize);
    m_labelWidth = labelWidth();
    buildSlice(deadline);
    setWidget(content);
}

void OptionGroupPage::buildSlice(QDeadlineTimer deadline)
{
    const host::PpdOptions options(m_ppd);
    addForm();
    for (std::size_t row = 0; row < optionsPerForm && m_next < m_keywords.size() && !deadline.hasExpired();
         ++row) {
        const std::optional<host::PpdOption> option = options.option(m_keywords[m_next++]);
        if (!option)
            continue;
        OptionControl *const control = addControl(*option);
        control->showMarked(options);
        control->setConflicts(sentencesAbout(control->keyword()));
    }
    m_form->parentWidget()->show();
    if (m_next < m_keywords.size())
        QTimer::singleShot(0, this, [this] { buildSlice(QDeadlineTimer(slice)); });
}

void OptionGroupPage::addForm()
{
    auto *const part = new QWidget(m_column->parentWidget());
    // The form is shown when it has all its rows: each widget added to a visible form is shown by an event of
    // its own.
    part->hide();
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
    const QFontMetrics metrics = fontMetrics();
    const int limit = metrics.averageCharWidth() * 29;
    int widest = 0;
    for (auto keyword = m_keywords.begin(); keyword != m_keywords.end() && widest < limit; ++keyword)
        widest = qMax(widest, metrics.horizontalAdvance(m_ppd.optionText(QString::fromUtf8(*keyword))));
    // A label is slightly wider than its text.
    return qMin(widest, limit) + metrics.averageCharWidth();
}

OptionControl *OptionGroupPage::addControl(const host::PpdOption &option)
{
    auto *const control = makeOptionControl(option, m_form->parentWidget());
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

} // namespace options
} // namespace dialog
