// SPDX-License-Identifier: Apache-2.0
#include <preview/OptionView.h>

#include <QCheckBox>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QStringList namesDZ{
    QStringLiteral("EveryEndMirrorOffOffOff"), QStringLiteral("EveryEndMirrorOffOnOff"),
    QStringLiteral("EveryEndMirrorOnOffOff"),  QStringLiteral("EveryEndMirrorOffOffOn"),
    QStringLiteral("EveryEndMirrorOffOnOn"),   QStringLiteral("EveryEndMirrorOnOffOn"),
};

QString onOff(bool on)
{
    return on ? QStringLiteral("On") : QStringLiteral("Off");
}

QStringList namesLX()
{
    QStringList names;
    for (int bits = 0; bits < 16; ++bits)
        names.append(QStringLiteral("AHCM") + onOff(bits & 8) + onOff(bits & 4) + onOff(bits & 2) +
                     onOff(bits & 1));
    return names + QStringList{QStringLiteral("SPMROnOff"),    QStringLiteral("SPMROnOn"),
                               QStringLiteral("CTMROnOffOff"), QStringLiteral("CTMROffOffOff"),
                               QStringLiteral("CTMROnOnOff"),  QStringLiteral("CTMROffOnOff")};
}

/// A bundle whose pictures are small and of one colour, so that what was drawn where can be told.
class PreviewTest : public testing::Test {
protected:
    enum Box { Every, End, Mirror, Auto, Half, Chain, Special, Blank, Mark, BoxCount };

    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("Resources")));
        for (const QString &name : namesDZ + namesLX())
            writePicture(name);
        m_bundle = platform::Bundle::open(m_folder.path(), {});
    }

    void writePicture(const QString &name)
    {
        QImage picture(8, 4, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(picturePath(name)));
    }

    QString picturePath(const QString &name) const
    {
        return m_folder.filePath(QStringLiteral("Resources/%1.png").arg(name));
    }

    OptionView13_v400_ *makeView(bool isDZ)
    {
        m_parent = std::make_unique<QWidget>();
        auto *const view = OptionView13_v400_::initWithFrame({5, 6, 20, 10}, *m_bundle, isDZ, m_parent.get());
        for (QCheckBox *&box : m_boxes)
            box = new QCheckBox(m_parent.get());
        view->setCutEveryChkBx(m_boxes[Every]);
        view->setCutAndEndChkBx(m_boxes[End]);
        view->setMirrorPrintChkBx(m_boxes[Mirror]);
        view->setAutoCutChkBx(m_boxes[Auto]);
        view->setHalfCutChkBx(m_boxes[Half]);
        view->setChainPrintChkBx(m_boxes[Chain]);
        view->setSpecialTapeChkBx(m_boxes[Special]);
        view->setRemoveBlkSpaceChkBx(m_boxes[Blank]);
        view->setCutMarkChkBx(m_boxes[Mark]);
        return view;
    }

    void setBoxes(unsigned states, unsigned hidden, unsigned disabled)
    {
        for (unsigned box = 0; box < BoxCount; ++box) {
            m_boxes[box]->setChecked(states >> box & 1);
            m_boxes[box]->setVisible(!(hidden >> box & 1));
            m_boxes[box]->setEnabled(!(disabled >> box & 1));
        }
    }

    static QString shown(const OptionView13_v400_ &view)
    {
        const platform::Image *const image = view.targetDrawImage();
        return image ? image->name() : QString();
    }

    QTemporaryDir m_folder;
    std::shared_ptr<const platform::Bundle> m_bundle;
    std::unique_ptr<QWidget> m_parent;
    std::array<QCheckBox *, BoxCount> m_boxes{};
};

/// The tape picture's name, told from the visible boxes that are on.
QString expectedLX(unsigned on)
{
    const auto is = [on](int box) { return (on >> box & 1) != 0; };
    if (is(6))
        return QStringLiteral("SPMROn") + onOff(is(2));
    return QStringLiteral("AHCM") + onOff(is(3) || is(0)) + onOff(is(4)) + onOff(is(5)) + onOff(is(2));
}

QString expectedDZ(unsigned on)
{
    const auto is = [on](int box) { return (on >> box & 1) != 0; };
    const bool every = !is(6) && (is(0) || is(3));
    return QStringLiteral("EveryEndMirror") + onOff(every) + onOff(!every && is(1)) + onOff(is(2));
}

} // namespace

TEST_F(PreviewTest, EveryCombinationOfStatesAndHiddenBoxesPicksItsPicture)
{
    // Whether a box is on for the picture depends on its state and its hidden flag alone, so all states are
    // taken with every single box hidden, none, all, and the boxes that matter hidden together.
    std::vector<unsigned> hiddenSets{0, 0x1ff};
    for (unsigned box = 0; box < BoxCount; ++box)
        hiddenSets.push_back(1U << box);
    for (unsigned set = 0; set < 0x80; ++set)
        hiddenSets.push_back(set);
    for (const bool isDZ : {false, true}) {
        const auto *const view = makeView(isDZ);
        for (const unsigned hidden : hiddenSets) {
            for (unsigned states = 0; states < 0x200; ++states) {
                setBoxes(states, hidden, states * 7 % 0x200);
                const unsigned on = states & ~hidden;
                ASSERT_EQ(shown(*view), isDZ ? expectedDZ(on) : expectedLX(on))
                    << "states " << states << " hidden " << hidden << " DZ " << isDZ;
            }
        }
    }
}

TEST_F(PreviewTest, WithEveryBoxHiddenNothingIsOn)
{
    const auto *view = makeView(false);
    setBoxes(0x1ff, 0x1ff, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("AHCMOffOffOffOff"));
    view = makeView(true);
    setBoxes(0x1ff, 0x1ff, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("EveryEndMirrorOffOffOff"));
}

TEST_F(PreviewTest, ADisabledBoxStillCountsAHiddenOneDoesNot)
{
    const auto *const view = makeView(false);
    setBoxes(1U << Half, 0, 1U << Half);
    EXPECT_EQ(shown(*view), QStringLiteral("AHCMOffOnOffOff"));
    setBoxes(1U << Half, 1U << Half, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("AHCMOffOffOffOff"));
}

TEST_F(PreviewTest, SpecialTapeLeavesOnlyMirrorToShow)
{
    const auto *const view = makeView(false);
    setBoxes(1U << Special | 1U << Auto | 1U << Half | 1U << Chain, 0, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("SPMROnOff"));
    setBoxes(1U << Special | 1U << Auto | 1U << Mirror, 0, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("SPMROnOn"));
}

TEST_F(PreviewTest, OnLabelsCuttingEveryCoversCuttingAtTheEnd)
{
    const auto *const view = makeView(true);
    setBoxes(1U << Every | 1U << End, 0, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("EveryEndMirrorOnOffOff"));
    setBoxes(1U << Auto, 0, 0);
    EXPECT_EQ(shown(*view), QStringLiteral("EveryEndMirrorOnOffOff"));
}

TEST_F(PreviewTest, BoxesThatWereNeverHandedOverAreOff)
{
    QWidget parent;
    const auto *const view = OptionView13_v400_::initWithFrame({0, 0, 20, 10}, *m_bundle, false, &parent);
    EXPECT_EQ(shown(*view), QStringLiteral("AHCMOffOffOffOff"));
    EXPECT_EQ(view->cutEveryChkBx(), nullptr);
    EXPECT_EQ(view->cutAndEndChkBx(), nullptr);
    EXPECT_EQ(view->mirrorPrintChkBx(), nullptr);
    EXPECT_EQ(view->autoCutChkBx(), nullptr);
    EXPECT_EQ(view->halfCutChkBx(), nullptr);
    EXPECT_EQ(view->chainPrintChkBx(), nullptr);
    EXPECT_EQ(view->specialTapeChkBx(), nullptr);
    EXPECT_EQ(view->removeBlkSpaceChkBx(), nullptr);
}

TEST_F(PreviewTest, HandsItsBoxesBack)
{
    const auto *const view = makeView(false);
    EXPECT_EQ(view->cutEveryChkBx(), m_boxes[Every]);
    EXPECT_EQ(view->cutAndEndChkBx(), m_boxes[End]);
    EXPECT_EQ(view->mirrorPrintChkBx(), m_boxes[Mirror]);
    EXPECT_EQ(view->autoCutChkBx(), m_boxes[Auto]);
    EXPECT_EQ(view->halfCutChkBx(), m_boxes[Half]);
    EXPECT_EQ(view->chainPrintChkBx(), m_boxes[Chain]);
    EXPECT_EQ(view->specialTapeChkBx(), m_boxes[Special]);
    EXPECT_EQ(view->removeBlkSpaceChkBx(), m_boxes[Blank]);
}

TEST_F(PreviewTest, ChangingTheFamilyLoadsNothing)
{
    auto *const view = makeView(false);
    EXPECT_FALSE(view->isDZ());
    view->setIsDZ(true);
    EXPECT_TRUE(view->isDZ());
    EXPECT_EQ(view->targetDrawImage(), nullptr);
}

TEST_F(PreviewTest, ThePictureStandsInTheBottomLeftCornerAtItsNaturalSize)
{
    auto *const view = makeView(false);
    EXPECT_FALSE(view->isFlipped());
    EXPECT_EQ(view->geometry(), QRect(5, 6, 20, 10));
    setBoxes(0, 0, 0);
    QImage canvas(20, 10, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    view->drawRect(painter);
    painter.end();
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(canvas.pixelColor(x, y).alpha(), x < 8 && y >= 6 ? 255 : 0) << x << ',' << y;
    }
}

TEST_F(PreviewTest, AMissingOrUnreadablePictureDrawsNothing)
{
    ASSERT_TRUE(QFile::remove(picturePath(QStringLiteral("AHCMOffOffOffOff"))));
    QFile broken(picturePath(QStringLiteral("SPMROnOff")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("not a picture");
    broken.close();
    auto *const view = makeView(false);
    setBoxes(0, 0, 0);
    EXPECT_EQ(view->targetDrawImage(), nullptr);
    QImage canvas(20, 10, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::green);
    const QImage untouched = canvas;
    QPainter painter(&canvas);
    view->drawRect(painter);
    painter.end();
    EXPECT_EQ(canvas, untouched);
    setBoxes(1U << Special, 0, 0);
    EXPECT_EQ(view->targetDrawImage(), nullptr);
    setBoxes(1U << Half, 0, 0);
    EXPECT_NE(view->targetDrawImage(), nullptr);
}

TEST_F(PreviewTest, APackageThatIsReplacedUnderTheViewLeavesItsPictures)
{
    for (const bool isDZ : {false, true}) {
        auto *const view = makeView(isDZ);
        ASSERT_TRUE(QDir(m_folder.filePath(QStringLiteral("Resources"))).removeRecursively());
        for (const unsigned states :
             {0U, 1U << Mirror, 1U << Auto, 1U << Auto | 1U << Mirror, 1U << Special}) {
            setBoxes(states, 0, 0);
            QImage canvas(20, 10, QImage::Format_ARGB32_Premultiplied);
            canvas.fill(Qt::transparent);
            QPainter painter(&canvas);
            view->drawRect(painter);
            painter.end();
            EXPECT_EQ(canvas.pixelColor(0, 9), QColor(Qt::red)) << states;
        }
        SetUp();
    }
}

TEST_F(PreviewTest, ACutOffPictureDrawsNothing)
{
    const QString path = picturePath(QStringLiteral("AHCMOffOffOffOff"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(file.size() - 20));
    file.close();
    const auto *const view = makeView(false);
    setBoxes(0, 0, 0);
    EXPECT_EQ(view->targetDrawImage(), nullptr);
}
