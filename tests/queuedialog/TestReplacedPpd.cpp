// SPDX-License-Identifier: Apache-2.0
// The administrator gives a queue another PPD while its dialog is open.
#include "QueueDialogFixture.h"

#include "FullPpd.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

namespace {

class ReplacedPpdTest : public QueueDialogTest {
protected:
    static QByteArray manyPapers(int from)
    {
        QByteArray text = fullPpd();
        QByteArray choices;
        for (int i = from; i < from + 10; ++i) {
            const QByteArray name = 'X' + QByteArray::number(i);
            choices += "*PageSize " + name + ": \"\"\n";
            text += "*PaperDimension " + name + ": \"100 200\"\n";
        }
        return text.replace("*CloseUI: *PageSize\n", choices + "*CloseUI: *PageSize\n");
    }

    void SetUp() override
    {
        QueueDialogTest::SetUp();
        cupsd->addQueue(QStringLiteral("full"), manyPapers(m_firstPaper));
        openAndSettle(QStringLiteral("full"));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), test_support::failureMilliseconds));
    }

    void replacePpd()
    {
        int replacements = 0;
        QObject::connect(keeper.get(), &host::SetupKeeper::setupChanged, window.get(),
                         [&] { ++replacements; });
        m_firstPaper += 10;
        meanwhile([this] { cupsd->replacePpd(QStringLiteral("full"), manyPapers(m_firstPaper)); });
        ASSERT_TRUE(waitUntil([&] { return replacements > 0; }));
        EXPECT_TRUE(waitUntil([this] { return isSettled(); }));
        QApplication::processEvents();
    }

    QString front() const
    {
        const auto *const pages = window->findChild<QTabWidget *>();
        return tabs().value(pages->currentIndex());
    }

private:
    int m_firstPaper = 10;
};

} // namespace

TEST_F(ReplacedPpdTest, ThePageInFrontStaysThere)
{
    for (const char *const title : {"Options", "Cut Options", "Summary", "Job"}) {
        chooseTab(QLatin1String(title));
        replacePpd();
        EXPECT_EQ(front(), QLatin1String(title));
    }
}

TEST_F(ReplacedPpdTest, SoDoTheGroupAndTheControlInUse)
{
    chooseTab(QStringLiteral("Options"));
    auto *const groups = find<QListWidget>(QStringLiteral("Option groups"));
    ASSERT_TRUE(groups && groups->count() > 1);
    groups->setCurrentRow(1);
    QApplication::processEvents();
    const QString group = groups->currentItem()->text();
    auto *const stamp = window->findChild<QWidget *>(QStringLiteral("Stamp"));
    ASSERT_TRUE(stamp);
    stamp->findChild<QComboBox *>()->setFocus();
    replacePpd();
    auto *const after = find<QListWidget>(QStringLiteral("Option groups"));
    ASSERT_TRUE(after);
    EXPECT_EQ(after->currentItem()->text(), group);
    const auto *const focused = qobject_cast<QComboBox *>(QApplication::focusWidget());
    ASSERT_TRUE(focused);
    EXPECT_EQ(focused->parentWidget()->objectName(), QStringLiteral("Stamp"));
}

TEST_F(ReplacedPpdTest, ThePanelsControlKeepsTheFocus)
{
    panelBox("mHalfCutChkBx")->setFocus();
    replacePpd();
    EXPECT_EQ(QApplication::focusWidget(), panelBox("mHalfCutChkBx"));
}

TEST_F(ReplacedPpdTest, ASearchForPapersGoesOn)
{
    auto *const search = find<QLineEdit>(QStringLiteral("Search papers"));
    ASSERT_TRUE(search);
    Hands::typeInto(search, QStringLiteral("remov"));
    replacePpd();
    auto *const after = find<QLineEdit>(QStringLiteral("Search papers"));
    ASSERT_TRUE(after);
    EXPECT_EQ(after->text(), QStringLiteral("remov"));
    EXPECT_EQ(QApplication::focusWidget(), after);
    int shown = 0;
    for (int row = 0; row < papers()->count(); ++row)
        shown += papers()->item(row)->isHidden() ? 0 : 1;
    EXPECT_EQ(shown, 3) << "the free size, a heading and the paper";
    choosePaper(QStringLiteral("Removable 52 mm x 75 mm"));
    EXPECT_EQ(printed().option("PageSize"), "DC52x75R");
}
