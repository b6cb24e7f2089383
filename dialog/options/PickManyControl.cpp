// SPDX-License-Identifier: Apache-2.0
#include "PickManyControl.h"

#include <dialog/widgets/PlainToolTip.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
inline namespace options {

namespace {

bool meansNone(const QByteArray &choice)
{
    return std::ranges::any_of(std::initializer_list<const char *>{"None", "Off", "False"},
                               [&](const char *each) { return qstricmp(choice.constData(), each) == 0; });
}

} // namespace

PickManyControl::PickManyControl(const host::PpdOption &option, QWidget *parent)
    : OptionControl(option, parent)
    , m_frame(new QGroupBox(QString(option.text).replace(u'&', QStringLiteral("&&")), this))
{
    auto *const boxes = new QVBoxLayout(m_frame);
    for (const host::PpdChoice &choice : option.choices) {
        if (!m_none && meansNone(choice.name)) {
            m_none = choice.name;
            m_frame->setToolTip(plainToolTip(choice.text));
            continue;
        }
        auto *const box = new QCheckBox(QString(choice.text).replace(u'&', QStringLiteral("&&")), m_frame);
        boxes->addWidget(box);
        m_boxes.emplace_back(choice.name, box);
        connect(box, &QCheckBox::clicked, this, [this] { Q_EMIT chosen(value()); });
    }
    column()->addWidget(m_frame);
    if (!m_boxes.empty())
        setFocusProxy(m_boxes.front().second);
}

QByteArray PickManyControl::value() const
{
    QByteArrayList names;
    for (const auto &[name, box] : m_boxes) {
        if (box->isChecked())
            names.append(name);
    }
    return names.isEmpty() ? m_none.value_or(QByteArray()) : names.join(',');
}

void PickManyControl::showMarked(const host::PpdOptions &options)
{
    const std::vector<QByteArray> marked = options.markedChoices(keyword());
    for (const auto &[name, box] : m_boxes)
        box->setChecked(std::ranges::find(marked, name) != marked.end());
}

QList<QWidget *> PickManyControl::spoken() const
{
    QList<QWidget *> widgets{m_frame};
    for (const auto &[name, box] : m_boxes)
        widgets.append(box);
    return widgets;
}

} // namespace options
} // namespace dialog
