// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/options/OptionsPage.h>
#include <tests/samples/OptionsPpd.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

/// The page with an owner that marks what is chosen, as a dialog does.
class OptionsPageTest : public testing::Test {
protected:
    void open(const QStringList &claimed = {}, const QByteArray &text = optionsPpd(),
              const QString &language = {})
    {
        ppd = std::make_unique<host::PpdFile>(openPpd(sandbox, text, language));
        page = std::make_unique<dialog::OptionsPage>(*ppd, claimed, nullptr);
        QObject::connect(page.get(), &dialog::OptionsPage::chosen, page.get(),
                         [this](const QByteArray &keyword, const QByteArray &value) {
                             heard.append(keyword + "=" + value);
                             ppd->mark(QString::fromUtf8(keyword), QString::fromUtf8(value));
                             update();
                         });
        page->resize(520, 420);
        page->show();
        update();
        QApplication::processEvents();
    }

    void update()
    {
        page->refresh();
        page->setConflicts(host::Constraints(*ppd).conflicts());
    }

    void mark(const char *keyword, const char *choice)
    {
        ppd->mark(QLatin1String(keyword), QLatin1String(choice));
        update();
    }

    QWidget *control(const char *keyword) const { return page->findChild<QWidget *>(QLatin1String(keyword)); }

    template<typename Widget>
    Widget *in(const char *keyword, const char *name = "") const
    {
        QWidget *const parent = control(keyword);
        return parent ? parent->findChild<Widget *>(QLatin1String(name)) : nullptr;
    }

    QListWidget *groups() const { return page->findChild<QListWidget *>(); }

    void chooseGroup(int row) const
    {
        QTest::mouseClick(groups()->viewport(), Qt::LeftButton, {},
                          groups()->visualItemRect(groups()->item(row)).center());
        QApplication::processEvents();
    }

    /// Chooses with the keyboard, without opening the list.
    static void pick(QComboBox *list, int index)
    {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QApplication::processEvents();
    }

    static void tick(QAbstractButton *box)
    {
        const int x = box->layoutDirection() == Qt::RightToLeft ? box->width() - 8 : 8;
        QTest::mouseClick(box, Qt::LeftButton, {}, {x, box->height() / 2});
        QApplication::processEvents();
    }

    QAbstractButton *boxOf(const char *keyword, const char *text) const
    {
        for (QCheckBox *const box : control(keyword)->findChildren<QCheckBox *>()) {
            if (box->text().replace(QStringLiteral("&&"), QStringLiteral("&")) == QLatin1String(text))
                return box;
        }
        return nullptr;
    }

    QString warning(const char *keyword) const
    {
        QStringList shown;
        for (const QLabel *const label : control(keyword)->findChildren<QLabel *>()) {
            if (label->isVisible() && label->text().contains(QStringLiteral(" conflict.")))
                shown.append(label->text());
        }
        return shown.join(u'\n');
    }

    Sandbox sandbox;
    std::unique_ptr<host::PpdFile> ppd;
    std::unique_ptr<dialog::OptionsPage> page;
    QByteArrayList heard;
};
