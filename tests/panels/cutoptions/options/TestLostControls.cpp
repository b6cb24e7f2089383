// SPDX-License-Identifier: Apache-2.0
// A layout without one of its controls, and controls that somebody else deletes.
#include "PanelFixture.h"

#include <platform/Log.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using test_support::PanelTest;
using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

constexpr std::array<const char *, 14> controlNames = {
    "mCutEveryChkBx",   "mCutAndEndChkBx",   "mMirrorPrintChkBx",    "mAutoCutChkBx",   "mHalfCutChkBx",
    "mChainPrintChkBx", "mSpecialTapeChkBx", "mRemoveBlkSpaceChkBx", "mCutMarkChkBx",   "mCutEveryTxBx",
    "mCutEveryStpr",    "mCutEveryStr",      "mOptionPopUpButton",   "mOptionDummyView"};

class LostControlsTest : public PanelTest {
protected:
    void SetUp() override
    {
        const QDir from(bundle()->path() + QStringLiteral("/Resources"));
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("Resources")));
        for (const QString &name : from.entryList(QDir::Files))
            ASSERT_TRUE(QFile::link(from.filePath(name), resource(name)));
        m_layout = read(from.filePath(QStringLiteral("OptionPDE.ui")));
        platform::setLogSink([this](const QString &text) { m_logged.append(text); });
    }
    void TearDown() override { platform::setLogSink({}); }

    QString resource(const QString &name) const
    {
        return m_folder.filePath(QStringLiteral("Resources/") + name);
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void writeLayout(const QByteArray &bytes) const
    {
        QFile::remove(resource(QStringLiteral("OptionPDE.ui")));
        QFile file(resource(QStringLiteral("OptionPDE.ui")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// The layout with the control under another name.
    QByteArray layoutWithout(const char *name) const
    {
        const QByteArray quoted = QByteArray("name=\"") + name + '"';
        EXPECT_EQ(m_layout.count(quoted), 1) << name;
        return QByteArray(m_layout).replace(quoted, QByteArray("name=\"renamed\""));
    }

    void openFromFolder(const PpdBuilder &builder)
    {
        panel.reset();
        dialog = std::make_shared<TestDialog>(builder.openMarked());
        dialog->setPaper(QStringLiteral("24mm"));
        panel = OptionPDE13_v400_::initWithCallback(dialog, platform::Bundle::open(m_folder.path(), {"en"}));
        ASSERT_TRUE(panel);
    }

    /// Everything that a dialog may ask of a panel at any time.
    void askEverything()
    {
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
        EXPECT_TRUE(panel->supportedPPDOptionKeys());
        for (const char *paper : {"HS11mm", "FL21x45", "24mm"}) {
            dialog->setPaper(QLatin1String(paper));
            dialog->postPaperChange();
        }
        EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
        panel->willShow();
        EXPECT_TRUE(panel->summaryInfo());
        EXPECT_TRUE(panel->shouldPrint());
        panel->PPDOptionKeyValueDidChange(QStringLiteral("KvMirror"), QStringLiteral("ON"));
        panel->applyUserChoices(changes({{"KvMirror", "ON"}, {"KvCutLabel", "3"}, {"KvSpecialTape", "OFF"}}));
        panel->changeCutEveryValue(panel->countField());
        panel->changeCutEveryValue(panel->countStepper());
        panel->changeOptionPopUpButton(panel->popUp());
        panel->changeOption(nullptr);
        panel->targetPopUpButtonTag();
        panel->inspection();
    }

    QTemporaryDir m_folder;
    QByteArray m_layout;
    QStringList m_logged;
};

} // namespace

TEST_F(LostControlsTest, ALayoutThatLacksAControlIsNoView)
{
    for (const char *name : controlNames) {
        SCOPED_TRACE(name);
        m_logged.clear();
        writeLayout(layoutWithout(name));
        openFromFolder(everything().defaultChoice("KvHalfCut", "ON"));
        EXPECT_EQ(panel->panelView(), nullptr);
        ASSERT_EQ(m_logged.size(), 1);
        EXPECT_TRUE(m_logged.first().contains(QLatin1String(name))) << m_logged.first().toStdString();
        for (std::size_t kind = 0; kind < OptionCount; ++kind)
            EXPECT_EQ(box(OptionKind(kind)), nullptr);
        askEverything();
        EXPECT_EQ(dialog->marked("KvHalfCut"), QStringLiteral("ON")) << "what is marked is saved";
        EXPECT_EQ(panel->panelView(), nullptr);

        writeLayout(m_layout);
        EXPECT_NE(panel->panelView(), nullptr) << "each call tries anew";
        EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked());
        askEverything();
    }
}

TEST_F(LostControlsTest, AViewThatSomebodyElseDeletesIsLoadedAnew)
{
    openFromFolder(everything().defaultChoice("KvMirror", "ON"));
    showPanel();
    box(OptionKind::HalfCut)->click();
    box(OptionKind::Mirror)->click();
    box(OptionKind::CutLabel)->click();
    panel->countStepper()->stepTo(12);
    const QString title = box(OptionKind::HalfCut)->text();
    ASSERT_FALSE(title.isEmpty());
    delete panel->panelView();
    for (std::size_t kind = 0; kind < OptionCount; ++kind)
        EXPECT_EQ(box(OptionKind(kind)), nullptr);
    EXPECT_EQ(panel->countField(), nullptr);
    EXPECT_EQ(panel->countStepper(), nullptr);
    EXPECT_EQ(panel->countWord(), nullptr);
    EXPECT_EQ(panel->popUp(), nullptr);
    EXPECT_EQ(panel->preview(), nullptr);
    EXPECT_TRUE(panel->inspection().isEmpty());
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(dialog->marked("KvHalfCut"), QStringLiteral("ON")) << "what is marked is saved";

    dialog->changes.clear();
    ASSERT_NE(panel->panelView(), nullptr);
    EXPECT_TRUE(dialog->changes.empty()) << "loading writes nothing";
    EXPECT_EQ(box(OptionKind::HalfCut)->text(), title);
    EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked());
    EXPECT_TRUE(box(OptionKind::Mirror)->isChecked());
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("12"));
    EXPECT_TRUE(isEnabled(panel->countField()));
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(dialog->marked("KvMirror"), QStringLiteral("ON"));
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("12"));
}

TEST_F(LostControlsTest, EverythingCanBeAskedAfterTheViewIsDeleted)
{
    openFromFolder(everything());
    for (int round = 0; round < 2; ++round) {
        showPanel();
        delete panel->panelView();
        askEverything();
    }
    ASSERT_NE(panel->panelView(), nullptr);
    askEverything();
}

TEST_F(LostControlsTest, EachControlCountsAsAbsentOnceItIsDeleted)
{
    for (const char *name : controlNames) {
        SCOPED_TRACE(name);
        openFromFolder(everything());
        showPanel();
        // The preview stands in the placeholder's place.
        const bool isPlaceholder = qstrcmp(name, "mOptionDummyView") == 0;
        auto *const control =
            panel->panelView()->findChild<QWidget *>(QLatin1String(isPlaceholder ? "mOptionView" : name));
        ASSERT_TRUE(control);
        delete control;
        askEverything();
        EXPECT_FALSE(panel->inspection().value("controls").toObject().contains(QLatin1String(name)));
        panel->panelView()->grab();
    }
}
