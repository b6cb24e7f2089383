// SPDX-License-Identifier: Apache-2.0
#include "JobPage.h"

#include "HoldTime.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimeEdit>

namespace dialog {
inline namespace job {

namespace {

constexpr int maxPriority = 100;

/// The entry that shows the field for a time.
const QString atATime = QStringLiteral("time");

/// Values of lp and the server that have the same meaning as an entry of the list.
struct Synonym {
    const char *word;
    const char *meaning;
};
constexpr Synonym synonyms[] = {
    {"indefinite", "hold"},
    {"no-hold", "resume"},
    {"release", "resume"},
    {"immediate", "resume"},
};

QString canonicalHold(const QString &hold)
{
    for (const Synonym &synonym : synonyms) {
        if (hold == QLatin1String(synonym.word))
            return QLatin1String(synonym.meaning);
    }
    return hold;
}

} // namespace

JobPage::JobPage(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLineEdit(this))
    , m_orientation(new QComboBox(this))
    , m_scaling(new QComboBox(this))
    , m_hold(new QComboBox(this))
    , m_time(new QTimeEdit(this))
    , m_priority(new QSpinBox(this))
{
    build();
    connect(m_title, &QLineEdit::textEdited, this, &JobPage::changed);
    connect(m_orientation, &QComboBox::activated, this, &JobPage::changed);
    connect(m_scaling, &QComboBox::activated, this, &JobPage::changed);
    connect(m_hold, &QComboBox::activated, this, &JobPage::holdChosen);
    connect(m_time, &QTimeEdit::userTimeChanged, this, &JobPage::changed);
    connect(m_priority, &QSpinBox::valueChanged, this, &JobPage::changed);
}

void JobPage::build()
{
    // The maximum length of IPP's type name (RFC 8011), in bytes; sending shortens the name further if
    // needed.
    constexpr int maxTitleLength = 255;
    m_title->setMaxLength(maxTitleLength);
    fillOrientations();
    fillScalings();
    fillHolds();
    m_time->setAccessibleName(tr("Print time"));
    // Qt reverses a time in a right-to-left window, but times are written from left to right there.
    m_time->setLayoutDirection(Qt::LeftToRight);
    m_time->setDisplayFormat(locale().timeFormat(QLocale::ShortFormat));
    // A job may be held until after midnight: stepping up from 23 leads to 0.
    m_time->setWrapping(true);
    m_time->hide();
    // 0 stands for the queue's default.
    m_priority->setRange(0, maxPriority);
    m_priority->setSpecialValueText(tr("Queue default"));
    m_priority->setToolTip(tr("From 1 to 100; jobs with a higher priority are printed before others"));

    auto *const when = new QHBoxLayout;
    when->addWidget(m_hold, 1);
    when->addWidget(m_time);
    auto *const form = new QFormLayout(this);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Job &name"), m_title);
    form->addRow(tr("Orienta&tion"), m_orientation);
    form->addRow(tr("Page si&ze"), m_scaling);
    auto *const whenLabel = new QLabel(tr("When to pr&int"), this);
    whenLabel->setBuddy(m_hold);
    form->addRow(whenLabel, when);
    form->addRow(tr("Priorit&y"), m_priority);
}

void JobPage::fillOrientations()
{
    m_orientation->addItem(tr("Printer default"));
    const std::pair<host::Orientation, QString> entries[] = {
        {host::Orientation::Portrait, tr("Portrait")},
        {host::Orientation::Landscape, tr("Landscape")},
        {host::Orientation::ReverseLandscape, tr("Reverse landscape")},
        {host::Orientation::ReversePortrait, tr("Reverse portrait")},
    };
    for (const auto &[orientation, text] : entries)
        m_orientation->addItem(text, static_cast<int>(orientation));
}

void JobPage::fillScalings()
{
    m_scaling->addItem(tr("Queue default"));
    const std::pair<host::Scaling, QString> entries[] = {
        {host::Scaling::ShrinkLarge, tr("Shrink pages larger than the label")},
        {host::Scaling::Fit, tr("Fit to the printable area")},
        {host::Scaling::Fill, tr("Fill the label")},
        {host::Scaling::ActualSize, tr("Actual size")},
    };
    for (const auto &[scaling, text] : entries)
        m_scaling->addItem(text, static_cast<int>(scaling));
}

void JobPage::fillHolds()
{
    m_hold->addItem(tr("Queue default"));
    const std::pair<QString, QString> entries[] = {
        {QStringLiteral("resume"), tr("Now")},
        {QStringLiteral("hold"), tr("When it is released")},
        {atATime, tr("At a specific time")},
        {QStringLiteral("day-time"), tr("During the day")},
        {QStringLiteral("evening"), tr("In the evening")},
        {QStringLiteral("night"), tr("At night")},
        {QStringLiteral("second-shift"), tr("In the second shift")},
        {QStringLiteral("third-shift"), tr("In the third shift")},
        {QStringLiteral("weekend"), tr("At the weekend")},
    };
    for (const auto &[hold, text] : entries)
        m_hold->addItem(text, hold);
}

void JobPage::setSettings(const host::JobSettings &settings)
{
    const QSignalBlocker quiet(this);
    const int orientation =
        settings.orientation ? m_orientation->findData(static_cast<int>(*settings.orientation)) : 0;
    m_orientation->setCurrentIndex(orientation);
    m_scaling->setCurrentIndex(settings.scaling ? m_scaling->findData(static_cast<int>(*settings.scaling))
                                                : 0);
    showHold(settings.hold.value_or(QString()));
    // lp sends a job with "immediate" at the highest priority, so that it is printed before all others.
    const bool isFirst = settings.hold == QStringLiteral("immediate");
    m_priority->setValue(settings.priority.value_or(isFirst ? maxPriority : 0));
}

void JobPage::showHold(const QString &hold)
{
    const std::optional<QTime> time = localTimeFromHold(hold, QDateTime::currentDateTime());
    if (time)
        m_time->setTime(*time);
    m_time->setVisible(time.has_value());
    const QString entry = time ? atATime : canonicalHold(hold);
    int index = entry.isEmpty() ? 0 : m_hold->findData(entry);
    if (index < 0) {
        m_hold->addItem(entry, entry);
        index = m_hold->count() - 1;
    }
    m_hold->setCurrentIndex(index);
}

void JobPage::holdChosen()
{
    const bool hasTime = m_hold->currentData().toString() == atATime;
    if (hasTime && m_time->isHidden()) {
        // Start with the next full hour.
        constexpr int secondsPerHour = 3600;
        const QTime later = QTime::currentTime().addSecs(secondsPerHour);
        m_time->setTime(QTime(later.hour(), 0));
    }
    m_time->setVisible(hasTime);
    Q_EMIT changed();
}

std::optional<QString> JobPage::hold() const
{
    if (m_hold->currentIndex() <= 0)
        return std::nullopt;
    const QString entry = m_hold->currentData().toString();
    return entry == atATime ? holdFromLocalTime(m_time->time(), QDateTime::currentDateTime()) : entry;
}

host::JobSettings JobPage::settings() const
{
    host::JobSettings settings;
    if (m_orientation->currentIndex() > 0)
        settings.orientation = static_cast<host::Orientation>(m_orientation->currentData().toInt());
    if (m_scaling->currentIndex() > 0)
        settings.scaling = static_cast<host::Scaling>(m_scaling->currentData().toInt());
    settings.hold = hold();
    if (m_priority->value() > 0)
        settings.priority = m_priority->value();
    return settings;
}

QString JobPage::title() const
{
    return m_title->text();
}

void JobPage::setTitle(const QString &title)
{
    m_title->setText(title);
    // Show the beginning of the name, where names differ.
    m_title->setCursorPosition(0);
}

} // namespace job
} // namespace dialog
