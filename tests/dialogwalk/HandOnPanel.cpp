// SPDX-License-Identifier: Apache-2.0
// What is done on the printer's cut panel.
#include "Gestures.h"
#include "Hand.h"
#include "Hands.h"

#include <platform/PopUpButton.h>
#include <platform/Stepper.h>

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>

namespace dialogwalk {

namespace {

const QString panelTab = QStringLiteral("Cut Options");

} // namespace

QString Hand::onPanel(const Step &step)
{
    if (!m_dialog.panel().isShown() || !m_dialog.hasTab(panelTab))
        return {};
    m_dialog.chooseTab(panelTab);
    if (step.action <= Action::ToggleBoxByAccessibility)
        return onBox(step);
    return step.action <= Action::StepPresetByKey ? onPreset(step) : onCount(step);
}

void Hand::boxClicked(const QCheckBox *box, bool wasOn)
{
    if (const char *const keyword = PanelBoxes::keywordOf(m_dialog.panel(), box))
        m_intent.choose({{keyword, wasOn ? "OFF" : "ON"}});
    else if (wasOn)
        chooseShown({QStringLiteral("KvAutoTapeCut")});
}

QString Hand::onBox(const Step &step)
{
    std::vector<QCheckBox *> boxes = m_dialog.panel().boxes();
    std::erase_if(boxes, [](const QCheckBox *box) { return !box->isEnabled(); });
    if (boxes.empty())
        return {};
    QCheckBox *const box = boxes[step.number % boxes.size()];
    const bool wasOn = box->isChecked();
    if (step.action == Action::ClickBox)
        Hands::click(box);
    else if (step.action == Action::ToggleBoxBySpaceBar)
        Gestures::pressIn(box, Qt::Key_Space);
    else
        QAccessible::queryAccessibleInterface(box)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
    boxClicked(box, wasOn);
    return box->objectName() + (wasOn ? QStringLiteral(" off") : QStringLiteral(" on"));
}

void Hand::clickBox(const QString &name)
{
    m_dialog.chooseTab(panelTab);
    QCheckBox *const box = m_dialog.panel().box(qPrintable(name));
    const bool wasOn = box->isChecked();
    Hands::click(box);
    boxClicked(box, wasOn);
    EXPECT_TRUE(m_dialog.refresh());
}

void Hand::presetChosen(int tag)
{
    m_intent.choose(m_dialog.panel().ofPreset(tag));
    chooseShown(m_dialog.printer().cutKeywords);
}

void Hand::chooseShown(const QStringList &keywords)
{
    const OptionTexts shown = m_dialog.panel().chosen();
    const QByteArray paper = m_dialog.options().value("PageSize");
    for (const QString &keyword : keywords) {
        const QByteArray name = keyword.toLatin1();
        if (shown.contains(name) && mayBeReplaced(name, paper))
            m_intent.choose({{name, shown.value(name)}});
    }
}

QString Hand::onPreset(const Step &step)
{
    platform::PopUpButton *const presets = m_dialog.panel().presets();
    if (!presets->isEnabled() || presets->count() == 0)
        return {};
    // Often the current combination: choosing it changes nothing, but counts as a choice.
    const bool isSame = step.number % 4 == 0 && presets->currentIndex() >= 0;
    int row = isSame ? presets->currentIndex()
                     : static_cast<int>(step.number / 4 % static_cast<std::uint32_t>(presets->count()));
    if (step.action == Action::PickPreset) {
        if (!Gestures::pickRow(presets, row))
            return {};
    } else {
        const int before = presets->currentIndex();
        Gestures::pressIn(presets, step.number % 2 == 0 ? Qt::Key_Down : Qt::Key_Up);
        row = presets->currentIndex();
        if (row == before)
            return {};
    }
    presetChosen(presets->tagOfItem(row));
    return QStringLiteral("preset %1").arg(presets->tagOfItem(row));
}

void Hand::pickPreset(int row)
{
    m_dialog.chooseTab(panelTab);
    platform::PopUpButton *const presets = m_dialog.panel().presets();
    if (Gestures::pickRow(presets, row))
        presetChosen(presets->tagOfItem(row));
    EXPECT_TRUE(m_dialog.refresh());
}

QString Hand::changeBoxByTimer(std::uint32_t number)
{
    if (!m_dialog.panel().isShown() || !m_dialog.hasTab(panelTab))
        return {};
    // Boxes that no rule greys.
    QCheckBox *const box = m_dialog.panel().box(number % 2 == 0 ? "mMirrorPrintChkBx" : "mCutAndEndChkBx");
    if (!box)
        return {};
    m_dialog.chooseTab(QStringLiteral("Summary"));
    const bool wasOn = box->isChecked();
    QEventLoop loop;
    QTimer::singleShot(0, box, [&] {
        // Without a report to the dialog, nor an event for the view behind the page in front.
        box->toggle();
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop,
                         &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    boxClicked(box, wasOn);
    return box->objectName() + (wasOn ? QStringLiteral(" off") : QStringLiteral(" on"));
}

void Hand::countChosen(int count)
{
    m_intent.choose({{"KvCutLabel", QByteArray::number(std::clamp(count, 1, 99))}});
}

QString Hand::onCount(const Step &step)
{
    const PanelBoxes panel = m_dialog.panel();
    if (!panel.hasCount() || !panel.count()->isEnabled() || !panel.stepper()->isEnabled())
        return {};
    constexpr int counts[] = {1, 2, 3, 4, 7, 12, 99, 150};
    int count = counts[step.number % std::size(counts)];
    const int before = panel.count()->text().toInt();
    const bool isUp = step.number % 2 == 0;
    if (step.action == Action::StepCount) {
        platform::Stepper *const stepper = panel.stepper();
        const QPoint place(stepper->width() / 2, isUp ? 3 : stepper->height() - 3);
        QTest::mouseClick(m_dialog.window().windowHandle(), Qt::LeftButton, {},
                          stepper->mapTo(&m_dialog.window(), place));
        QApplication::processEvents();
        count = before + (isUp ? 1 : -1);
    } else if (step.action == Action::StepCountByKey) {
        Gestures::pressIn(panel.stepper(), isUp ? Qt::Key_Up : Qt::Key_PageDown);
        count = before + (isUp ? 1 : -10);
    } else if (step.action == Action::TypeCount) {
        Hands::typeInto(panel.count(), QString::number(count));
    } else if (isUp) {
        QAccessible::queryAccessibleInterface(panel.count())
            ->setText(QAccessible::Value, QString::number(count));
    } else {
        QAccessible::queryAccessibleInterface(panel.stepper())->valueInterface()->setCurrentValue(count);
    }
    // The box of the count follows the mark of automatic cutting, and greys the field at the first digit.
    countChosen(panel.count()->isEnabled() ? count : panel.count()->text().toInt());
    return QString::number(count);
}

} // namespace dialogwalk
