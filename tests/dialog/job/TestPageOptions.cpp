// SPDX-License-Identifier: Apache-2.0
#include <dialog/job/PageOptions.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>

#include <gtest/gtest.h>

using dialog::PageOptions;
using host::Collate;

namespace {

host::JobSettings settings(int copies, Collate collate, const QString &ranges)
{
    host::JobSettings settings;
    settings.copies = copies;
    settings.collate = collate;
    settings.pageRanges = ranges;
    return settings;
}

} // namespace

TEST(PageOptions, ShowsQuietlyWhatIsSet)
{
    PageOptions options({9}, nullptr);
    const QSignalSpy spy(&options, &PageOptions::changed);
    EXPECT_FALSE(options.findChild<QCheckBox *>()->isEnabled());
    options.setSettings(settings(3, Collate::No, QStringLiteral("2-4, 7-")));
    EXPECT_TRUE(options.findChild<QCheckBox *>()->isEnabled());
    EXPECT_EQ(options.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->text(),
              QStringLiteral("2-4, 7-"));
    const auto choices = options.choices();
    ASSERT_TRUE(choices);
    EXPECT_EQ(choices.value().pages, (std::vector<int>{1, 2, 3, 6, 7, 8}));
    EXPECT_EQ(choices.value().copies, 3);
    EXPECT_EQ(choices.value().collate, Collate::No);
    options.setSettings({});
    EXPECT_FALSE(options.findChild<QCheckBox *>()->isEnabled());
    EXPECT_EQ(options.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->text(), QString());
    EXPECT_EQ(spy.count(), 0);
}

TEST(PageOptions, ShowsWhatThePrinterDoesByItselfAndLeavesItToThePrinter)
{
    PageOptions options({9}, nullptr);
    const QSignalSpy spy(&options, &PageOptions::changed);
    auto *const copies = options.findChild<QSpinBox *>();
    auto *const pages = options.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    const QList<QCheckBox *> boxes = options.findChildren<QCheckBox *>();
    ASSERT_EQ(boxes.size(), 2);
    const host::JobSettings defaults{.copies = 3,
                                     .collate = Collate::Yes,
                                     .pageRanges = QStringLiteral("2-3"),
                                     .order = host::PageOrder::Reverse};
    options.setDefaults(defaults);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_EQ(copies->value(), 3);
    EXPECT_EQ(pages->text(), QStringLiteral("2-3"));
    for (const QCheckBox *box : boxes)
        EXPECT_TRUE(box->isChecked() && box->isEnabled()) << box->text().toStdString();
    EXPECT_EQ(options.choices().value().pages, (std::vector<int>{1, 2}));
    EXPECT_EQ(options.choices().value().order, host::PageOrder::Reverse);
    host::JobSettings written;
    options.writeTo(written);
    EXPECT_EQ(written, host::JobSettings());

    // What the user sets stays when the printer is another one.
    copies->setValue(1);
    pages->clear();
    boxes[1]->click();
    EXPECT_EQ(spy.count(), 3);
    options.setDefaults({.copies = 7});
    EXPECT_EQ(copies->value(), 1);
    EXPECT_FALSE(boxes[0]->isChecked());
    options.writeTo(written);
    EXPECT_EQ(written,
              (host::JobSettings{.copies = 1, .pageRanges = QString(), .order = host::PageOrder::Normal}));
}

TEST(PageOptions, TakesWhatItCannotPrintAndSaysSo)
{
    PageOptions options({3}, nullptr);
    options.setSettings(settings(0, Collate::Yes, QStringLiteral("9")));
    EXPECT_EQ(options.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->text(),
              QStringLiteral("9"));
    EXPECT_FALSE(options.choices());
    options.setSettings(settings(host::maxCopies + 1, Collate::Yes, {}));
    EXPECT_EQ(options.findChild<QSpinBox *>()->value(), host::maxCopies);
}
