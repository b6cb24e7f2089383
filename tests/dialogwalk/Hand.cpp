// SPDX-License-Identifier: Apache-2.0
#include "Hand.h"

#include "Gestures.h"
#include "Hands.h"
#include "OptionLists.h"
#include "PageFields.h"
#include "PaperRows.h"
#include "RollControls.h"
#include "Views.h"

#include <dialog/options/ConflictBanner.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <QTabWidget>
#include <gtest/gtest.h>

namespace dialogwalk {

namespace {

QPushButton *buttonOf(const QWidget *parent, const QString &text)
{
    for (QPushButton *const each : parent->findChildren<QPushButton *>()) {
        if (each->text().remove(u'&') == text && each->isVisible())
            return each;
    }
    return nullptr;
}

} // namespace

void Hand::enter()
{
    if (m_dialog.window().ticket())
        m_intent.enter(m_dialog.destination(), m_dialog.options());
}

QString Hand::perform(const Step &step)
{
    // A window manager does so when an alert closes.
    if (!m_dialog.window().isActiveWindow()) {
        m_dialog.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_dialog.window()));
    }
    QString done;
    if (step.action <= Action::SetCountByAccessibility)
        done = onPanel(step);
    else if (step.action <= Action::StepPaperByKey)
        done = onPaper(step);
    else if (step.action == Action::TurnToPage)
        done = turnToPage(step.number);
    else if (step.action == Action::ChangeBoxByTimer)
        done = changeBoxByTimer(step.number);
    else if (step.action == Action::OperateRoll)
        done = operateRoll(step.number);
    else if (step.action == Action::PickQueue)
        done = changeQueue(step.number);
    else if (step.action <= Action::StepOptionByKey)
        done = onOptions(step);
    else if (step.action == Action::PressRemedy)
        done = pressRemedy();
    else if (step.action <= Action::TypePages)
        done = onPages(step);
    else if (step.action == Action::ReplacePpd)
        done = replacePpd();
    else
        done = step.action == Action::Print ? printAndReopen(step.number) : reopen(step.number);
    EXPECT_TRUE(m_dialog.refresh());
    return done;
}

QString Hand::onPaper(const Step &step)
{
    const PaperRows papers(m_dialog);
    if (papers.isEmpty())
        return {};
    if (step.action == Action::PickPaper) {
        const QByteArray name = papers.someOfKind(step.number);
        pickPaper(name);
        return QString::fromUtf8(name);
    }
    Gestures::pressIn(papers.list(), step.number % 2 == 0 ? Qt::Key_Down : Qt::Key_Up);
    const std::optional<QByteArray> name = papers.current();
    if (!name) {
        // The fields of a free size have opened; back to a paper of the list.
        Gestures::pressIn(papers.list(), Qt::Key_Down);
    }
    m_intent.choose({{"PageSize", papers.current().value_or(QByteArray())}});
    return QString::fromUtf8(papers.current().value_or(QByteArray()));
}

void Hand::pickPaper(const QByteArray &name)
{
    PaperRows(m_dialog).click(name);
    m_intent.choose({{"PageSize", name}});
    EXPECT_TRUE(m_dialog.refresh());
}

QString Hand::turnToPage(std::uint32_t number)
{
    const QStringList tabs = m_dialog.tabs();
    const QString &tab = tabs[static_cast<qsizetype>(number) % tabs.size()];
    m_dialog.chooseTab(tab);
    return tab;
}

void Hand::pickQueue(const QString &destination)
{
    QComboBox *chooser = nullptr;
    for (QComboBox *const each : m_dialog.window().findChildren<QComboBox *>()) {
        if (each->accessibleName() == QStringLiteral("Printer"))
            chooser = each;
    }
    EXPECT_TRUE(Gestures::pickRow(chooser, chooser->findData(destination)));
    EXPECT_TRUE(m_dialog.settle(destination));
    enter();
}

QString Hand::changeQueue(std::uint32_t number)
{
    const QStringList &all = m_dialog.server().destinations();
    const QString &destination = all[static_cast<qsizetype>(number) % all.size()];
    if (destination == m_dialog.destination())
        return {};
    pickQueue(destination);
    return destination;
}

QString Hand::onOptions(const Step &step)
{
    const QString tab = QStringLiteral("Options");
    if (!m_dialog.hasTab(tab))
        return {};
    m_dialog.chooseTab(tab);
    const OptionLists options(m_dialog);
    const std::optional<OptionTexts> chosen =
        step.action == Action::PickOption ? options.pick(step.number) : options.stepByKey(step.number);
    if (!chosen)
        return {};
    m_intent.choose(*chosen);
    return QString::fromUtf8(chosen->firstKey() + '=' + chosen->first());
}

QString Hand::operateRoll(std::uint32_t number)
{
    if (!m_dialog.hasTab(RollControls::tab()))
        return {};
    m_dialog.chooseTab(RollControls::tab());
    const std::optional<OptionTexts> chosen = RollControls(m_dialog).operate(number);
    if (!chosen)
        return {};
    m_intent.choose(*chosen);
    return QString::fromUtf8(chosen->firstKey() + '=' + chosen->first());
}

QString Hand::pressRemedy()
{
    const std::optional<host::Remedy> remedy = m_dialog.window().ticket()->remedy;
    auto *const banner = m_dialog.window().findChild<dialog::ConflictBanner *>();
    auto *const button = banner && banner->isVisible() ? banner->findChild<QPushButton *>() : nullptr;
    if (!remedy || !button)
        return {};
    const host::Remedy &pressed = *remedy;
    Hands::click(button);
    for (const host::Remedy::Change &change : pressed.changes)
        m_intent.choose({{change.keyword.toUtf8(), change.choice.toUtf8()}});
    return pressed.sentence();
}

QString Hand::onPages(const Step &step)
{
    const PageFields fields(m_dialog);
    const auto number = static_cast<int>(step.number % 5) + 1;
    if (step.action == Action::TypeCopies) {
        Hands::typeInto(fields.copies, QString::number(number));
    } else if (step.action == Action::StepCopies) {
        Gestures::pressIn(fields.copies, step.number % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
    } else if (step.action == Action::ClickCollate) {
        if (!fields.collate->isEnabled())
            return {};
        Hands::click(fields.collate);
        m_intent.chooseForJob("collate", fields.collate->isChecked() ? "true" : "false");
    } else if (step.action == Action::ClickLastFirst) {
        Hands::click(fields.lastFirst);
        m_intent.chooseForJob("outputorder", fields.lastFirst->isChecked() ? "reverse" : "normal");
    } else {
        constexpr const char *texts[] = {"", "1-2", "2", "1,3", "3-", "4", "9", "x", ""};
        const QByteArray text = texts[step.number % std::size(texts)];
        Hands::typeInto(fields.pages, QString::fromLatin1(text));
        if (text.isEmpty())
            Hands::press(&m_dialog.window(), Qt::Key_Delete);
        m_intent.chooseForJob("page-ranges", text);
        return QString::fromLatin1(text) + u'.';
    }
    const QByteArray copies = QByteArray::number(fields.copies->value());
    const bool isTyped = step.action == Action::TypeCopies;
    EXPECT_TRUE(!isTyped || copies.toInt() == number);
    if (isTyped || step.action == Action::StepCopies)
        m_intent.chooseForJob("copies", copies);
    return QString::fromLatin1(copies);
}

QString Hand::replacePpd()
{
    const QString destination = m_dialog.destination();
    if (m_dialog.server().ppd(destination).isEmpty())
        return {};
    bool isReplaced = false;
    const QMetaObject::Connection replaced =
        QObject::connect(&m_dialog.keeper(), &host::SetupKeeper::setupChanged, [&] { isReplaced = true; });
    m_dialog.server().replacePpd(destination, 1 - m_dialog.server().variant(destination));
    m_dialog.session().retry();
    EXPECT_TRUE(waitUntil([&] { return isReplaced; })) << m_dialog.told().toStdString();
    QObject::disconnect(replaced);
    EXPECT_TRUE(m_dialog.settle(destination));
    return QString::number(m_dialog.server().variant(destination));
}

bool Hand::print()
{
    QPushButton *const button = buttonOf(&m_dialog.window(), QStringLiteral("Print"));
    if (!button || !button->isEnabled())
        return false;
    SentJob job{0, m_dialog.sentOptions(), shownStrip(m_dialog),
                m_dialog.server().ppd(m_dialog.destination())};
    Hands::click(button);
    if (!waitUntil([this] { return !m_dialog.window().isSending() && !m_dialog.window().isVisible(); })) {
        ADD_FAILURE() << m_dialog.told().toStdString();
        return false;
    }
    job.id = m_dialog.sender().lastJob()->id;
    m_sent.push_back(job);
    if (job.isRecorded())
        m_dialog.server().countRecorded();
    return true;
}

QString Hand::printAndReopen(std::uint32_t number)
{
    if (!print())
        return {};
    // Mostly on the same printer, as it is set up: what was chosen is still there.
    if (number % 4 == 0)
        return QStringLiteral("and ") + reopen(number / 4);
    m_intent.forgetJob();
    EXPECT_TRUE(m_dialog.reopenWindow());
    enter();
    return QStringLiteral("job %1").arg(m_sent.back().id);
}

QString Hand::reopen(std::uint32_t number)
{
    const QStringList &all = m_dialog.server().destinations();
    const QString &destination = all[static_cast<qsizetype>(number) % all.size()];
    EXPECT_TRUE(m_dialog.open(destination)) << m_dialog.told().toStdString();
    m_intent.forget();
    enter();
    return destination;
}

} // namespace dialogwalk
