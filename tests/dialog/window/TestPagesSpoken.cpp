// SPDX-License-Identifier: Apache-2.0

#include <dialog/job/JobPage.h>
#include <dialog/options/OptionsPage.h>
#include <dialog/paper/PaperChooser.h>
#include <tests/samples/OptionsPpd.h>
#include <tests/samples/SamplePpd.h>

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QListWidget>

#include <gtest/gtest.h>

namespace {

/// Every field that keys reach, visible or not yet, has a name of its own.
void expectNames(const QWidget &page)
{
    int fields = 0;
    for (QWidget *const widget : page.findChildren<QWidget *>()) {
        const bool isPart = widget->parentWidget()->inherits("QAbstractSpinBox") ||
                            widget->parentWidget()->inherits("QComboBox") ||
                            widget->window() != page.window();
        if (!(widget->focusPolicy() & Qt::TabFocus) || isPart)
            continue;
        ++fields;
        QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(spoken) << widget->metaObject()->className();
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
    EXPECT_GT(fields, 3);
}

} // namespace

TEST(PagesSpoken, EveryFieldHasAName)
{
    const Sandbox sandbox;
    host::PpdFile options = openPpd(sandbox, optionsPpd());
    options.mark(QStringLiteral("Darkness"), QStringLiteral("Custom.42"));
    options.mark(QStringLiteral("Offset"), QStringLiteral("{Left=20 Key=1234}"));
    dialog::OptionsPage optionsPage(options, {}, nullptr);
    optionsPage.show();
    optionsPage.findChild<QListWidget *>()->setCurrentRow(1);
    QApplication::processEvents();
    expectNames(optionsPage);

    const host::PpdFile tape = openPpd(sandbox, tapePpd());
    dialog::PaperChooser papers(tape, tape.markedPaper().value(), nullptr);
    papers.setDocumentPage(QSizeF(50, 100));
    papers.show();
    EXPECT_TRUE(papers.choose("Custom.20x20mm"));
    expectNames(papers);

    dialog::JobPage job(nullptr);
    job.show();
    expectNames(job);
}
